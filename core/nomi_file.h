// The names of the archive's files.
#pragma once

#include <string>
#include <string_view>

namespace ambra {

/// The folder of all files, with its closing backslash.
inline const std::string kCartella = "\\lumdir\\lumora\\";

/// The three-digit code of a building from the command line's text: "7" is 007, "1234" is 234.
std::string nnn_di(std::string_view argomento);

/// Whether a path lies in the folder of the archive.
bool di_archivio(std::string_view percorso);

/// The path of a per-building file: nome_file("007", "ftr").
std::string nome_file(std::string_view nnn, std::string_view estensione);

}  // namespace ambra
