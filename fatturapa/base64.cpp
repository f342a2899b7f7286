#include "fatturapa/base64.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace ambra::fatturapa {

namespace {

constexpr std::int8_t kNulla = -1, kBianco = -2, kFine = -3;

constexpr std::array<std::int8_t, 256> valori() {
    std::array<std::int8_t, 256> v{};
    v.fill(kNulla);
    const std::string_view lettere = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    for (std::size_t i = 0; i < lettere.size(); ++i)
        v[static_cast<unsigned char>(lettere[i])] = static_cast<std::int8_t>(i);
    for (const char c : std::string_view(" \t\r\n")) v[static_cast<unsigned char>(c)] = kBianco;
    v['='] = kFine;
    return v;
}

constexpr auto kValori = valori();

std::int8_t valore(char c) {
    return kValori[static_cast<unsigned char>(c)];
}

// Past the lines of PEM that stand here; `i` is the beginning of a line.
std::size_t dopo_pem(std::string_view s, std::size_t i) {
    while (s.substr(i).starts_with("-----")) {
        const std::size_t fine = s.find('\n', i);
        i = fine == s.npos ? s.size() : fine + 1;
    }
    return i;
}

}  // namespace

bool sembra_base64(std::string_view testo) {
    std::size_t lettere = 0;
    for (std::size_t i = dopo_pem(testo, 0); i < testo.size(); ++i) {
        const std::int8_t v = valore(testo[i]);
        if (v == kNulla) return false;
        if (v >= 0) ++lettere;
        if (testo[i] == '\n') i = dopo_pem(testo, i + 1) - 1;
    }
    return lettere >= 32;
}

std::string da_base64(std::string_view testo, std::size_t quanti) {
    std::string r;
    r.reserve(std::min(quanti, testo.size() / 4 * 3 + 3));
    std::uint32_t raccolti = 0;
    int bit = 0;
    for (std::size_t i = dopo_pem(testo, 0); i < testo.size() && r.size() < quanti; ++i) {
        const std::int8_t v = valore(testo[i]);
        if (v == kFine) break;
        if (v < 0) {
            if (testo[i] == '\n') i = dopo_pem(testo, i + 1) - 1;
            continue;
        }
        raccolti = raccolti << 6 | static_cast<std::uint32_t>(v);
        bit += 6;
        if (bit >= 8) {
            bit -= 8;
            r += static_cast<char>(raccolti >> bit & 0xFF);
        }
    }
    return r;
}

}  // namespace ambra::fatturapa
