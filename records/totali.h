// RecTotali, 28 bytes: the counters of suppliers and invoices (lumNNN.tfr) and of the ledger (lumNNN.tot).
#pragma once

#include <cstddef>

#include "core/campi.h"

namespace ambra {

/// lumNNN.tfr: record 1 counts suppliers, record 2 invoices; records 3 to 5 are not used.
struct RecTotali {
    Intero parola[3];  // 0 count of records, deleted ones included; 1 index dirty; 2 set by deletions
    Grezzo<22> resto;  // carried through
};
static_assert(sizeof(RecTotali) == 28 && offsetof(RecTotali, resto) == 6);

/// lumNNN.tot: the same record as the ledger reads it, one record, number 1.
struct RecTotaliLedger {
    Intero tcondomini;  // records of .cnd, .cn2 and .cns
    Grezzo<4> suite1;   // carried through
    Intero tmovimenti;  // movements in .mov
    Grezzo<20> suite2;  // carried through
};
static_assert(sizeof(RecTotaliLedger) == 28 && offsetof(RecTotaliLedger, suite1) == 2);
static_assert(offsetof(RecTotaliLedger, tmovimenti) == 6 && offsetof(RecTotaliLedger, suite2) == 8);

}  // namespace ambra
