// The names that files of the archive bear, and whose each is.
#pragma once

#include <string>
#include <string_view>

namespace ambra {

/// Three digits.
bool e_nnn(std::string_view s);
/// "007" for a file of building 7, "*" for one of all buildings, "" for what is not of the archive.
std::string padrone(std::string_view nome);
/// Whether a file of building is one of those that make it: a form or an old copy alone is no building.
bool fa_lo_stabile(std::string_view nome);
/// Whether this is the name of a temporary file that work on the archive makes and takes away again.
bool e_avanzo(std::string_view nome);

}  // namespace ambra
