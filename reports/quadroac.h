// Quadro AC: the yearly return of purchases, printed by coordinates on the ministry's own sheets.
//
// Nothing is drawn: each value is placed at an absolute position, in millimetres. One print uses positions
// built into the program, the other those of the user's layout; their sheets hold 5 and 10 suppliers.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "records/fornitore.h"
#include "records/layout.h"
#include "records/stabile.h"
#include "screen/programma.h"

namespace ambra {

/// What the form and the export say beside the suppliers, read when the summary opens.
struct DatiQuadro {
    RecStabile stabile{};
    RecStabile2 stabile2{};
    std::array<std::string, 11> studio;  ///< lines 1 to 10 of lumora.int
    Layout coordinate;                   ///< the user's; all positions zero when it cannot be read
};

/// The two offsets of the built-in positions, millimetres, as typed.
struct Scostamenti {
    std::string orizzontale = "0", verticale = "0";
};

/// A supplier as the summary shows it.
struct RigaQuadro {
    int fornitore = 0;    ///< record number
    std::string importo;  ///< the total as the list shows it, Italian notation
};

DatiQuadro carica_quadro(Programma& prog);
/// lummmi.dxy; "0" and "0" when it cannot be read whole.
Scostamenti carica_scostamenti(Programma& prog);
void salva_scostamenti(Programma& prog, const Scostamenti& s);

/// Prints with the built-in positions moved by `dx_mm` and `dy_mm`, 5 suppliers a sheet.
void stampamin(Programma& prog, const DatiQuadro& dati, const std::vector<RigaQuadro>& righe, double dx_mm,
               double dy_mm);
/// Prints with the user's positions, 10 suppliers a sheet of two pages.
void stampamod(Programma& prog, const DatiQuadro& dati, const std::vector<RigaQuadro>& righe);

}  // namespace ambra
