// The live suppliers of the building by what identifies them.
#pragma once

#include <map>
#include <string>

#include "archivio/archivio.h"
#include "invoices/fattura_letta.h"

namespace ambra {

class Anagrafe {
  public:
    /// As they stand now.
    explicit Anagrafe(Archivio& arc);
    /// The supplier's record, by VAT number, then fiscal code; a foreign one by the code of his country,
    /// with or without its letters. Never by name; 0 if he is not there.
    long cerca(const SoggettoLetto& s) const;

  private:
    using Codici = std::map<std::string, long>;
    Codici piva_, codfis_, codest_;
};

}  // namespace ambra
