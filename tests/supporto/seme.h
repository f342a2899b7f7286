// The seed of a random test: the same at every run, unless AMBRA_SEME gives another ("caso": a new one each
// time). It is printed, so that a failure can be had again.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <random>
#include <string>

namespace ambra {

inline std::uint32_t seme_di_prova() {
    const char* s = std::getenv("AMBRA_SEME");
    std::uint32_t seme = 20240315;
    if (s)
        seme = std::string(s) == "caso" ? std::random_device{}() : static_cast<std::uint32_t>(std::atoll(s));
    std::cout << "seme " << seme << '\n';
    return seme;
}

}  // namespace ambra
