// The arithmetic of a received document: from the amounts typed to VAT, withholding, totals, instalments and
// their due dates. Plain functions on plain values; the screen only fetches and shows the texts.
//
// Amounts are in the currency of the archive. Every result is a proposal that the user may overtype.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "core/date.h"
#include "core/numeri.h"
#include "records/fattura.h"

namespace ambra {

constexpr std::size_t kCodiciIva = 8;

/// What one taxable amount brings with it.
struct RigaIva {
    double iva = 0;
    std::optional<double> ritenuta;  ///< nothing: the code carries no withholding, a typed one stands
};
/// VAT and withholding of `imponibile`, each rounded for itself. Both rates in per cent; the taxable amount
/// alone is the base of both.
RigaIva riga_iva(const Cambio& cambio, double aliquota, double aliquota_ritenuta, double imponibile);

/// The detail of a document by VAT code and, for `esent`, by exemption code.
struct Dettaglio {
    std::array<double, kCodiciIva> impon{}, ivai{}, esent{}, rac{};
};
/// Its plain sums; nothing is rounded.
struct Somme {
    double impon = 0, ivai = 0, esent = 0, rac = 0;
    double totale = 0;  ///< of the document: VAT, taxable and exempt amounts
    double netto() const { return totale - rac; }
};
Somme calctot(const Dettaglio& d);

/// A payment term, read from its 16-character code.
struct Termine {
    std::array<int, kRate> mesi{};  ///< from the document to each instalment; 0 in the last three: none
    bool fine = false;              ///< due dates move to the end of the month
    int giorni = 0;                 ///< and this many days into the next one
    /// Instalments counted; a gap in the groups does not end the count.
    int rate() const;
};
/// A short or empty code is one instalment on the document date.
Termine termine_di(std::string_view codice);

/// Amounts of the instalments; one that is not in the term is left as it stands.
using Importi = std::array<std::optional<double>, kRate>;
/// Splits the net evenly, each instalment rounded; the first absorbs what rounding leaves over.
Importi calcrate(const Cambio& cambio, const Termine& t, double netto);

/// One due date, "dd/mm/yyyy". February has 29 days in every year divisible by 4, and days into the next
/// month are not checked against its length: the result may be no date.
std::string datascad(const Data& documento, int mesi, bool fine, int giorni);
/// Due dates of the instalments; nothing where the term has none.
using Scadenze = std::array<std::optional<std::string>, kRate>;
Scadenze calcscad(const Termine& t, const Data& documento);

}  // namespace ambra
