#include "reports/schermate.h"

#include "core/testo.h"
#include "reports/lumstcd.h"
#include "reports/lumstcf.h"
#include "reports/lumstcs.h"
#include "reports/lumstct.h"
#include "reports/lumstcx.h"
#include "reports/lumstcy.h"
#include "reports/mrvanz.h"
#include "screen/registro.h"

namespace ambra {

void registra_reports(Registro& r) {
    r.registra<Lumstct>("lumstct");
    r.registra<Lumstcs>("lumstcs");
    r.registra<Lumstcf>("lumstcf");
    r.registra<Lumstcd>("lumstcd");
    r.registra<Lumstcx>("lumstcx");
    r.registra<Lumstcy>("lumstcy");
    r.registra<Mrvanz>("mrvanz", {.strumento = "Scoperto per anzianità"_it, .posto = 3});
}

}  // namespace ambra
