#include "archivio/impronta.h"

#include <cstring>

namespace ambra {

namespace {

void mescola(std::uint64_t& h, const char* b) {
    std::uint64_t parola;
    std::memcpy(&parola, b, 8);
    h = (h ^ parola) * 0x9E3779B97F4A7C15u;
    h ^= h >> 32;
}

// Four lanes, so that the digests of a whole archive cost less than reading it.
std::uint64_t riassunto(const RecFattura& f) {
    const char* b = reinterpret_cast<const char*>(&f);
    std::uint64_t h[4] = {1, 2, 3, 4};
    std::size_t i = 0;
    for (; i + 32 <= sizeof f; i += 32)
        for (std::size_t corsia = 0; corsia < 4; ++corsia) mescola(h[corsia], b + i + corsia * 8);
    for (std::size_t corsia = 0; i + 8 <= sizeof f; i += 8) mescola(h[corsia++], b + i);
    std::uint64_t coda = 0;
    std::memcpy(&coda, b + i, sizeof f - i);
    for (const std::uint64_t x : h) coda = (coda ^ x) * 0xC2B2AE3D27D4EB4Fu + (coda >> 29);
    return coda;
}

}  // namespace

Impronta Impronta::di(const RecFattura& f) {
    Impronta i;
    char* s = i.segni.data();
    std::memcpy(s, f.numfor.b, sizeof f.numfor.b);
    std::memcpy(s + 2, f.numdoc.b, sizeof f.numdoc.b);
    std::memcpy(s + 12, f.datadoc.b, sizeof f.datadoc.b);
    i.intero = riassunto(f);
    return i;
}

}  // namespace ambra
