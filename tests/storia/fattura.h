// An electronic invoice written by a story in a few short lines.
#pragma once

#include <string>

namespace ambra::storia {

/// The XML that these lines mean; each begins with its kind, words stand apart by blanks, "-" is nothing:
///   fornitore COUNTRY VAT FISCAL_CODE REGIME Denomination | Surname/Name
///   sede CAP PROVINCE Town, Street, Number
///   cliente FISCAL_CODE Denomination
///   documento TYPE NUMBER DATE TOTAL       a second one begins a second body
///   ritenuta KIND AMOUNT RATE
///   cassa AMOUNT RATE SI|-
///   linea AMOUNT RATE SI|- NATURE Description
///   riepilogo RATE TAXABLE VAT NATURE
///   arrotondamento AMOUNT
///   pagamento DATE AMOUNT
///   pdf TEXT                               a PDF that holds this text, attached
std::string fattura_xml(const std::string& righe);

}  // namespace ambra::storia
