// RecCondomino, 596 bytes (lumNNN.cnd), and RecCondomino2, 2264 bytes (lumNNN.cn2): one owner of the
// building, the same record number in both. Written here: `dquota` and `daddebiti` alone.
#pragma once

#include <cstddef>

#include "core/campi.h"

namespace ambra {

struct RecCondomino {
    Testo<40> dnome;     // name shown in the pick list
    Grezzo<120> suite1;  // carried through
    Grezzo<2> suite2;    // carried through
    Grezzo<56> suite3;   // carried through
    Doppio dmill[20];    // thousandths of voci 1 to 20
    Grezzo<192> suite4;  // carried through
    Doppio dquota;       // share of the building's expenses, euro
    Grezzo<8> suite5;    // carried through
    Doppio daddebiti;    // running sum of the charges to this owner alone, euro
    Intero dstato;       // not 0: left out of the pick list
};
static_assert(sizeof(RecCondomino) == 596);
static_assert(offsetof(RecCondomino, suite1) == 40 && offsetof(RecCondomino, suite2) == 160);
static_assert(offsetof(RecCondomino, suite3) == 162 && offsetof(RecCondomino, dmill) == 218);
static_assert(offsetof(RecCondomino, suite4) == 378 && offsetof(RecCondomino, dquota) == 570);
static_assert(offsetof(RecCondomino, suite5) == 578 && offsetof(RecCondomino, daddebiti) == 586);
static_assert(offsetof(RecCondomino, dstato) == 594);

struct RecCondomino2 {
    Grezzo<1024> suite1;  // carried through
    Grezzo<216> suite2;   // carried through
    Doppio dmill[20];     // thousandths of voci 21 to 40
    Intero dgiorni;       // days, used by `dperiodo`
    Intero dperiodo;      // 1 or 2: the share is proportioned by `dgiorni` over 365
    Grezzo<860> suite3;   // carried through
};
static_assert(sizeof(RecCondomino2) == 2264);
static_assert(offsetof(RecCondomino2, suite2) == 1024 && offsetof(RecCondomino2, dmill) == 1240);
static_assert(offsetof(RecCondomino2, dgiorni) == 1400 && offsetof(RecCondomino2, dperiodo) == 1402);
static_assert(offsetof(RecCondomino2, suite3) == 1404);

}  // namespace ambra
