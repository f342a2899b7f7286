// lumstcs, "Schede fornitori": supplier by supplier the documents registered in a period, with their amount
// and what is still unpaid.
#pragma once

#include "ledger/filtri_fornitore.h"
#include "records/tabelle.h"

namespace ambra {

class Lumstcs : public Schermo {
  public:
    explicit Lumstcs(Programma& p);

    FiltriFornitore filtri;
    Griglia elenco;
    ComandiElenco comandi;

    /// Rows of the list in use, the heading row counted; blank rows below are not.
    int nrighe = 1;

  private:
    struct Voce {
        Testo<10> numdoc;
        Testo<8> datadoc;
        int modpag;
        double importo, scoperto;
    };
    void riempi();
    void scheda(int numero, const RecFornitore& fornitore, std::span<const Voce> documenti);
    void stampa();

    TabellaPagamenti pagamenti_;
};

}  // namespace ambra
