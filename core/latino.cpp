#include "core/latino.h"

#include "core/testo.h"

namespace ambra {

namespace {

// A combining accent, the letters that it composes with and what they become.
struct Accento {
    char32_t segno;
    std::string_view lettere;
    std::u32string_view composte;
};
constexpr Accento kAccenti[] = {
    {0x300, "AEIOUaeiou", U"\u00C0\u00C8\u00CC\u00D2\u00D9\u00E0\u00E8\u00EC\u00F2\u00F9"},
    {0x301, "AEIOUYaeiouy", U"\u00C1\u00C9\u00CD\u00D3\u00DA\u00DD\u00E1\u00E9\u00ED\u00F3\u00FA\u00FD"},
    {0x302, "AEIOUaeiou", U"\u00C2\u00CA\u00CE\u00D4\u00DB\u00E2\u00EA\u00EE\u00F4\u00FB"},
    {0x303, "ANOano", U"\u00C3\u00D1\u00D5\u00E3\u00F1\u00F5"},
    {0x308, "AEIOUYaeiouy", U"\u00C4\u00CB\u00CF\u00D6\u00DC\u0178\u00E4\u00EB\u00EF\u00F6\u00FC\u00FF"},
    {0x30A, "Aa", U"\u00C5\u00E5"},
    {0x30C, "SZsz", U"\u0160\u017D\u0161\u017E"},
    {0x327, "Cc", U"\u00C7\u00E7"},
};

bool accento(char32_t p) {
    return p >= 0x300 && p <= 0x36F;
}

// Base letters of U+0100 to U+017F.
constexpr std::string_view kEstese =
    "AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIiIiJjKkkLlLlLlLlLlNnNnNnnNnOoOoOoOoRrRrRrSsSsSsSsTtTtTt"
    "UuUuUuUuUuUuWwYyYZzZzZzs";
static_assert(kEstese.size() == 128);

// Base letters of U+01CD to U+0233 and of U+1E00 to U+1EF9; '?' where there is none.
constexpr std::string_view kConSegno =
    "AaIiOoUuUuUuUuUu?AaAa????GgKkOoOo??j???Gg??NnAa????AaAaEeEeIiIiOoOoRrRrUuUuSsTt??Hh??????AaEeOoOoOoOoYy";
constexpr std::string_view kConPunto =
    "AaBbBbBbCcDdDdDdDdDdEeEeEeEeEeFfGgHhHhHhHhHhIiIiKkKkKkLlLlLlLlMmMmMmNnNnNnNnOoOoOoOoPpPpRrRrRrRrSsSsSsSs"
    "SsTtTtTtTtUuUuUuUuUuVvVvWwWwWwWwWwXxXxYyZzZzZzhtwy????S?AaAaAaAaAaAaAaAaAaAaAaAaEeEeEeEeEeEeEeEeIiIiOoOo"
    "OoOoOoOoOoOoOoOoOoOoUuUuUuUuUuUuUuYyYyYyYy";
static_assert(kConSegno.size() == 0x234 - 0x1CD && kConPunto.size() == 0x1EFA - 0x1E00);

char base(char32_t p) {
    if (p >= 0x100 && p <= 0x17F) return kEstese[p - 0x100];
    if (p >= 0x2010 && p <= 0x2015) return '-';
    if (p == 0x2212) return '-';
    if (p >= 0x2000 && p <= 0x200A) return ' ';
    if (p == 0x202F) return ' ';
    if (p >= 0x1CD && p <= 0x233) return kConSegno[p - 0x1CD];
    if (p >= 0x1E00 && p <= 0x1EF9) return kConPunto[p - 0x1E00];
    return '?';
}

// One accent upon the letter that was written last; one that does not fit is dropped.
void componi(std::string& r, char32_t segno) {
    if (r.empty()) return;
    for (const Accento& a : kAccenti) {
        if (a.segno != segno) continue;
        const auto i = a.lettere.find(r.back());
        if (i != std::string_view::npos) r.back() = byte_windows(a.composte[i]);
    }
}

}  // namespace

std::string vicino(std::string_view utf8) {
    std::string r;
    r.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        const char32_t p = leggi_punto(utf8, i);
        if (accento(p)) {
            componi(r, p);
            continue;
        }
        const char c = p < 0x20 || p == 0x7F ? ' ' : byte_windows(p);
        r += c == '?' && p != '?' ? base(p) : c;
    }
    return r;
}

}  // namespace ambra
