// RecProspetto, 135 bytes: one certificate prospect (lumoral.tot), records 1 to 99. Only read.
#pragma once

#include <cstddef>

#include "core/campi.h"

namespace ambra {

struct RecProspetto {
    Testo<40> nomeprosp;  // name of the prospect
    Testo<40> testo2;     // not ours
    Testo<40> testo3;     // not ours
    Grezzo<12> byte4;     // not ours
    Testo<3> numprosp;    // its number as digits; 0 or less marks a free record
};
static_assert(sizeof(RecProspetto) == 135);
static_assert(offsetof(RecProspetto, testo2) == 40 && offsetof(RecProspetto, testo3) == 80);
static_assert(offsetof(RecProspetto, byte4) == 120 && offsetof(RecProspetto, numprosp) == 132);

}  // namespace ambra
