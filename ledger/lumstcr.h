// lumstcr, "Dettaglio ritenute d'acconto": supplier by supplier the documents registered in a period with
// what was withheld and paid over, a total for each and for all.
#pragma once

#include "ledger/filtri_fornitore.h"

namespace ambra {

class Lumstcr : public Schermo {
  public:
    explicit Lumstcr(Programma& p);

    FiltriFornitore filtri;
    Griglia elenco;
    ComandiElenco comandi;

  private:
    struct Somme {
        double imponibile = 0, totale = 0, ritenuta = 0;
        Somme& operator+=(const Somme& s) {
            imponibile += s.imponibile;
            totale += s.totale;
            ritenuta += s.ritenuta;
            return *this;
        }
    };
    struct Voce {
        Testo<10> numdoc;
        Testo<8> datadoc, pagata, versata;
        bool eliminata;
        Somme importi;
    };
    void riempi();
    Somme scheda(int numero, const RecFornitore& fornitore, std::span<const Voce> documenti);
    void aggiungi_totale(std::string_view fornitore, std::string_view fattura, const Somme& s);
    void stampa();

    int fornitori_ = 0, fatture_ = 0;  // as counted when the screen opened
    int nrighe_ = 1;                   // rows in use, the heading row counted
};

}  // namespace ambra
