#include "fatturapa/impronta.h"

#include <libdeflate.h>
#include <openssl/sha.h>

#include <array>
#include <cstdint>

namespace ambra::fatturapa {

std::string sha256(std::string_view byte) {
    std::array<unsigned char, SHA256_DIGEST_LENGTH> cifre{};
    SHA256(reinterpret_cast<const unsigned char*>(byte.data()), byte.size(), cifre.data());
    constexpr const char* kEsadecimali = "0123456789abcdef";
    std::string r;
    r.reserve(2 * cifre.size());
    for (const unsigned char c : cifre) {
        r += kEsadecimali[c >> 4];
        r += kEsadecimali[c & 15];
    }
    return r;
}

std::size_t impronta_svelta(std::string_view byte) {
    const std::uint64_t lunghezza = byte.size();
    return static_cast<std::size_t>(lunghezza << 32 | libdeflate_crc32(0, byte.data(), byte.size()));
}

}  // namespace ambra::fatturapa
