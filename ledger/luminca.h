// luminca, the payment of one document: up to four new payments, one against each instalment, and the
// date on which its withheld tax falls due.
//
// A payment has no record of its own: its amount is added to the instalment's running total and its date
// takes the place of the one before. The document comes in `recfattura`, a new opening as `tornada` -99.
#pragma once

#include <array>

#include "ledger/lumincx.h"
#include "records/fattura.h"
#include "records/fornitore.h"
#include "records/tabelle.h"
#include "records/totali.h"
#include "screen/programma.h"
#include "screen/schermo.h"

namespace ambra {

class Luminca : public Schermo {
  public:
    explicit Luminca(Programma& p);

    std::array<CampoTesto, 4> Text2;  ///< number, date of issue, of registration; kind of payment
    std::array<CampoTesto, 8> dsca;   ///< 0 to 3 due dates, 4 to 7 dates of the earlier payments
    std::array<CampoTesto, 8> sca;    ///< 0 to 3 amounts due, 4 to 7 amounts paid so far
    std::array<CampoTesto, 5> dver;   ///< 0 to 3 dates of the new payments; 4 the withheld tax falls due
    std::array<CampoData, 5> dve;     ///< the pickers beside them
    std::array<CampoTesto, 4> ver;    ///< amounts of the new payments, number text
    CampoTesto total;                 ///< amount of the whole document
    std::array<Etichetta, 4> rata;    ///< shortcut: this instalment is paid in full
    Etichetta tutta;                  ///< shortcut: the whole document is
    Bottone conferma, indice;

    /// Whose document is shown.
    const RecFornitore& fornitore() const { return fornitore_; }

  private:
    void registra();
    void collega();
    void apertura();
    void riempi_campi();
    void data_cambiata(std::size_t n);
    bool rata_pagata(std::size_t k);

    void confermato();
    bool date_valide();
    static bool da_addebitare(const RecFattura& f);
    EsitoAddebito addebita_pagamento();
    void riempi_documento(RecFattura& f) const;
    DocumentoInMano::Esito registra_pagamenti();

    DocumentoInMano documento_{prog.arc};  ///< the one under payment
    RecFornitore fornitore_{};
    TabellaPagamenti termini_;
    bool addebitato_ = false;  ///< this payment is in the accounts already
};

}  // namespace ambra
