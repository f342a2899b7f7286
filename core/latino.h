// The nearest Windows-1252 text of a text that may hold anything.
#pragma once

#include <string>
#include <string_view>

namespace ambra {

/// The Windows-1252 text of a UTF-8 text: a letter and the accent after it become one, a letter that
/// Windows-1252 lacks its base letter, what is left '?'. Control characters become blanks.
std::string vicino(std::string_view utf8);

}  // namespace ambra
