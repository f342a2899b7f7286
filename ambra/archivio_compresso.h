// A set of files in one compressed archive (tar, gzip) and back.
#pragma once

#include <string>
#include <vector>

#include "maintenance/salvataggio.h"

namespace ambra {

/// Writes the archive new beside `percorso` and renames it, so that a half-written one never bears its name.
/// The same files give the same bytes. "" or what went wrong.
std::string scrivi_compresso(const std::string& percorso, const std::vector<FileSalvato>& file);
/// Whether a file stands there that writing must not replace unasked: anything but a backup of ours.
bool altrui(const std::string& percorso);
/// Reads an archive whole, or a dated copy, which is not compressed. Links, folders, damaged data and sizes
/// that no archive of a building has are refused. "" or what went wrong.
std::string leggi_compresso(const std::string& percorso, std::vector<FileSalvato>& file);

}  // namespace ambra
