// The order of the reorganisation: what is kept of each document in memory, and its sort.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

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

}  // namespace ambra
