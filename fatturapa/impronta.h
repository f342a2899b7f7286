// SHA-256.
#pragma once

#include <string>
#include <string_view>

namespace ambra::fatturapa {

/// 64 lower-case hex digits.
std::string sha256(std::string_view byte);

}  // namespace ambra::fatturapa
