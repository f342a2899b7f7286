// lumftem, the supplier picker: one supplier at a time, read-only, on the way into the invoice screen.
#pragma once

#include "suppliers/consultazione.h"

namespace ambra {

/// Sets the working values of a new document, of which this picker is the first step.
void nuova_fattura(Programma& p);

class Lumftem : public Schermo {
  public:
    explicit Lumftem(Programma& p);

    Consultazione dati;
    Bottone b_ins{"Continua"}, b_fine{"Esci"};

  private:
    void attiva();
    void prepara();
    void sposta();
    void continua();
    void esci();

    bool prepara_ = false;  // the cursor is being set up: its moves show nothing
};

}  // namespace ambra
