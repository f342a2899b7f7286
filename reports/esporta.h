// The export of the yearly summary for tax-return software: a text file on a diskette, one line a supplier.
#pragma once

#include <string>
#include <vector>

#include "reports/quadroac.h"

namespace ambra {

/// "a:lumxpNNN.txt".
std::string file_esportazione(const Programma& prog);
/// Writes the file anew, in the order of `righe`. The program's error number, cleared first, tells the last
/// failure; the file then holds nothing, or what it held if it could not be opened.
void esporta(Programma& prog, const DatiQuadro& dati, const std::vector<RigaQuadro>& righe);

}  // namespace ambra
