// When the tax withheld on payments must be paid over: payments in, terms out. Plain values, no archive.
//
// A condominium withholds 4 % from contractors and 20 % (or another rate) from professionals. What it
// withheld is cumulated over the months, each of the two families on its own, until a threshold makes it due
// or the law ends the wait. Which thresholds and dates held when stands in one table in the source.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "core/date.h"

namespace ambra {

using Centesimi = std::int64_t;

enum class Famiglia {
    lavori,    ///< 4 %: codes 1019 and 1020, one threshold for both
    compensi,  ///< fees, 20 % and any other rate: code 1040
};

/// Tax withheld on one payment, in the month of that payment. Negative on a credit note.
struct Trattenuta {
    Data pagata;
    Famiglia famiglia = Famiglia::lavori;
    Centesimi ritenuta = 0;
    std::optional<Data> versata = {};  ///< when it was paid over; it then counts for no later month
};

/// What must be paid over at one date.
struct Termine {
    Famiglia famiglia = Famiglia::lavori;
    Data scadenza;
    int dal_mese = 0, al_mese = 0;        ///< the months that it gathers (`numero_mese`), both included
    Centesimi importo = 0;                ///< sum of its payments, paid over or not
    std::vector<std::size_t> trattenute;  ///< their places in what was handed in, by month
};

enum class StatoTermine {
    scaduto,
    da_versare,
    in_formazione,  ///< further payments may bring it nearer, by the threshold
};

/// Months since year 0: January 2026 is 2026 × 12.
inline int numero_mese(const Data& d) {
    return d.anno * 12 + d.mese - 1;
}

/// Every payment in exactly one term, by date, contractors before fees. What was still owed at the end of a
/// month counts towards its threshold even if it was paid over since, so that a term stays where it is while
/// its documents are paid over one by one.
std::vector<Termine> termini(std::span<const Trattenuta> trattenute);
/// How a term stands on a day; a term of that very day is still to be paid.
StatoTermine stato(const Termine& t, const Data& oggi);
/// From which amount on a family's tax withheld in this year is due in the month after; 0 where each month is
/// due by itself.
Centesimi soglia(Famiglia f, int anno);

}  // namespace ambra
