#include "suppliers/schermate.h"

#include "screen/registro.h"
#include "suppliers/lumfor.h"
#include "suppliers/lumftem.h"
#include "suppliers/lumwait.h"
#include "suppliers/mrvsel.h"

namespace ambra {

void registra_suppliers(Registro& r) {
    r.registra<Lumfor>("lumfor");
    r.registra<Lumftem>("lumftem", {.prepara = nuova_fattura});
    r.registra<Lumwait>("lumwait");
    r.registra<Mrvsel>("mrvsel");
}

}  // namespace ambra
