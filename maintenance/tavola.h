// Numbers kept by a key, all in one piece of memory: tens of thousands of them are asked for one by one, and
// where each lies in a place of its own most of the time goes into fetching them.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

namespace ambra {

class Tavola {
  public:
    /// For `quante` keys at most.
    explicit Tavola(long quante = 0)
        : bit_(static_cast<int>(std::bit_width(static_cast<std::size_t>(quante) * 4 / 3 + 1))),
          caselle_(std::size_t{1} << bit_) {}
    /// The number under `chiave`, made as 0 where there is none.
    long& operator[](std::uint64_t chiave) {
        Casella& c = casella(chiave);
        if (c.numero == kLibera) c = {chiave, 0};
        return c.numero;
    }
    /// The number under `chiave`, nullptr where there is none.
    long* cerca(std::uint64_t chiave) {
        Casella& c = casella(chiave);
        return c.numero == kLibera ? nullptr : &c.numero;
    }

  private:
    static constexpr long kLibera = std::numeric_limits<long>::min();
    struct Casella {
        std::uint64_t chiave = 0;
        long numero = kLibera;
    };
    // Where the key is, or would go: the first free place from its own on. There is always one.
    Casella& casella(std::uint64_t chiave) {
        std::size_t i = chiave * 0x9E3779B97F4A7C15ULL >> (64 - bit_);
        while (caselle_[i].numero != kLibera && caselle_[i].chiave != chiave)
            i = (i + 1) & (caselle_.size() - 1);
        return caselle_[i];
    }

    int bit_;
    std::vector<Casella> caselle_;
};

}  // namespace ambra
