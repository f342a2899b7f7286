#include "invoices/schermate.h"

#include "invoices/lumftea.h"
#include "screen/registro.h"

namespace ambra {

void registra_invoices(Registro& r) {
    r.registra<Lumftea>("lumftea");
}

}  // namespace ambra
