// Exempt amounts: which of the table's exemptions a Natura is.
#include <algorithm>
#include <array>

#include "core/latino.h"
#include "core/testo.h"
#include "invoices/proposta_parti.h"

namespace ambra::passi {

namespace {

using Codice = std::optional<std::size_t>;

// Words of a caption by which an exemption is known, without blanks and points, capitals and accents. A word
// that ends in a digit is not followed by one.
struct Parole {
    std::string_view natura;
    std::array<std::string_view, 4> parole;
};
constexpr Parole kParole[] = {
    {"N1", {"ART15"}},          {"N2", {"FUORICAMPO", "ART2", "7-"}}, {"N3", {"ART8", "ART9", "NONIMPONIB"}},
    {"N4", {"ART10", "ESENT"}}, {"N6", {"ART17", "INVERSIONE"}},
};
constexpr Parole kForfettari = {"N2.2", {"FORF", "190/2014", "C54", "C58"}};

std::string compatta(const std::string& caption) {
    std::string r;
    for (const char c : maiuscolo(caption))
        if (c != ' ' && c != '.') r += c;
    return r;
}

bool contiene(const std::string& caption, std::string_view parola) {
    for (auto i = caption.find(parola); i != std::string::npos; i = caption.find(parola, i + 1)) {
        const auto fine = i + parola.size();
        const bool continua = cifra(parola.back()) && fine < caption.size() && cifra(caption[fine]);
        const bool comincia_prima = cifra(parola.front()) && i > 0 && cifra(caption[i - 1]);
        if (!continua && !comincia_prima) return true;
    }
    return false;
}

Codice per_parole(const TabellaIva& t, const Parole& quali) {
    for (const std::string_view parola : quali.parole) {
        if (parola.empty()) continue;
        for (std::size_t i = 0; i < kCodiciIva; ++i)
            if (contiene(compatta(t.esenzione[i + 1]), parola)) return i;
    }
    return {};
}

Codice per_parole(const Cantiere& k, const std::string& natura) {
    const std::string& regime = k.f.fornitore.regime;
    if (natura == kForfettari.natura && (regime == "RF19" || regime == "RF02"))
        return per_parole(*k.c.iva, kForfettari);
    for (const Parole& p : kParole)
        if (natura == p.natura || natura.starts_with(std::string(p.natura) + "."))
            return per_parole(*k.c.iva, p);
    return {};
}

// The only exempt amount of the supplier's last document.
Codice dell_ultima(const Cantiere& k) {
    Codice r;
    if (!k.c.ultima) return r;
    for (std::size_t i = 0; i < kCodiciIva; ++i) {
        if (k.c.ultima->esent[i] == 0) continue;
        if (r) return {};
        r = i;
    }
    return r;
}

void metti(Cantiere& k, const std::string& natura, Decimale importo, Codice codice) {
    if (!codice) {
        k.p.chiede_esenzione = true;
        codice = k.c.esenzione;
    }
    if (codice) {
        k.esent[*codice] += importo;
        return;
    }
    k.avvisa(
        "esenzione-da-scegliere",
        "Per l'importo esente " + importo.testo_italiano() +
            (natura.empty() ? std::string() : " (natura " + vicino(natura) + ")") +
            " non c'è un codice di esenzione: sceglierlo nell'elenco qui sotto, o non sarà riportato"_it);
}

}  // namespace

// One Natura alone is what the supplier's last document says it was; where there are several, the words of
// the table tell them apart first.
void esenti(Cantiere& k) {
    const auto quante =
        std::ranges::count_if(k.a.esenti, [](const SommaNatura& s) { return c_e(s.importo); });
    const Codice ultima = dell_ultima(k);
    const auto codice = [&](const std::string& natura, bool sola) {
        if (sola && ultima) return ultima;
        const Codice c = per_parole(k, natura);
        return c ? c : ultima;
    };
    for (const SommaNatura& s : k.a.esenti)
        if (c_e(s.importo)) metti(k, s.natura, s.importo, codice(s.natura, quante == 1));
    if (c_e(k.a.arrotondamento)) metti(k, "N2", k.a.arrotondamento, codice("N2", false));
}

}  // namespace ambra::passi
