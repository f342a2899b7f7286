// Signed envelopes (.p7m): what is inside. The signature is never looked at.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ambra::fatturapa {

/// Whether the bytes begin as a signed envelope does, DER or BER.
bool sembra_busta(std::string_view byte);
/// The content of the envelope; nothing if it is damaged, cut, or bears no content.
std::optional<std::string> contenuto_busta(std::string_view byte);

}  // namespace ambra::fatturapa
