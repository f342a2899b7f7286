#include "suppliers/schermate.h"

#include "screen/registro.h"

namespace ambra {

void registra_suppliers(Registro&) {}

}  // namespace ambra
