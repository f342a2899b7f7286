// Saving a building: which files belong to it, how a saved set is read while others work, and how it proves
// to be whole. Putting it back is ripristino.h; how a set is packed into a compressed archive is not known
// here.
//
// What goes wrong is told in Italian words, Windows-1252; "" is nothing.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "core/disco.h"

namespace ambra {

/// A file of a saved set; the name is that in the archive's folder, Windows-1252.
struct FileSalvato {
    std::string nome;
    std::string contenuto;
};

/// The first file of a set: for each other file its SHA-256, its length and its name.
inline const std::string kManifesto = "MANIFEST.TXT";

/// What a set may hold: more is no building, and neither saved nor put back.
constexpr std::size_t kMassimoFile = std::size_t{128} << 20, kMassimoTutto = std::size_t{512} << 20;
constexpr std::size_t kMassimoQuanti = 2000;

/// Collects building `nnn` and the files that all buildings share, the manifest first. It takes no lock, so
/// it reads until two passes agree; between two it calls `pausa`. A building without a file of its own, a
/// file that cannot be read, a restore under way and an archive that never stands still are told.
std::string raccogli(Disco& disco, const std::string& nnn, std::vector<FileSalvato>& file,
                     const std::function<void()>& pausa = {});

/// Whether a set is whole and holds only files that belong into the archive's folder. "" if so. `nnn` is then
/// the building.
std::string difetto(const std::vector<FileSalvato>& file, std::string& nnn);

/// Whether this is the manifest of a set of ours, whole or not.
bool e_manifesto(const FileSalvato& f);

/// A set as one plain text of bytes, and back; what is no such text gives a set with a defect.
std::string in_un_pezzo(const std::vector<FileSalvato>& file);
std::vector<FileSalvato> da_un_pezzo(const std::string& pezzo);

}  // namespace ambra
