// lumstct, "Elenco fornitori": the suppliers of a range of names, with their addresses.
#pragma once

#include <array>

#include "ledger/elenco_stampa.h"

namespace ambra {

class Lumstct : public Schermo {
  public:
    explicit Lumstct(Programma& p);

    NomiElenco nomi;
    std::array<Bottone, 5> srx;
    Griglia elenco;
    ComandiElenco comandi;

    /// Rows of the list in use, the heading row counted; blank rows below are not.
    int nrighe = 1;

  private:
    void riempi();
    void ordina(int colonna);
    void stampa();
};

}  // namespace ambra
