// The split of the building's expenses: every condomino's share, from scratch, out of the balances of the
// accounts and the thousandths.
#pragma once

#include <array>
#include <functional>

#include "archivio/archivio.h"
#include "core/numeri.h"
#include "records/condomino.h"
#include "records/conto.h"
#include "records/tabelle.h"
#include "records/totali.h"

namespace ambra {

/// The records in hand of whoever works on the ledger files: where a read fails, what the next write stores.
struct BufferLedger {
    RecTotaliLedger totali{};
    RecConto conto{};
    RecCondomino condomino{};
    RecCondomino2 condomino2{};
};

/// What the voci 1 to 40 bring to the split: the balance of each, and the thousandths it is split by.
/// Index 0 is not used.
struct SaldiVoci {
    std::array<double, kVociSpesa + 1> saldo{};   ///< plain sum of the 99 balances, named or not, euro
    std::array<double, kVociSpesa + 1> totale{};  ///< total of the thousandths; 0: the voce takes no part
};

/// The share of one condomino, euro: each voce rounded on its own, then the whole by his days in the year.
double quota_condomino(const Cambio& cambio, const SaldiVoci& voci, const RecCondomino& c,
                       const RecCondomino2& c2);

/// Rewrites `dquota` of condomini 1 to `tcondomini`; of each record only the share is written, so that nobody
/// else's change to another field is undone. `avanti` runs once per condomino.
void calcquote(Archivio& arc, const Cambio& cambio, const TabellaVoci& tabella, BufferLedger& buffer,
               const std::function<void()>& avanti);

}  // namespace ambra
