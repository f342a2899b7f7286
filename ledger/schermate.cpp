#include "ledger/schermate.h"

#include "screen/registro.h"

namespace ambra {

void registra_ledger(Registro&) {}

}  // namespace ambra
