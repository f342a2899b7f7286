// Base64, as signed files and attachments come.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace ambra::fatturapa {

/// Whether it is nothing but base64: its letters and blanks, with lines of PEM ("-----BEGIN ...") around or
/// not.
bool sembra_base64(std::string_view testo);
constexpr std::size_t kTutto = std::string::npos;

/// The bytes, the first `quanti` of them; blanks, lines of PEM and what is no letter of base64 are passed
/// over, the first '=' ends it.
std::string da_base64(std::string_view testo, std::size_t quanti = kTutto);

}  // namespace ambra::fatturapa
