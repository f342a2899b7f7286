// The field types of a record: byte arrays of alignment 1, so that a struct of them is the record.
//
// Only these types touch bytes. Numbers are little-endian on disk whatever the machine.
#pragma once

#include <bit>
#include <cassert>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "core/errori.h"

namespace ambra {

/// Signed 16-bit.
struct Intero {
    unsigned char b[2];
    operator int() const { return static_cast<std::int16_t>(static_cast<std::uint16_t>(b[0] | b[1] << 8)); }
    /// Takes what fits an Integer; the caller checks the range (see `assegna`).
    Intero& operator=(int v) {
        assert(v >= -32768 && v <= 32767);
        b[0] = static_cast<unsigned char>(v & 0xFF);
        b[1] = static_cast<unsigned char>((v >> 8) & 0xFF);
        return *this;
    }
    /// Stores `v`; out of range keeps the old value and sets overflow.
    bool assegna(long v, Errore& err) {
        if (v < -32768 || v > 32767) return err.esito(errore::overflow);
        *this = static_cast<int>(v);
        return true;
    }
};

/// Signed 32-bit.
struct Lungo {
    unsigned char b[4];
    operator std::int32_t() const {
        return static_cast<std::int32_t>(std::uint32_t{b[0]} | std::uint32_t{b[1]} << 8 |
                                         std::uint32_t{b[2]} << 16 | std::uint32_t{b[3]} << 24);
    }
    Lungo& operator=(std::int32_t v) {
        for (int i = 0; i < 4; ++i)
            b[i] = static_cast<unsigned char>(static_cast<std::uint32_t>(v) >> (8 * i));
        return *this;
    }
};

/// IEEE 754, 8 bytes.
struct Doppio {
    unsigned char b[8];
    operator double() const {
        std::uint64_t u = 0;
        if constexpr (std::endian::native == std::endian::little) {
            std::memcpy(&u, b, 8);
        } else {
            for (int i = 7; i >= 0; --i) u = u << 8 | b[i];
        }
        return std::bit_cast<double>(u);
    }
    Doppio& operator=(double v) {
        const auto u = std::bit_cast<std::uint64_t>(v);
        for (int i = 0; i < 8; ++i) b[i] = static_cast<unsigned char>(u >> (8 * i));
        return *this;
    }
};

/// A fixed text of N bytes, Windows-1252, blank-padded on the right.
template <std::size_t N>
struct Testo {
    char b[N];
    /// All N characters; zero bytes show as blanks.
    std::string testo() const {
        std::string s(b, N);
        for (char& c : s)
            if (c == '\0') c = ' ';
        return s;
    }
    /// Without the blanks at both ends; zero bytes count as blanks there.
    std::string rifilato() const {
        std::size_t da = 0, a = N;
        while (a > 0 && (b[a - 1] == ' ' || b[a - 1] == '\0')) --a;
        while (da < a && (b[da] == ' ' || b[da] == '\0')) ++da;
        std::string s(b + da, a - da);
        for (char& c : s)
            if (c == '\0') c = ' ';
        return s;
    }
    /// The bytes as they stand in the file.
    std::string_view grezzo() const { return {b, N}; }
    /// Cut when longer, blank-padded when shorter.
    Testo& operator=(std::string_view s) {
        const std::size_t n = s.size() < N ? s.size() : N;
        if (n > 0) std::memmove(b, s.data(), n);
        std::memset(b + n, ' ', N - n);
        return *this;
    }
};

/// Bytes that are not ours: they survive a rewrite.
template <std::size_t N>
struct Grezzo {
    unsigned char b[N];
};

static_assert(sizeof(Intero) == 2 && sizeof(Lungo) == 4 && sizeof(Doppio) == 8);
static_assert(alignof(Doppio) == 1 && alignof(Testo<3>) == 1 && sizeof(Testo<3>) == 3);

/// The 16-bit words of an Integer counter raised by one; past 32767 it stays and overflow is set.
inline bool incrementa(Intero& contatore, Errore& err) {
    return contatore.assegna(int(contatore) + 1, err);
}

}  // namespace ambra
