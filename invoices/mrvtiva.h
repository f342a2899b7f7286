// mrvtiva, the table of VAT codes and exemptions: 32 texts, none of them checked.
#pragma once

#include <array>

#include "screen/programma.h"
#include "screen/schermo.h"

namespace ambra {

class Mrvtiva : public Schermo {
  public:
    explicit Mrvtiva(Programma& p);

    Etichetta frame;
    std::array<CampoTesto, 32> Text1;  ///< by code: rate, deductible share, withholding, exemption
    std::array<Bottone, 2> indice;

  private:
    void carica();
    void conferma();
};

}  // namespace ambra
