// Whose building a document is.
#pragma once

#include <map>
#include <string>

#include "core/disco.h"
#include "invoices/fattura_letta.h"

namespace ambra {

/// The buildings of a drive by their fiscal code, as they stood when this was made.
class StabiliDrive {
  public:
    /// Reads `lumora.tt2`; a drive without it has no buildings.
    explicit StabiliDrive(Disco& disco);
    /// The building's number, by the customer's fiscal code or VAT number; 0 if it is none of them.
    int di(const SoggettoLetto& cliente) const;

  private:
    std::map<std::string, int> per_codice_;
};

}  // namespace ambra
