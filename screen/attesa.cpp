#include "screen/attesa.h"

#include "screen/programma.h"

namespace ambra {

int Attesa::attendi(Programma& prog, const std::optional<int>& esito) {
    while (!esito) prog.piattaforma.wait_event();
    return *esito;
}

}  // namespace ambra
