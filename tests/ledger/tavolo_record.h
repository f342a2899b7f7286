// Records of a file held in memory, by number.
#pragma once

#include <cstring>
#include <string>

#include "records/condomino.h"
#include "records/conto.h"
#include "records/movimento.h"
#include "tests/supporto/banco.h"

namespace ambra {

/// Record `n` of a file of the archive.
template <class R>
R record_di(const std::string& file, std::size_t n) {
    R r{};
    const std::string b = file.substr((n - 1) * sizeof r, sizeof r);
    std::memcpy(&r, b.data(), b.size());
    return r;
}

template <class R>
void metti_record(std::string& file, std::size_t n, const R& r) {
    if (file.size() < n * sizeof r) file.resize(n * sizeof r, '\0');
    file.replace((n - 1) * sizeof r, sizeof r, byte_di(r));
}

/// The file with a field of each of its records blanked: what may not change is then equal.
template <class R, class F>
std::string senza(const std::string& file, F cancella) {
    std::string s = file;
    for (std::size_t n = 1; n * sizeof(R) <= s.size(); ++n) {
        R r = record_di<R>(s, n);
        cancella(r);
        metti_record(s, n, r);
    }
    return s;
}

}  // namespace ambra
