// lumwait, the wait screen: one line that tells which building is being worked on. Its caller opens and
// closes it; a user cannot.
#pragma once

#include "screen/programma.h"
#include "screen/schermo.h"

namespace ambra {

class Lumwait : public Schermo {
  public:
    explicit Lumwait(Programma& p) : Schermo(p, "lumwait", "Lumeria Gestione condominio") {
        aggiungi("Label1", Label1);
        via_d_uscita = [] {};
    }
    Etichetta Label1;
};

}  // namespace ambra
