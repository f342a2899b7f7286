// All screens of the system, for the programs that run it.
#pragma once

#include "screen/registro.h"

namespace ambra {

void registra_tutte(Registro& r);

}  // namespace ambra
