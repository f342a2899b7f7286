// A screen that waits for the outcome of another. While it waits its own commands and lists do nothing, and
// opening it again only brings it to the front; everything else of the program lives on.
#pragma once

#include <optional>

#include "screen/schermo.h"

namespace ambra {

class Attesa {
  public:
    explicit Attesa(Schermo& chi) : chi_(chi) { ++chi_.attese_; }
    ~Attesa() { --chi_.attese_; }
    Attesa(const Attesa&) = delete;
    Attesa& operator=(const Attesa&) = delete;

    /// Gives way to events until `esito`, which the other screen sets, has a value.
    static int attendi(Programma& prog, const std::optional<int>& esito);

  private:
    Schermo& chi_;
};

}  // namespace ambra
