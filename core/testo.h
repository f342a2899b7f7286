// Text as the archives hold it: Windows-1252, one byte a character, in a std::string.
//
// Lengths, cuts, positions and comparisons are then those of the files. Unicode lives at the edges only
// (windows, JSON, file names) and comes and goes through da_utf8 and a_utf8.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace ambra {

/// The Windows-1252 text of a UTF-8 text; what Windows-1252 lacks, or is no UTF-8, becomes '?'.
std::string da_utf8(std::string_view utf8);
/// The UTF-8 text of a Windows-1252 text. The five unassigned bytes become the control of the same code.
std::string a_utf8(std::string_view testo);
/// The Unicode code point of a Windows-1252 byte.
char32_t punto_unicode(unsigned char byte);
/// The code point at byte `i` of a UTF-8 text, and moves past it; 0xFFFD for what is no UTF-8.
char32_t leggi_punto(std::string_view utf8, std::size_t& i);
/// The Windows-1252 byte of a code point, '?' if it has none.
char byte_windows(char32_t punto);

/// Whether it is a figure, 0 to 9.
constexpr bool cifra(char c) {
    return c >= '0' && c <= '9';
}
/// The value of a hexadecimal figure of either case, -1 for what is none.
constexpr int cifra_esadecimale(char c) {
    if (cifra(c)) return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

/// Without the blanks (code 32 alone) at both ends.
std::string_view rifila(std::string_view s);
/// Without the blanks at the right end.
std::string_view rifila_destra(std::string_view s);
/// Upper case of Windows-1252. The character 255, the mark of a deleted supplier, stays.
std::string maiuscolo(std::string_view s);
/// Lower case of the letters A to Z alone: two names of files are the same if it is the same of both.
std::string minuscolo(std::string_view s);
/// Without every character of code below 32 or of 255.
std::string puliscitesto(std::string_view s);

/// The first `n` characters, or all there are.
std::string_view sinistra(std::string_view s, std::size_t n);
/// The last `n` characters, or all there are.
std::string_view destra(std::string_view s, std::size_t n);
/// `n` characters from position `da`, which counts from 1; what lies past the end is left out.
std::string_view medio(std::string_view s, std::size_t da, std::size_t n = std::string_view::npos);
/// Cut or blank-padded on the right to exactly `n` characters.
std::string riempi(std::string_view s, std::size_t n);
/// The last `cifre` characters of zeros followed by the number: 7 in three places is 007.
std::string con_zeri(long numero, std::size_t cifre);
/// Joins texts of any kind: unisci("Fattura ", numero, " del ", data).
template <class... Parti>
std::string unisci(const Parti&... parti) {
    std::string r;
    r.reserve((std::string_view(parti).size() + ... + 0));
    (r.append(std::string_view(parti)), ...);
    return r;
}

// ---- accented literals: "Città"_it is Windows-1252 whatever the compiler thinks of its source ----

namespace letterale {

template <std::size_t N>
struct Utf8 {
    char c[N];
    consteval Utf8(const char (&s)[N]) {  // NOLINT: the implicit conversion is the point
        for (std::size_t i = 0; i < N; ++i) c[i] = s[i];
    }
};

template <Utf8 L>
consteval auto converti() {
    struct Esito {
        std::array<char, sizeof(L.c)> c{};
        std::size_t n = 0;
    } e;
    for (std::size_t i = 0; i + 1 < sizeof(L.c); ++i) {
        const auto b = static_cast<unsigned char>(L.c[i]);
        if (b < 0x80) {
            e.c[e.n++] = L.c[i];
        } else if (b == 0xC2 || b == 0xC3) {  // U+00A0 to U+00FF keep their code
            const auto d = static_cast<unsigned char>(L.c[++i]);
            e.c[e.n++] = static_cast<char>((b == 0xC3 ? 0x40 : 0x00) + d);
        } else {
            throw "only Latin-1 letters are expected in literals";
        }
    }
    return e;
}

template <Utf8 L>
inline constexpr auto convertito = converti<L>();

}  // namespace letterale

template <letterale::Utf8 L>
std::string operator""_it() {
    return {letterale::convertito<L>.c.data(), letterale::convertito<L>.n};
}

}  // namespace ambra
