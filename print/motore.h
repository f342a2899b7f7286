// The print engine of every tabular report: `xstampago` prints one row, `xstampainit` finishes a page.
//
// A report describes itself in the print table and makes one call a row. The furniture of a page (frame,
// title, letterhead, headings, footer) is drawn when the page is finished, over the rows that stand there,
// so that the frame can end below the last of them.
#pragma once

#include <array>
#include <string>

#include "core/impostazioni.h"
#include "print/printer.h"

namespace ambra {

/// All that a print job needs of its program.
struct ContestoStampa {
    Printer& stampante;
    std::array<RecStampa, 81>& tabstampa;
    const Cambio& cambio;
    const std::array<std::string, 21>& intestazione;
    std::string stabile;  ///< name of the building
    std::string oggi;     ///< dd/mm/yyyy
    int& rigacorr;        ///< printed lines on the page in hand
    int& npagina;         ///< 0 no stamps, -1 the first page is not finished, else the last finished page
};

/// Finishes the page in hand; gives the new row counter, 0. A printer fault or a table that describes no
/// columns abandons the call, and the counter stays.
int xstampainit(ContestoStampa& c);
/// Prints one record from the table's cells, which it overwrites with what it printed; `riga` is the row
/// counter, updated in place and returned. A fault abandons the call.
int xstampago(ContestoStampa& c, int& riga);

}  // namespace ambra
