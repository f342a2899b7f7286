#include "suppliers/schermate.h"

#include "screen/registro.h"
#include "suppliers/lumfor.h"
#include "suppliers/lumftem.h"
#include "suppliers/lumwait.h"
#include "suppliers/mrvsel.h"

namespace ambra {

namespace {

// The picker of the supplier is the first step of a new document.
void nuova_fattura(Programma& p) {
    p.tornada = -99;
    p.modofattura = p.recfattura = p.recfornitore = p.statofattura = 0;
    p.nuovafattura = 1;
}

}  // namespace

void registra_suppliers(Registro& r) {
    r.registra<Lumfor>("lumfor");
    r.registra<Lumftem>("lumftem", {.prepara = nuova_fattura});
    r.registra<Lumwait>("lumwait");
    r.registra<Mrvsel>("mrvsel");
}

}  // namespace ambra
