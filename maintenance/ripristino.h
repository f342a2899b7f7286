// Putting a saved set back: a replacement that happens for all files or for none, whoever dies in between.
//
// A journal in the archive's folder bears the plan from the first file written to the last file in place.
// While it lies there the archive may be a mixture: nobody opens it, and the next restore finishes or undoes
// what it tells. Files that are replaced go to a folder of their own, the deposit, where nothing is ever
// replaced. What goes wrong is told in Italian words, Windows-1252; "" is nothing.
#pragma once

#include <string>
#include <vector>

#include "maintenance/salvataggio.h"

namespace ambra {

/// The journal of a restore under way, in the archive's folder.
inline const std::string kGiornaleRipristino = "ripristino.~~~";

/// "" or the sentence for whoever would open the archive while the journal of a restore lies there.
std::string ripristino_interrotto(Disco& disco);

/// The first file of building `nnn`, or of all buildings, that another program has open, as far as the disc
/// can tell; "" if none. Who has them open would go on in the files that a restore has put aside.
std::string aperto_da_altri(Disco& disco, const std::string& nnn);

/// Puts a faultless set in place. What it replaces, and files of the building that the set does not hold, go
/// to the new folder `\lumdir\lumora\<deposito>`. After a failure all is as before, or the journal is there
/// and `riprendi_ripristino` goes on.
std::string ripristina(Disco& disco, const std::vector<FileSalvato>& file, const std::string& nnn,
                       const std::string& deposito);

/// A name for the deposit of a restore at `momento` ("20240315-101502"): "sostituiti-20240315-101502", and a
/// number behind it if such a folder is there.
std::string nuovo_deposito(Disco& disco, const std::string& momento);

/// Finishes a restore that died, or undoes one that cannot be finished, which is told; nothing to do is "".
std::string riprendi_ripristino(Disco& disco);

}  // namespace ambra
