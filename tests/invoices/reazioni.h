// The invoice screen with its dates and instalments as one text each.
#pragma once

#include "core/testo.h"
#include "tests/invoices/studio.h"

namespace ambra {

class Reazioni : public Studio {
  protected:
    static std::string date(Lumftea& s) {
        return unisci(s.dsca[0].testo(), " ", s.dsca[1].testo(), " ", s.dsca[2].testo(), " ",
                      s.dsca[3].testo());
    }
    static std::string importi(Lumftea& s) {
        return unisci(s.sca[0].testo(), " ", s.sca[1].testo(), " ", s.sca[2].testo(), " ", s.sca[3].testo());
    }
};

}  // namespace ambra
