// Two programs on one archive, a step of the one between two steps of the other.
//
// A test proves a pair of actions like this:
//
//     per_ogni_passo([&](long k) {
//         DiscoMemoria d1;                              // a fresh archive, laid out the same each time
//         DiscoMemoria d2 = d1.altro_programma();
//         ...                                           // a program on d1 and one on d2, both opened
//         const Corsa c = intreccia(d1, [&] { uno.conferma(); }, d2, [&] { due.conferma(); }, k);
//         ...                                           // nothing may be lost
//         return c;
//     });
//
// k = 1 is "the second program before the first"; the last k is "the first before the second".
#pragma once

#include <functional>

#include "tests/supporto/disco_memoria.h"

namespace ambra {

/// What the second action does where it finds a lock held by the first.
enum class SeOccupato {
    aspetta,  ///< stands still until the first gives a lock back, goes on right there
    rinuncia  ///< is told at once that the lock is still held
};

/// How the two actions met.
struct Corsa {
    bool in_mezzo = false;  ///< the first had a k-th operation, and the second began right before it
    bool occupato = false;  ///< the second found a lock of the first held
    bool fermata = false;   ///< the second had a j-th operation, and stood still before it
};

/// Runs the action `a` of the program on `da`; right before its `k`-th operation on the disc (from 1), or
/// after it when it has fewer, the action `b` of the program on `db` runs, whole. With `j` above 0 it stands
/// still before its own `j`-th operation until `a` has ended, or waits for a lock of `b`. An action that
/// waits for a lock which nobody will give back is told that it is held. Only one of the two runs at any
/// time. `prima_di`, `liberato` and `occupato` of both discs are taken for it and empty afterwards. What an
/// action throws comes out here, once both have ended.
Corsa intreccia(DiscoMemoria& da, const std::function<void()>& a, DiscoMemoria& db,
                const std::function<void()>& b, long k, SeOccupato se = SeOccupato::aspetta, long j = 0);

/// Calls `scena(k)`, which gives what `intreccia` gave, for k = 1, 2, … until the second action no longer
/// falls into the first. Gives the number of operations that the first one has.
long per_ogni_passo(const std::function<Corsa(long k)>& scena);

}  // namespace ambra
