#include "invoices/schermate.h"

#include "invoices/lumftea.h"
#include "invoices/mrvtiva.h"
#include "invoices/mrvtpag.h"
#include "screen/registro.h"

namespace ambra {

void registra_invoices(Registro& r) {
    r.registra<Lumftea>("lumftea", {.vuole_documento = true});
    r.registra<Mrvtiva>("mrvtiva");
    r.registra<Mrvtpag>("mrvtpag");
}

}  // namespace ambra
