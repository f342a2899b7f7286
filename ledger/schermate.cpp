#include "ledger/schermate.h"

#include "ledger/lumcer.h"
#include "ledger/luminca.h"
#include "ledger/lumincx.h"
#include "ledger/lumpgr.h"
#include "ledger/lumstca.h"
#include "ledger/lumstcr.h"
#include "screen/registro.h"

namespace ambra {

void registra_ledger(Registro& r) {
    r.registra<Lumcer>("lumcer");
    r.registra<Luminca>("luminca");
    r.registra<Lumincx>("lumincx");
    r.registra<Lumpgr>("lumpgr");
    r.registra<Lumstca>("lumstca");
    r.registra<Lumstcr>("lumstcr");
}

}  // namespace ambra
