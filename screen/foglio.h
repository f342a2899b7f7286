// A grid as a table to take away: what is seen of it, with the kind of each cell. And that table as CSV.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/date.h"
#include "screen/griglia.h"

namespace ambra {

/// A cell as it is shown, trimmed, and what a spreadsheet may take it for.
struct CellaFoglio {
    enum class Tipo {
        testo,    ///< whatever is none of the others
        importo,  ///< an Italian number in a right-aligned column: `valore`, shown with `decimali` decimals
        data      ///< a date written dd/mm/yyyy: `data`
    };
    Tipo tipo = Tipo::testo;
    int decimali = 0;
    std::string testo;
    double valore = 0;
    Data data;
};

/// The visible columns and rows of a grid, in the shown order. Rows that are blank in all visible cells are
/// left out; row 0 is the headings, always texts.
struct Foglio {
    std::vector<Colonna> colonne;
    std::vector<CellaFoglio> celle;  ///< row * columns + column

    std::size_t righe() const { return colonne.empty() ? 0 : celle.size() / colonne.size(); }
    const CellaFoglio& cella(std::size_t r, std::size_t c) const { return celle[r * colonne.size() + c]; }
};

/// `in_vista`, where given, tells which rows are looked at now.
Foglio foglio_di(const Griglia& g, const std::function<bool(int riga)>& in_vista = {});

/// The table as a file of text: UTF-8 with a byte-order mark, ';' between fields, CR LF after each row.
/// Amounts lose the points of the thousands. A text that a spreadsheet would take for a formula has ' before
/// it.
std::string csv_di(const Foglio& f);

}  // namespace ambra
