#include "maintenance/schermate.h"

#include "maintenance/mrvaazz.h"
#include "maintenance/mrvaind.h"
#include "screen/registro.h"

namespace ambra {

void registra_maintenance(Registro& r) {
    r.registra<Mrvaazz>("mrvaazz");
    r.registra<Mrvaind>("mrvaind");
}

}  // namespace ambra
