// What the upkeep of an archive writes: the yearly clearing, and the record limits set by hand.
#pragma once

#include <array>
#include <string_view>

#include "archivio/archivio.h"

namespace ambra {

/// Compacts the invoice file in one pass and one lock; documents registered before `limite` (yyyymmdd) go for
/// good, and everybody who looks at documents is told. Steps that fail are passed over. False: another
/// program holds the archive, and nothing was done.
[[nodiscard]] bool azzera_prima_di(Archivio& arc, std::string_view limite);

/// Writes the counters of suppliers and documents as given, whatever stands there by now: the way out when
/// they were lost. False: another program holds the archive.
[[nodiscard]] bool scrivi_limiti(Archivio& arc, const std::array<RecTotali, 2>& totali);

}  // namespace ambra
