#include "forms/schermate.h"

#include "screen/registro.h"

namespace ambra {

void registra_forms(Registro&) {}

}  // namespace ambra
