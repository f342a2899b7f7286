// The reorganisation of the invoice file: drops what was deleted and puts the rest in order of registration
// date.
#pragma once

#include <cstddef>
#include <functional>
#include <string_view>
#include <vector>

#include "archivio/archivio.h"

namespace ambra {

/// The table has room for this many documents; a longer archive cannot be reorganised.
constexpr std::size_t kMassimoRiordino = 10000;

/// One document of the table.
struct VoceRiordino {
    int rec = 0;      ///< its record before the reorganisation
    long chiave = 0;  ///< its registration date, the stored digits read as a number
};

/// The sort key of a stored registration date.
long chiave_riordino(std::string_view datareg);
/// Ascending by key; documents of one day keep their mutual order.
void ordina_voci(std::vector<VoceRiordino>& voci);

/// What came of a reorganisation: done, not begun, or the stage that failed.
enum class EsitoRiordino { fatto, occupato, caricamento, ordinamento, duplicazione, apertura, salvataggio };

/// Reorganises in one lock and tells everybody who looks at documents. A failing step is passed over and a
/// stage judged at its end: the error number tells why it failed. `totali` and `fattura` are the records in
/// hand. `avanti` lets the display draw.
[[nodiscard]] EsitoRiordino riordina(Archivio& arc, RecTotali& totali, RecFattura& fattura,
                                     const std::function<void()>& avanti);

}  // namespace ambra
