// mrvsel, the list of live suppliers: narrowed by a text anywhere in the name, sortable by column. A choice
// hands the name and the record back to the search of its caller.
#pragma once

#include <array>
#include <memory>

#include "screen/programma.h"
#include "screen/schermo.h"

namespace ambra {

struct Consultazione;

class Mrvsel : public Schermo {
  public:
    explicit Mrvsel(Programma& p);

    CampoTesto selnome;  ///< the filter, hidden; the caller writes it
    std::array<Etichetta, 4> srx;
    Griglia elenco;
    Bottone indice{"Esci"};

    /// Who opened the list, as long as it is there.
    std::weak_ptr<Consultazione> chiamante;
    /// Rows in use, the heading row counted.
    int righe = 1;

  private:
    void riempi();
    void ordina(int colonna);
    void scegli(int riga);
    void esci();
};

}  // namespace ambra
