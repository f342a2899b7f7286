#include "maintenance/schermate.h"

#include "screen/registro.h"

namespace ambra {

void registra_maintenance(Registro&) {}

}  // namespace ambra
