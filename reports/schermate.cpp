#include "reports/schermate.h"

#include "screen/registro.h"

namespace ambra {

void registra_reports(Registro&) {}

}  // namespace ambra
