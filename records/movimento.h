// RecMovimento, 154 bytes: one movement of the journal (lumNNN.mov). Only appended.
#pragma once

#include <cstddef>

#include "core/campi.h"

namespace ambra {

struct RecMovimento {
    Testo<6> mdata;      // date, YYMMDD
    Testo<40> mdesc[3];  // description
    Intero mconto;       // account, a record number of .pia
    Intero mcondomino;   // condomino charged; 0 for the whole building
    Intero zero1;        // always 0
    Intero zero2;        // always 0
    Doppio mimporto;     // signed amount as typed, not rounded, euro
    Intero mtipo;        // 0 for voci up to 40, 2 above
    Intero mcontrop;     // counter-account, 1 to 99
    Grezzo<6> vuoto;     // never assigned: zero bytes in a fresh record
    Intero zero3;        // always 0
};
static_assert(sizeof(RecMovimento) == 154);
static_assert(offsetof(RecMovimento, mdesc) == 6 && offsetof(RecMovimento, mconto) == 126);
static_assert(offsetof(RecMovimento, mcondomino) == 128 && offsetof(RecMovimento, zero1) == 130);
static_assert(offsetof(RecMovimento, zero2) == 132 && offsetof(RecMovimento, mimporto) == 134);
static_assert(offsetof(RecMovimento, mtipo) == 142 && offsetof(RecMovimento, mcontrop) == 144);
static_assert(offsetof(RecMovimento, vuoto) == 146 && offsetof(RecMovimento, zero3) == 152);

}  // namespace ambra
