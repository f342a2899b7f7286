// The main of a benchmark: runs it, then prints each measure as so many times its floor or its peer.
#pragma once

#include <string>
#include <vector>

namespace ambra {

/// What `misura` takes as so many times what `metro` takes; "name" or "name/argument", as printed. Measures
/// that count items are compared by the item.
struct Rapporto {
    std::string misura, metro;
    double limite = 0;  ///< at most; 0: told for itself
};

/// Takes the arguments of the benchmark library. A pair of which one was filtered out is not printed.
int misura(int argc, char** argv, const std::vector<Rapporto>& rapporti);

}  // namespace ambra
