#include "ledger/schermate.h"

#include "ledger/lumcer.h"
#include "ledger/luminca.h"
#include "ledger/lumincx.h"
#include "ledger/lumpgr.h"
#include "ledger/lumstca.h"
#include "ledger/lumstcr.h"
#include "ledger/mrvcal.h"
#include "ledger/mrvcau.h"
#include "screen/registro.h"

namespace ambra {

namespace {

void nuovo_versamento(Programma& p) {
    p.tornada = -99;
}

}  // namespace

void registra_ledger(Registro& r) {
    r.registra<Lumcer>("lumcer");
    r.registra<Luminca>("luminca", {.vuole_documento = true});
    r.registra<Lumincx>("lumincx", {.vuole_documento = true});
    r.registra<Lumpgr>("lumpgr", {.prepara = nuovo_versamento});
    r.registra<Lumstca>("lumstca");
    r.registra<Lumstcr>("lumstcr");
    r.registra<Mrvcal>("mrvcal", {.strumento = "Scadenze delle ritenute", .posto = 2});
    r.registra<Mrvcau>("mrvcau");
}

}  // namespace ambra
