// vexoraf, the main screen: the worklist of all documents of the building and the tree of commands.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "records/fattura.h"
#include "records/totali.h"
#include "screen/programma.h"
#include "screen/schermo.h"
#include "worklist/lista.h"
#include "worklist/saldi_azzerati.h"

namespace ambra {

class Vexoraf : public Schermo {
  public:
    explicit Vexoraf(Programma& p);

    Etichetta stabili, xx_versione;
    std::array<Etichetta, 10> srx;
    Griglia elenco;
    std::array<Bottone, 4> command3d2;
    Bottone command3d1, stampante, Label2, indice;

    /// Rebuilds the list from the archive, in record order.
    void aggiornalista();
    /// Rewrites the invoice file in date order without the deleted documents.
    void riordino();

    /// How often the list was made.
    long volta() const { return volta_; }

    // ---- rows of the list, from 1 ----
    /// What the list knows of a row's document; null for a filler row.
    const VoceElenco* voce(int riga) const;
    /// The same of all documents.
    const std::vector<VoceElenco>& voci() const { return sotto_.voci; }
    /// The row's document as it stands now; nothing if it is not to be found.
    std::optional<RecFattura> documento(int riga);
    /// A deleted document is live again, after a question.
    void ripristina(int riga);
    /// Whether "azzera" of the row's document can be taken back, and that, after a question.
    bool azzerata(int riga) const;
    void rimetti_saldo(int riga);

    /// Data rows of the list and its heading row; the filler rows below are not counted.
    int righe = 1;
    RecFattura fattura{};
    RecTotali totali{};

  private:
    bool prendi_anticipata(const std::string& oggi);
    void ordina(int etichetta);
    void clic(int riga, int colonna);
    void apri(int chiave, const char* schermo);
    void elimina(int chiave);
    void salda(int chiave, bool azzera);
    void mostra_documento(long record);
    int riga_di(long record) const;
    DocumentoInMano::Esito cambia(int chiave, const DocumentoInMano::Campi& c,
                                  DocumentoInMano::Contatori quali = DocumentoInMano::Contatori::nessuno);

    void radice();
    void livello(const std::array<const char*, 7>& captions);
    void comando(const std::string& caption);
    void fine();

    SottoLista sotto_{prog.arc};
    SaldiAzzerati azzerati_{prog.arc};
    long volta_ = 0;
};

}  // namespace ambra
