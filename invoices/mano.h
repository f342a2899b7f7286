// The user's road through another screen, by the names of its controls: what is typed and clicked here is
// seen there, and confirmed by the user alone.
#pragma once

#include <string>
#include <string_view>

#include "screen/schermo.h"

namespace ambra {

class Mano {
  public:
    explicit Mano(Schermo& s) : schermo_(s) {}
    /// A name that the screen does not know is passed over in these.
    void digita(std::string_view campo, const std::string& testo);
    void clicca(std::string_view controllo);
    void scegli(std::string_view lista, int voce);
    /// The check box ends ticked, or not.
    void spunta(std::string_view casella, bool si);

  private:
    Schermo& schermo_;
};

}  // namespace ambra
