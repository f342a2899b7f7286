// SHA-256 (FIPS 180-4), for the checksums of a saved archive.
#pragma once

#include <string>
#include <string_view>

namespace ambra {

/// 64 lower-case hexadecimal digits.
std::string sha256(std::string_view dati);

}  // namespace ambra
