// How long the open instalments of a document have been due at a date.
#pragma once

#include <array>

#include "core/date.h"
#include "ledger/ritenute_documento.h"
#include "records/fattura.h"

namespace ambra {

/// What is open, cents: not yet due, overdue by 1 to 30, 31 to 60, 61 to 90 and more days, without a date.
using Anzianita = std::array<Centesimi, 6>;

/// The instalments (due less paid) of a document by age; negative for a credit note, nothing for a document
/// that is deleted or paid to the cent. Due on the very day is not overdue.
Anzianita anzianita(const RecFattura& f, const Data& al);

}  // namespace ambra
