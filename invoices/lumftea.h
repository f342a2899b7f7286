// lumftea, the invoice screen: a received document is entered, changed or deleted here.
//
// Its arithmetic is calcolo.h; here its reactions run on the texts of the fields, keystroke by keystroke.
// Nothing is stored before "Conferma", which may first hand the document over to the posting screen.
//   lumftea.cpp           fields, commands, reactions
//   lumftea_apri.cpp      a new document, an existing one, back from the picker
//   lumftea_conferma.cpp  checks, the record, the charge, the deletion
//   lumftea_pdf.cpp       the view of the attached PDF
#pragma once

#include <array>
#include <functional>
#include <string>

#include "archivio/documento.h"
#include "archivio/fornitore_visto.h"
#include "invoices/calcolo.h"
#include "ledger/lumincx.h"
#include "records/tabelle.h"
#include "screen/programma.h"
#include "screen/schermo.h"

namespace ambra {

class Lumftea : public Schermo {
  public:
    explicit Lumftea(Programma& p);

    std::array<CampoTesto, 1> Text2;                      ///< number of the document
    std::array<CampoData, 2> text1;                       ///< 0 date of the document, 1 of registration
    std::array<Opzione, 2> tipodc;                        ///< 0 invoice, 1 credit note
    std::array<CampoTesto, kCodiciIva> impon, ivai, rac;  ///< by VAT code
    std::array<CampoTesto, kCodiciIva> esent;             ///< by exemption code
    std::array<Etichetta, 2 * kCodiciIva> iv;             ///< 0 to 7 the rate, 8 to 15 the withholding rate
    std::array<Etichetta, kCodiciIva> es;                 ///< the exemption
    std::array<CampoTesto, 5> total;                      ///< display only
    Lista Combo1;                                         ///< the payment term
    std::array<CampoTesto, kRate> sca;                    ///< amounts of the instalments
    std::array<CampoTesto, 6> dsca;                       ///< their dates; 4 and 5 those of the withheld tax
    std::array<CampoData, 6> dsc;                         ///< the pickers beside
    Bottone Command1;                                     ///< the first instalment falls due today
    Casella pagato, addebita;
    std::array<Opzione, 2> riporta;  ///< 0 the whole building, 1 one condomino
    Etichetta vispag, Label2;
    Etichetta fornitore;  ///< whose document it is
    Etichetta doppia;     ///< the same document is in the archive already; a click shows it in the worklist
    CampoTesto pdf;
    std::array<Bottone, 2> Command3;    ///< choose and open the PDF
    std::array<Bottone, 6> command3d1;  ///< 4 is not used

    /// The document in hand, as it was when it was taken.
    const DocumentoInMano& documento() const { return documento_; }

  private:
    void registra_campi();
    void registra_dettaglio();
    void registra_scadenze();
    void registra_comandi();
    void collega();
    void collega_invio();
    void collega_comandi();
    void carica_tabelle();

    bool nuova() const { return documento_.mai_scritto(); }
    Termine termine() const;

    // ---- reactions ----
    void cambia_imponibile(std::size_t i);
    void calctot();
    void calcrate();
    void calcscad();
    void scadenza_ritenuta_proposta();
    void scade_oggi();
    void clic_pagato();
    void cerca_doppia();

    // ---- opening ----
    void apertura(Attivazione come);
    void apri_documento();
    void prendi_fornitore(int record);
    void prepara_nuova();
    void apri_esistente();
    void carica_documento();
    void carica_scadenze();
    void mostra_fornitore();
    void mostra_data(std::size_t k, const Testo<8>& data);
    void termine_del_fornitore(int posizione);

    // ---- commands ----
    void conferma();
    bool date_valide();
    bool rifiuta(const std::string& testo, Controllo& campo);
    bool frazionamento_accettato();
    bool fornitore_ancora_lui();
    void riempi_documento(RecFattura& f) const;
    void riempi_pagamenti(RecFattura& f) const;
    bool da_addebitare(const RecFattura& f);
    EsitoAddebito addebita_documento();
    void annulla();
    void elimina();
    void cambia_fornitore();
    void chiudi();

    // ---- the PDF view ----
    void vista_pdf(bool dentro);
    void seleziona_pdf();
    void apri_pdf();

    TabellaIva iva_;
    TabellaPagamenti pagamenti_;
    DocumentoInMano documento_{prog.arc};  ///< the one shown, whatever others do to the working values
    FornitoreVisto fornitore_{prog.arc};   ///< whose it is
    double totale_ = 0;                    ///< of the document
    double ritenuta_ = 0;                  ///< sum of the withholdings
    bool sospeso_ = false;                 ///< an existing document is being loaded: stored instalments win
    bool aperta_ = false;                  ///< it was given a document
    bool addebitata_ = false;              ///< the document in hand was charged by this screen
    long doppia_ = 0;                      ///< record of the same document, 0 for none
    std::function<void(const RecFattura&)> dopo_;  ///< what its opener wants done once it is stored
};

}  // namespace ambra
