// Base64, as signed files and attachments come.
#pragma once

#include <string>
#include <string_view>

namespace ambra::fatturapa {

/// Whether it is nothing but base64: its letters and blanks, with lines of PEM ("-----BEGIN ...") around or
/// not.
bool sembra_base64(std::string_view testo);
/// The bytes; blanks, lines of PEM and what is no letter of base64 are passed over, the first '=' ends it.
std::string da_base64(std::string_view testo);

}  // namespace ambra::fatturapa
