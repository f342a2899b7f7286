#include "ledger/schermate.h"

#include "ledger/luminca.h"
#include "ledger/lumincx.h"
#include "ledger/lumpgr.h"
#include "screen/registro.h"

namespace ambra {

void registra_ledger(Registro& r) {
    r.registra<Luminca>("luminca");
    r.registra<Lumincx>("lumincx");
    r.registra<Lumpgr>("lumpgr");
}

}  // namespace ambra
