// lumstcf, "Elenco fatture ricevute": the documents registered in a period, with a grand total that stays
// at the end of any sort by its hidden keys.
#pragma once

#include <array>

#include "ledger/elenco_stampa.h"
#include "records/tabelle.h"

namespace ambra {

class Lumstcf : public Schermo {
  public:
    explicit Lumstcf(Programma& p);

    PeriodoElenco periodo;
    std::array<Bottone, 8> srx;
    Griglia elenco;
    ComandiElenco comandi;

    /// Rows of the list in use, the heading row counted; blank rows below are not.
    int nrighe = 1;

  private:
    void riempi();
    void aggiungi_documento(int n, const RecFattura& f, const RecFornitore& fornitore);
    void aggiungi_chiusura();
    void ordina(int etichetta);
    void stampa();

    TabellaPagamenti pagamenti_;
    double totimporto_ = 0, totversato_ = 0;
};

}  // namespace ambra
