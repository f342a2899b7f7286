// Texts of Windows itself, UTF-16, and ours at the edges, UTF-8. What is no text becomes U+FFFD.
#pragma once

#include <string>
#include <string_view>

namespace ambra {

std::wstring larga(std::string_view utf8);
std::string utf8_di(std::wstring_view larga);

}  // namespace ambra
