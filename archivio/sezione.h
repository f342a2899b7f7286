// The advisory locks of one building's archive: whoever reads a counter or a record and writes what follows
// from it holds the section of it from the read to the last write. Programs that do not lock notice nothing.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "core/disco.h"

namespace ambra {

/// The locks of one building as this program holds them.
class Serratura {
  public:
    /// The parts of an archive that are locked by themselves, always taken in this order.
    enum Parte { fornitori = 1, documenti = 2, conti = 3 };

    Serratura() = default;
    /// Locks stand on the counters' file `percorso`, whether it is there or not.
    Serratura(Disco& disco, std::string percorso) : disco_(&disco), percorso_(std::move(percorso)) {}

    /// Sections held, each as often as it was taken.
    const int& prese() const { return prese_; }
    /// Runs each time the last section was given back.
    std::function<void()> lasciate;

  private:
    friend class Sezione;
    bool prendi(Parte p);
    void lascia(Parte p);

    Disco* disco_ = nullptr;
    std::string percorso_;
    std::array<int, 4> quante_{};
    int prese_ = 0;
};

/// A section held for the length of a block. Waits up to 30 seconds for another program to give it back.
class [[nodiscard]] Sezione {
  public:
    Sezione(Serratura& s, Serratura::Parte p) : serratura_(s), parte_(p), presa_(s.prendi(p)) {}
    ~Sezione() {
        if (presa_) serratura_.lascia(parte_);
    }
    Sezione(const Sezione&) = delete;
    Sezione& operator=(const Sezione&) = delete;
    /// False: another program still holds it, and nothing may be written.
    bool presa() const { return presa_; }

  private:
    Serratura& serratura_;
    Serratura::Parte parte_;
    bool presa_;
};

}  // namespace ambra
