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
    /// Reads `lumora.tt2`; a drive without it has no buildings. Of several with one code it is `questo`, else
    /// the first.
    explicit StabiliDrive(Disco& disco, int questo = 0);
    /// The building's number, by the customer's fiscal code, then his VAT number; 0 if it is none of them.
    int di(const SoggettoLetto& cliente) const;

  private:
    std::map<std::string, int> per_codice_;
};

}  // namespace ambra
