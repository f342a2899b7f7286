// Dated copies of a building, made before what cannot be undone: in a folder of the user's, never in the
// archive.
//
// A copy is one file, the saved set in one piece; `fuori` is the disc whose root is that folder. What goes
// wrong is told in Italian words, Windows-1252; "" is nothing.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "maintenance/salvataggio.h"

namespace ambra {

/// Copies of a building that are kept; an older one goes when a new one comes.
constexpr std::size_t kCopieTenute = 10;

/// What a copy was made before.
enum class Motivo { riordino, azzeramento, indice, riparazione };

struct CopiaDatata {
    std::string file;     ///< its name in the folder
    std::string momento;  ///< "15/03/2024 10:15"
    std::string motivo;   ///< "prima del riordino"
};

/// Copies building `nnn`; `momento` is "20240315-101502". An archive that is still as the newest copy holds
/// it needs no other. `pausa` as for `raccogli`.
std::string fai_copia(Disco& disco, Disco& fuori, const std::string& nnn, Motivo motivo,
                      const std::string& momento, const std::function<void()>& pausa = {});
/// The copies of a building, the newest first.
std::vector<CopiaDatata> copie_di(Disco& fuori, const std::string& nnn);
/// Reads a copy of building `nnn` that is whole.
std::string leggi_copia(Disco& fuori, const std::string& nnn, const std::string& nome,
                        std::vector<FileSalvato>& file);

/// The folder of this user for the copies of the archive that lies on `radice` (UTF-8), made if need be; null
/// where it cannot be had.
std::unique_ptr<Disco> cartella_delle_copie(const std::string& radice);
/// Now, as the names of copies and deposits have it: "20240315-101502".
std::string momento_di_adesso();

}  // namespace ambra
