// mrvaind, "Variazione indici": the two record counts at the head of .tfr, read and overwritten by hand. The
// way out when a count was lost; the records themselves are not touched.
#pragma once

#include <array>

#include "records/totali.h"
#include "screen/programma.h"
#include "screen/schermo.h"

namespace ambra {

class Mrvaind : public Schermo {
  public:
    explicit Mrvaind(Programma& p);

    Etichetta avvertenza, cornice;
    std::array<Etichetta, 2> e_text1;
    std::array<CampoTesto, 2> text1;    ///< 0 suppliers, 1 documents
    std::array<Bottone, 2> command3d4;  ///< 0 "Esci", 1 "Memorizza"

  private:
    bool valido(std::size_t quale);
    void memorizza();

    std::array<RecTotali, 2> totali_{};  ///< records 1 and 2 as they were read
};

}  // namespace ambra
