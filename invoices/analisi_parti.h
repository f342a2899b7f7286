// The steps of `analizza`, in their order; each fills its part of the analysis from what stands before it.
#pragma once

#include "invoices/analisi.h"

namespace ambra::passi {

/// Decimal text; what cannot be read counts as nothing.
Decimale importo(const std::string& testo);
/// Whether an amount is not zero.
inline bool c_e(Decimale x) {
    return x != Decimale();
}

/// Sums by rate and by Natura, the VAT that is split.
void somme(const FatturaLetta& f, Analisi& a);
/// Makes what was summed positive.
void volta(Analisi& a);
/// Withheld tax, contributions, the base. `voltata`: the document was below zero.
void ritenute(const FatturaLetta& f, bool voltata, Analisi& a);
/// Instalments, once the net is known.
void rate(const FatturaLetta& f, Analisi& a);

}  // namespace ambra::passi
