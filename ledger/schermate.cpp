#include "ledger/schermate.h"

#include "ledger/lumincx.h"
#include "screen/registro.h"

namespace ambra {

void registra_ledger(Registro& r) {
    r.registra<Lumincx>("lumincx");
}

}  // namespace ambra
