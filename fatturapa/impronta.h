// Digests of bytes.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace ambra::fatturapa {

/// 64 lower-case hex digits.
std::string sha256(std::string_view byte);

/// Tells apart files that nobody forged, many times as fast.
std::size_t impronta_svelta(std::string_view byte);

}  // namespace ambra::fatturapa
