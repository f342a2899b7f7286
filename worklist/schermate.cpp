#include "worklist/schermate.h"

#include "screen/registro.h"
#include "worklist/vexoraf.h"

namespace ambra {

void registra_worklist(Registro& r) {
    r.registra<Vexoraf>("vexoraf");
}

}  // namespace ambra
