// What the arithmetic of a document gives, as one text.
#pragma once

#include <optional>
#include <string>

#include "core/testo.h"
#include "invoices/calcolo.h"

namespace ambra {

inline std::string testo(const std::optional<double>& x) {
    return x ? testo_numero(*x) : "-";
}
inline std::string testo(const std::optional<std::string>& x) {
    return x.value_or("-");
}
template <class T>
std::string unite(const T& quattro) {
    return unisci(testo(quattro[0]), " ", testo(quattro[1]), " ", testo(quattro[2]), " ", testo(quattro[3]));
}

}  // namespace ambra
