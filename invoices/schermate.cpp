#include "invoices/schermate.h"

#include "screen/registro.h"

namespace ambra {

void registra_invoices(Registro&) {}

}  // namespace ambra
