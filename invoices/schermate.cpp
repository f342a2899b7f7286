#include "invoices/schermate.h"

#include "invoices/lumftea.h"
#include "invoices/mrvtiva.h"
#include "invoices/mrvtpag.h"
#include "invoices/mrvxml.h"
#include "screen/registro.h"

namespace ambra {

void registra_invoices(Registro& r) {
    r.registra<Lumftea>("lumftea", {.vuole_documento = true});
    r.registra<Mrvtiva>("mrvtiva");
    r.registra<Mrvtpag>("mrvtpag");
    r.registra<Mrvxml>("mrvxml", {.strumento = "Fatture elettroniche", .posto = 1});
}

}  // namespace ambra
