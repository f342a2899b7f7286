// Saving a building and putting it back: which files belong to it, how a saved set proves to be whole, and a
// replacement that happens for all files or for none.
//
// How a set is packed into one file is not known here.
#pragma once

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

/// Collects building `nnn` and the files that all buildings share, the manifest first. A building without
/// a file of its own is error 53; otherwise the error of the file that could not be read.
int raccogli(Disco& disco, const std::string& nnn, std::vector<FileSalvato>& file);

/// Whether a set is whole and holds only files that belong into the archive's folder. "" if so, else what is
/// wrong, in Italian. `nnn` is then the building.
std::string difetto(const std::vector<FileSalvato>& file, std::string& nnn);

/// The first file of building `nnn`, or of all buildings, that another program has open, as far as the disc
/// can tell; "" if none. Who has them open would go on in the files that a restore has put aside.
std::string aperto_da_altri(Disco& disco, const std::string& nnn);

/// Puts a faultless set in place. What it replaces, and files of the building that the set does not hold, go
/// to the folder `\lumdir\lumora\<deposito>`. Returns 0, or the error after which all is as before. Death in
/// the middle, or a disc that refuses even the way back, leaves a journal: `riprendi_ripristino` then
/// finishes the work.
int ripristina(Disco& disco, const std::vector<FileSalvato>& file, const std::string& nnn,
               const std::string& deposito);

/// Finishes a restore that died; nothing to do is 0 too.
int riprendi_ripristino(Disco& disco);
/// The journal of a restore under way, in the archive's folder.
inline const std::string kGiornaleRipristino = "ripristino.~~~";

}  // namespace ambra
