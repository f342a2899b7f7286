// Duplication: one supplier into all other buildings of the studio.
#pragma once

#include <functional>
#include <string>

#include "records/fornitore.h"
#include "screen/programma.h"

namespace ambra {

constexpr int kUltimoStabileDuplicato = 250;

/// The record number of the first supplier with the tax code of `quale` among the first `quanti`; blank
/// tax codes are equal too, and so are those of deleted suppliers. 0 if none.
int trova_codfis(FileDi<RecFornitore>& fornitori, int quanti, const Testo<16>& quale);

/// Adds the supplier to each building from 1 to 250 that exists, is not the current one and has no supplier
/// with its tax code. `avviso` is told the name of each building. A building whose counters cannot be read
/// is left as it is, and so is one that another program holds: false then, once all others are done.
bool duplica(Programma& prog, const RecFornitore& fornitore,
             const std::function<void(const std::string& stabile)>& avviso);

}  // namespace ambra
