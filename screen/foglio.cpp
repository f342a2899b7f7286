#include "screen/foglio.h"

#include <algorithm>
#include <charconv>

#include "core/testo.h"

namespace ambra {

namespace {

std::size_t cifre(std::string_view s, std::size_t da) {
    const auto fine = std::find_if_not(s.begin() + static_cast<std::ptrdiff_t>(da), s.end(), cifra);
    return static_cast<std::size_t>(fine - s.begin()) - da;
}

// An Italian number from end to end: sign, digits (grouped by threes, or not at all), comma and decimals.
// `netto` is the number without the points of the thousands.
bool numero_italiano(std::string_view s, std::string& netto) {
    netto.clear();
    std::size_t i = 0;
    if (!s.empty() && (s[0] == '-' || s[0] == '+')) netto += s[i++];
    std::size_t n = cifre(s, i);
    if (n == 0) return false;
    const bool gruppi = n <= 3;
    netto.append(s, i, n);
    i += n;
    while (gruppi && i < s.size() && s[i] == '.') {
        if (cifre(s, i + 1) != 3) return false;
        netto.append(s, i + 1, 3);
        i += 4;
    }
    if (i < s.size() && s[i] == ',') {
        n = cifre(s, i + 1);
        if (n == 0) return false;
        netto.append(s, i, n + 1);
        i += n + 1;
    }
    return i == s.size();
}

// A number that a formula cannot hide in: the Italian kind, or with a point before the decimals.
bool numero(std::string_view s) {
    std::string netto;
    if (numero_italiano(s, netto)) return true;
    const auto punto = s.find('.');
    return punto != std::string_view::npos && numero_italiano(s.substr(0, punto), netto) &&
           netto.find(',') == std::string::npos && cifre(s, punto + 1) == s.size() - punto - 1;
}

// 007 is a code, whatever its column: as a number it would be another text.
bool zeri_davanti(std::string_view netto) {
    const std::size_t da = netto.find_first_of("0123456789");
    return netto[da] == '0' && cifre(netto, da) > 1;
}

CellaFoglio cella_di(std::string_view grezzo, Allineamento verso) {
    CellaFoglio c;
    c.testo = std::string(rifila(grezzo));
    std::string netto;
    if (verso == Allineamento::destra && numero_italiano(c.testo, netto) && !zeri_davanti(netto)) {
        c.tipo = CellaFoglio::Tipo::importo;
        const auto virgola = netto.find(',');
        if (virgola != std::string::npos) {
            c.decimali = static_cast<int>(netto.size() - virgola - 1);
            netto[virgola] = '.';
        }
        const char* da = netto.data() + (netto[0] == '+' ? 1 : 0);
        std::from_chars(da, netto.data() + netto.size(), c.valore);
    } else if (const auto d = data_valida(c.testo); d && testo_data(*d) == c.testo) {
        c.tipo = CellaFoglio::Tipo::data;
        c.data = *d;
    }
    return c;
}

void aggiungi_campo(std::string& csv, const CellaFoglio& c) {
    std::string s;
    if (c.tipo == CellaFoglio::Tipo::importo) {
        numero_italiano(c.testo, s);
    } else {
        s = c.testo;
        if (!s.empty() && std::string_view("=+-@\t\r").find(s[0]) != std::string_view::npos && !numero(s))
            s.insert(0, 1, '\'');
    }
    if (s.find_first_of(";\"\r\n") == std::string::npos) {
        csv += a_utf8(s);
        return;
    }
    csv += '"';
    for (const char b : a_utf8(s)) csv.append(b == '"' ? 2 : 1, b);
    csv += '"';
}

}  // namespace

Foglio foglio_di(const Griglia& g, const std::function<bool(int riga)>& in_vista) {
    Foglio f;
    std::vector<int> viste;
    for (int c = 0; c < g.quante_colonne(); ++c) {
        if (g.colonna(c).larghezza <= 0) continue;
        viste.push_back(c);
        f.colonne.push_back(g.colonna(c));
        f.celle.emplace_back().testo = std::string(rifila(g.colonna(c).titolo));
    }
    f.celle.reserve(f.colonne.size() * static_cast<std::size_t>(g.righe()));
    for (int r = 1; r < g.righe(); ++r) {
        if (in_vista && !in_vista(r)) continue;
        if (std::all_of(viste.begin(), viste.end(), [&](int c) { return rifila(g.vista(r, c)).empty(); }))
            continue;
        for (const int c : viste) f.celle.push_back(cella_di(g.vista(r, c), g.colonna(c).verso));
    }
    return f;
}

std::string csv_di(const Foglio& f) {
    std::string csv = "\xEF\xBB\xBF";
    for (std::size_t r = 0; r < f.righe(); ++r)
        for (std::size_t c = 0; c < f.colonne.size(); ++c) {
            aggiungi_campo(csv, f.cella(r, c));
            csv += c + 1 < f.colonne.size() ? ";" : "\r\n";
        }
    return csv;
}

}  // namespace ambra
