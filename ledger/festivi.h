// The days on which nothing is paid: Saturdays, Sundays and the holidays of the State, computed for any year.
#pragma once

#include "core/date.h"

namespace ambra {

/// Easter Sunday of the Gregorian calendar.
Data pasqua(int anno);
/// A holiday of the State that may fall on a weekday; Sundays are not told. 4 October is one from 2026.
bool festivo(const Data& d);
/// The day itself, or the first one after it that is neither Saturday, Sunday nor holiday.
Data giorno_lavorativo(Data d);

}  // namespace ambra
