// The tax withheld by a document, as it was withheld: payment by payment.
#pragma once

#include <array>
#include <optional>

#include "core/date.h"
#include "ledger/termini_ritenute.h"
#include "records/fattura.h"
#include "records/fornitore.h"

namespace ambra {

/// An amount in euro as cents, rounded half away from zero; what is no amount (below a thousand million in
/// size) is 0.
Centesimi centesimi(double euro);
/// A stored ddmmyyyy date; nothing unless it is eight digits and a real day.
std::optional<Data> data_memorizzata(const Testo<8>& d);

/// One instalment's payments: the archive keeps their sum and the last date.
struct PagamentoRata {
    std::optional<Data> data;  ///< nothing: paid, and nobody knows when
    Centesimi pagato = 0;
};
/// The payments of a document, one an instalment at most.
struct PagamentiDocumento {
    std::array<PagamentoRata, 4> rata;
    std::size_t quanti = 0;
    Centesimi dovuto = 0, pagato = 0;  ///< sums of all instalments
    /// Everything due has been paid, to the cent.
    bool saldato() const { return pagato >= dovuto; }
};
/// In the order in which shares are dealt: without a date first, then by date, then by instalment.
PagamentiDocumento pagamenti(const RecFattura& f);
/// Deals `quanto`, an amount of the document as it stands in the record, to its payments: each its share of
/// the sum of the instalments, half up; never more than `quanto` in all; what is left goes with the last
/// payment of a settled document.
std::array<Centesimi, 4> quote(const PagamentiDocumento& p, Centesimi quanto);

/// 4 % where the tax is within 5 cents of 4 % of the taxable amounts that it stands beside.
Famiglia famiglia(const RecFattura& f);

enum class CodiceTributo { persone = 1019, societa = 1020, compensi = 1040 };
/// Who a supplier is to the treasury.
struct Percettore {
    bool persona = false;         ///< income tax of persons; else of companies
    bool da_controllare = false;  ///< only his name says so: a partnership
};
Percettore percettore(const RecFornitore& f);
CodiceTributo codice_tributo(Famiglia f, const Percettore& p);

}  // namespace ambra
