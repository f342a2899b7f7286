// The supplier of an electronic invoice as the register would hold him.
#pragma once

#include <array>
#include <string>

#include "core/date.h"
#include "invoices/fattura_letta.h"

namespace ambra {

/// Fields of the supplier register; Windows-1252, each as long as it may be.
struct DatiFornitore {
    std::array<std::string, 24> testi;  ///< by the number of the field, `Text2(0)` ...
    bool fisica = false, nonres = false, femmina = false;
};
/// `oggi` tells the century of a birth.
DatiFornitore dati_fornitore(const SoggettoLetto& s, const Data& oggi);

/// Whether the VAT number is another country's.
bool straniero(const SoggettoLetto& s);
/// The Italian name of a country by its two letters; these themselves where we have none.
std::string nome_stato(const std::string& sigla);

}  // namespace ambra
