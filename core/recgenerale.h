// lumeria.gnr: the general record of the suite, one record of 402 bytes. Only `pdfdir` is used here.
#pragma once

#include <cstddef>

#include "core/campi.h"

namespace ambra {

struct RecGenerale {
    Intero gen[6];         // gen1 to gen6: the suite's own
    Grezzo<6> riservati;   //
    Doppio col[14];        // col1 to col14: colours of the suite's screens, RGB
    Doppio altri[9];       // the suite's own
    Testo<100> pdfdir;     // folder of the PDF documents
    Testo<100> riservato;  //
};
static_assert(sizeof(RecGenerale) == 402);
static_assert(offsetof(RecGenerale, riservati) == 12 && offsetof(RecGenerale, col) == 18);
static_assert(offsetof(RecGenerale, altri) == 130 && offsetof(RecGenerale, pdfdir) == 202);
static_assert(offsetof(RecGenerale, riservato) == 302);

}  // namespace ambra
