// An archive of documents at random, and whether a reorganisation that died has lost one.
#pragma once

#include <algorithm>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "tests/worklist/banco_riordino.h"

namespace ambra {

inline std::map<std::string, int> conta(const std::string& file) {
    std::map<std::string, int> r;
    for (std::size_t i = 0; i + sizeof(RecFattura) <= file.size(); i += sizeof(RecFattura))
        ++r[file.substr(i, sizeof(RecFattura))];
    return r;
}

inline bool tiene_tutto(const std::string& file, const std::map<std::string, int>& vivi) {
    auto ora = conta(file);
    return std::all_of(vivi.begin(), vivi.end(), [&](const auto& v) { return ora[v.first] >= v.second; });
}

inline std::vector<RecFattura> archivio_a_caso(std::mt19937& caso, int quante) {
    std::vector<RecFattura> r;
    for (int i = 0; i < quante; ++i) {
        const int giorno = std::uniform_int_distribution<>(1, 28)(caso);
        const int mese = std::uniform_int_distribution<>(1, 12)(caso);
        r.push_back(documento(std::to_string(i), "2023" + con_zeri(mese, 2) + con_zeri(giorno, 2),
                              std::uniform_int_distribution<>(0, 9)(caso) == 0));
    }
    return r;
}

inline std::map<std::string, int> vivi_di(const std::vector<RecFattura>& tutte) {
    std::map<std::string, int> r;
    for (const auto& f : tutte)
        if (f.cancellata != 1) ++r[byte_di(f)];
    return r;
}

}  // namespace ambra
