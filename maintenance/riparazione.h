// What of a damaged archive can be mended without a choice: the name index, the counters, what broken work
// has left behind. The records themselves are never touched.
#pragma once

#include <functional>
#include <string>

#include "core/disco.h"

namespace ambra {

/// Told of each step, Italian, Windows-1252.
using Detto = std::function<void(const std::string&)>;

/// Takes temporary files away that nobody holds. Nothing where a restore is under way: they are its own.
void togli_avanzi(Disco& disco, const Detto& detto);

/// Whether something of building `nnn` can be mended here.
bool riparabile(Disco& disco, const std::string& nnn);

/// Mends counters and index of building `nnn`. Nobody else may have its files open. "" or why it was not
/// done.
std::string ripara(Disco& disco, const std::string& nnn, const Detto& detto);

}  // namespace ambra
