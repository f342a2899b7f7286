// The rule of a failed read, told here once: what is in hand stays.
//
// The record keeps what it held, the error number says what happened, and whoever reads goes on with that: a
// walk repeats the record before, a screen keeps what it shows, a rewrite stores it. Where that will not do,
// `leggi` says whether it worked and its caller looks.
#pragma once

#include "core/filerecord.h"

namespace ambra {

/// Reads record `n` of a file into `record`, which stays as it is if that fails.
template <class R>
void leggi_o_resta(FileDi<R>& f, long n, R& record) {
    (void)leggi(f, n, record);
}

/// The same out of a pass or a card box.
template <class P, class R>
void leggi_o_resta(P& passata, long n, R& record) {
    (void)passata.leggi(n, record);
}

/// The same without the copy: `vista` stays on the record before.
template <class P, class R>
void vedi_o_resta(P& passata, long n, const R*& vista) {
    if (const R* r = passata.vista(n)) vista = r;
}

}  // namespace ambra
