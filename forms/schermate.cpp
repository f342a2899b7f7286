#include "forms/schermate.h"

#include "forms/mrvlay.h"
#include "screen/registro.h"

namespace ambra {

void registra_forms(Registro& r) {
    r.registra<Mrvlay>("mrvlay");
}

}  // namespace ambra
