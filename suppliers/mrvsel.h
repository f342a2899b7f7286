// mrvsel, the list of live suppliers: narrowed by a text anywhere in the name, sortable by column. A choice
// hands a name, not a record, back to the search of its caller.
#pragma once

#include <array>

#include "screen/programma.h"
#include "screen/schermo.h"

namespace ambra {

class Mrvsel : public Schermo {
  public:
    explicit Mrvsel(Programma& p);

    CampoTesto selnome;  ///< the filter, hidden; the caller writes it
    std::array<Etichetta, 4> srx;
    Griglia elenco;
    Bottone indice{"Esci"};

    /// Rows in use, the heading row counted.
    int righe = 1;

  private:
    void riempi();
    void ordina(int colonna);
    void scegli(int riga);
    void esci();
    /// The search field of whoever has the list open, or nullptr.
    CampoTesto* nome_del_chiamante();
};

}  // namespace ambra
