#include "core/testo.h"

#include <algorithm>

namespace ambra {

namespace {

// Code points of the bytes 128 to 159; the rest of Windows-1252 is Latin-1.
constexpr char32_t kAlti[32] = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

void aggiungi_utf8(std::string& r, char32_t p) {
    if (p < 0x80) {
        r += static_cast<char>(p);
    } else if (p < 0x800) {
        r += static_cast<char>(0xC0 | (p >> 6));
        r += static_cast<char>(0x80 | (p & 0x3F));
    } else {
        r += static_cast<char>(0xE0 | (p >> 12));
        r += static_cast<char>(0x80 | ((p >> 6) & 0x3F));
        r += static_cast<char>(0x80 | (p & 0x3F));
    }
}

unsigned char grande(unsigned char c) {
    if (c >= 'a' && c <= 'z') return static_cast<unsigned char>(c - 32);
    if (c >= 0xE0 && c <= 0xFE && c != 0xF7) return static_cast<unsigned char>(c - 32);
    if (c == 0x9A || c == 0x9C || c == 0x9E) return static_cast<unsigned char>(c - 16);
    return c;
}

}  // namespace

char byte_windows(char32_t punto) {
    if (punto < 0x80 || (punto >= 0xA0 && punto <= 0xFF)) return static_cast<char>(punto);
    const auto* p = std::find(std::begin(kAlti), std::end(kAlti), punto);
    return p == std::end(kAlti) ? '?' : static_cast<char>(0x80 + (p - kAlti));
}

char32_t leggi_punto(std::string_view s, std::size_t& i) {
    const auto b = static_cast<unsigned char>(s[i++]);
    if (b < 0x80) return b;
    const int resto = b >= 0xF0 && b < 0xF5 ? 3 : b >= 0xE0 ? 2 : b >= 0xC2 ? 1 : 0;
    if (resto == 0 || b >= 0xF5) return 0xFFFD;
    char32_t p = b & (0x3Fu >> resto);
    for (int k = 0; k < resto; ++k) {
        if (i >= s.size() || (static_cast<unsigned char>(s[i]) & 0xC0) != 0x80) return 0xFFFD;
        p = (p << 6) | (static_cast<unsigned char>(s[i++]) & 0x3Fu);
    }
    return p;
}

std::string da_utf8(std::string_view utf8) {
    std::string r;
    r.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) r += byte_windows(leggi_punto(utf8, i));
    return r;
}

std::string a_utf8(std::string_view testo) {
    std::string r;
    r.reserve(testo.size() + testo.size() / 8);
    for (char c : testo) aggiungi_utf8(r, punto_unicode(static_cast<unsigned char>(c)));
    return r;
}

char32_t punto_unicode(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? kAlti[byte - 0x80] : byte;
}

std::string_view rifila_destra(std::string_view s) {
    const auto fine = s.find_last_not_of(' ');
    return fine == std::string_view::npos ? std::string_view{} : s.substr(0, fine + 1);
}

std::string_view rifila(std::string_view s) {
    s = rifila_destra(s);
    const auto inizio = s.find_first_not_of(' ');
    return inizio == std::string_view::npos ? s : s.substr(inizio);
}

std::string maiuscolo(std::string_view s) {
    std::string r(s);
    for (char& c : r) c = static_cast<char>(grande(static_cast<unsigned char>(c)));
    return r;
}

std::string minuscolo(std::string_view s) {
    std::string r(s);
    for (char& c : r)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 32);
    return r;
}

std::string puliscitesto(std::string_view s) {
    std::string r;
    r.reserve(s.size());
    for (char c : s) {
        const auto u = static_cast<unsigned char>(c);
        if (u >= 32 && u != 255) r += c;
    }
    return r;
}

std::string_view sinistra(std::string_view s, std::size_t n) {
    return s.substr(0, n);
}

std::string_view destra(std::string_view s, std::size_t n) {
    return s.size() <= n ? s : s.substr(s.size() - n);
}

std::string_view medio(std::string_view s, std::size_t da, std::size_t n) {
    return da == 0 || da > s.size() ? std::string_view{} : s.substr(da - 1, n);
}

std::string riempi(std::string_view s, std::size_t n) {
    std::string r(s.substr(0, n));
    r.resize(n, ' ');
    return r;
}

std::string con_zeri(long numero, std::size_t cifre) {
    const std::string tutto = std::string(cifre, '0') + std::to_string(numero);
    return std::string(destra(tutto, cifre));
}

}  // namespace ambra
