// A set of files in one compressed archive (tar, gzip) and back.
#pragma once

#include <string>
#include <vector>

#include "maintenance/salvataggio.h"

namespace ambra {

/// Writes the archive beside `percorso` and renames it, so that a half-written one never bears its name. The
/// same files give the same bytes. "" or what went wrong.
std::string scrivi_compresso(const std::string& percorso, const std::vector<FileSalvato>& file);
/// Reads an archive whole. Links, folders, damaged data and sizes that no archive of a building has are
/// refused. "" or what went wrong.
std::string leggi_compresso(const std::string& percorso, std::vector<FileSalvato>& file);

}  // namespace ambra
