// The control words of rich text that the reader understands, each with what it does.
#pragma once

#include <algorithm>
#include <optional>
#include <string_view>
#include <unordered_map>

namespace ambra::rtf {

class StatoLettura;

/// What follows a control word.
using Numero = std::optional<int>;
using TavolaParole = std::unordered_map<std::string_view, void (*)(StatoLettura&, Numero)>;

/// Adds the words of tables, borders, the sheet and pictures.
void parole_di_tabelle(TavolaParole& t);

inline int twip(Numero n, int altrimenti = 0) {
    constexpr int kMassimi = 100000;
    return std::clamp(n.value_or(altrimenti), -kMassimi, kMassimi);
}

inline bool acceso(Numero n) {
    return n.value_or(1) != 0;
}

}  // namespace ambra::rtf
