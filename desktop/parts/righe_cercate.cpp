#include "desktop/parts/righe_cercate.h"

#include <algorithm>
#include <sstream>

#include "core/testo.h"
#include "screen/griglia.h"

namespace ambra {

namespace {

constexpr std::string_view kDaC0 = "aaaaaaaceeeeiiiidnooooo*ouuuuytsaaaaaaaceeeeiiiidnooooo/ouuuuyt ";
static_assert(kDaC0.size() == 64);

char piana(char c) {
    const auto u = static_cast<unsigned char>(c);
    if (u >= 0xC0) return kDaC0[u - 0xC0u];
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

bool importo(std::string_view parola) {
    return parola.find_first_not_of("0123456789.,-") == std::string_view::npos;
}

std::string senza_punti(std::string_view t) {
    std::string s(t);
    std::erase(s, '.');
    return s;
}

}  // namespace

std::string in_piano(std::string_view testo) {
    std::string s(testo);
    std::transform(s.begin(), s.end(), s.begin(), piana);
    return s;
}

void RigheCercate::cerca(std::string_view parole) {
    parole_.clear();
    std::istringstream flusso(in_piano(parole));
    for (std::string p; flusso >> p;) parole_.push_back(importo(p) ? senza_punti(p) : p);
    std::erase_if(parole_, [](const std::string& p) { return p.empty(); });
}

// As shown, and once more without the points of amounts.
const std::string& RigheCercate::testo(int riga) {
    const auto chiave = static_cast<std::size_t>(g_.chiave(riga));
    if (testi_.size() <= chiave) testi_.resize(std::max(chiave + 1, static_cast<std::size_t>(g_.righe())));
    std::string& t = testi_[chiave];
    if (!t.empty()) return t;
    for (int c = 0; c < colonne_; ++c) {
        const std::string_view cella = rifila(g_.vista(riga, c));
        t += in_piano(cella) + '\n';
        if (importo(cella) && cella.find('.') != std::string_view::npos) t += senza_punti(cella) + '\n';
    }
    return t;
}

bool RigheCercate::passa(int riga) {
    const std::string& t = testo(riga);
    return std::all_of(parole_.begin(), parole_.end(),
                       [&](const std::string& p) { return t.find(p) != std::string::npos; });
}

}  // namespace ambra
