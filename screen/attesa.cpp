#include "screen/attesa.h"

#include "screen/programma.h"

namespace ambra {

int Attesa::attendi(const std::optional<int>& esito) {
    while (!esito) chi_.prog.piattaforma.wait_event();
    return *esito;
}

}  // namespace ambra
