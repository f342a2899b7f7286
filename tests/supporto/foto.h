// What the archive's folder of a disc in memory holds.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "core/impostazioni.h"
#include "tests/supporto/disco_memoria.h"

namespace ambra {

using Foto = std::map<std::string, std::string>;  ///< content by name

inline Foto foto(DiscoMemoria& d) {
    std::vector<std::string> nomi;
    d.elenca(kCartella, nomi);
    Foto f;
    for (const auto& n : nomi) f[n] = d.contenuto(kCartella + n);
    return f;
}

}  // namespace ambra
