#include "qt/tutte.h"

#include "forms/schermate.h"
#include "invoices/schermate.h"
#include "ledger/schermate.h"
#include "maintenance/schermate.h"
#include "reports/schermate.h"
#include "suppliers/schermate.h"
#include "worklist/schermate.h"

namespace ambra {

void registra_tutte(Registro& r) {
    registra_worklist(r);
    registra_suppliers(r);
    registra_invoices(r);
    registra_ledger(r);
    registra_reports(r);
    registra_forms(r);
    registra_maintenance(r);
}

}  // namespace ambra
