// The order of the supplier index, byte for byte that of the archive's own shell sort: names that are equal
// end where its comparisons put them. The records are sorted in memory and written back at once.
#pragma once

#include <functional>
#include <span>

#include "archivio/archivio.h"

namespace ambra {

/// Passes of the sort over `n` names: the whole part of log2(n), 0 for none.
int passate(int n);

/// Sorts by the 40 bytes of the name. `passata` is told each pass, from 1, before it begins.
void ordina_nomi(std::span<RecNome> nomi, const std::function<void(int passata)>& passata);

/// Sorts the first `n` records of the index. Only what changed place is written. False: it cannot be read, or
/// was refused.
bool ordina_indice(FileDi<RecNome>& srf, int n, const std::function<void(int passata)>& passata);

/// The same under the lock of the archive, and the counters say whether it is in order now.
void ordina_indice(Archivio& arc, int n, const std::function<void(int passata)>& passata);

/// Writes the first `n` records of the index anew from the suppliers, in record order, under the lock;
/// `fornitore` is the record in hand before the first. `scritto` is told each record.
void rifai_indice(Archivio& arc, int n, RecFornitore fornitore,
                  const std::function<void(int record)>& scritto);

}  // namespace ambra
