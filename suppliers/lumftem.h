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

    /// Whether an invoice on the screen asked for another supplier; else the one chosen gets a new document.
    bool per_modifica() const { return modo_ == 1; }

  private:
    void attiva(Attivazione come);
    void prepara();
    void sposta();
    void continua();
    void esci();

    // Of its opening, whatever other screens make of the working values meanwhile.
    int modo_ = 0, fornitore_ = 0;
    bool prepara_ = false;  // the cursor is being set up: its moves show nothing
};

}  // namespace ambra
