#include "forms/schermate.h"

#include "forms/lumstce.h"
#include "forms/mrvlay.h"
#include "forms/mrvteti.h"
#include "screen/registro.h"

namespace ambra {

void registra_forms(Registro& r) {
    r.registra<Lumstce>("lumstce");
    r.registra<Mrvlay>("mrvlay");
    r.registra<Mrvteti>("mrvteti");
}

}  // namespace ambra
