// The XML files of an archive, parsed beside its unpacking, on as many threads as the machine has; what they
// gave comes out in the order of the archive.
#pragma once

#include <deque>
#include <functional>
#include <future>
#include <string>
#include <vector>

#include "fatturapa/documento.h"

namespace ambra::fatturapa {

/// One XML file, or what is known of an entry that is none.
struct Foglio {
    std::string byte;  ///< to be parsed; empty once they were
    Origine origine;
    Xml esito;        ///< of its parsing, or what it is without
    FileLetto letto;  ///< its documents
};

class Fogli {
  public:
    explicit Fogli(std::function<void(Foglio&)> raccogli) : raccogli_(std::move(raccogli)) {}

    /// Takes the next one; some that were parsed meanwhile may be handed to `raccogli`.
    void aggiungi(Foglio foglio);
    /// Hands over all that are left.
    void finisci();

  private:
    using Mazzo = std::vector<Foglio>;
    void parti();
    void atterra();

    std::function<void(Foglio&)> raccogli_;
    Mazzo mazzo_;
    std::size_t byte_ = 0;  // of those not yet on their way
    std::deque<std::future<Mazzo>> in_volo_;
};

}  // namespace ambra::fatturapa
