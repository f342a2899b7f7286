// The storing of one posting: the movement, the two balances, a condomino's charges, everybody's shares.
#pragma once

#include <functional>

#include "core/numeri.h"
#include "ledger/quote.h"
#include "records/movimento.h"

namespace ambra {

/// Stores a movement of `voce` with its consequences, in one lock, and leaves the records in hand in
/// `buffer`. A step that fails is passed over. False: another program holds the accounts, and nothing was
/// written.
[[nodiscard]] bool registra_movimento(Archivio& arc, const Cambio& cambio, const TabellaVoci& tabella,
                                      int voce, int condomino, const RecMovimento& m, BufferLedger& buffer,
                                      const std::function<void()>& avanti);

}  // namespace ambra
