// The global settings: studio data, currency, print table and general record, loaded once at start.
//
// Every file is optional. One that is missing, short or unreadable gives its defaults without a word.
#pragma once

#include <array>
#include <string>

#include "core/disco.h"
#include "core/nomi_file.h"
#include "core/numeri.h"
#include "core/recgenerale.h"

namespace ambra {

/// One entry of the print table. Entry 0 describes the job, 1 to 5 also carry the font slots, 1 to 80 the
/// columns of the report that prints.
struct RecStampa {
    int colx = 0;           ///< entry 0: columns of one printed line
    int colall = 0;         ///< entry 0: printed lines a record, 1 or 2
    int paginasx = 0;       ///< entry 0: left edge, thousandths of the page width
    int paginadx = 0;       ///< entry 0: right edge
    int paginasu = 0;       ///< entry 0: top edge, thousandths of the page height
    int paginagiu = 0;      ///< entry 0: bottom edge
    int testata = 0;        ///< entry 0: reach of the frame, 0, 1 or 2
    int colnum = 0;         ///< entry 0: every report stores 9, nothing reads it
    int collarg = 0;        ///< relative width of a column
    int coltipo = 0;        ///< alignment and number format of a column
    std::string coltesto;   ///< the cell to print
    std::string coltitolo;  ///< entry 0 the title of the report, else the heading of the column
    std::string fontnome;   ///< font slot: face, up to 30 characters
    int fontsize = 0;       ///< font slot: points
    int fontbold = 0;       ///< font slot: bold when not 0
    int fontital = 0;       ///< font slot: italic when not 0
    double fontcolore = 0;  ///< font slot: RGB number, blue in the high byte
    int rigaalt = 0;        ///< entry 0: row height in twips
    double fascia = 0;      ///< entry 0: colour of the band under odd rows; 16777215 is none
};

constexpr double kNessunaFascia = 16777215;

struct Impostazioni {
    std::array<std::string, 21> intestazione;  ///< lines 1 to 16 of the studio data
    Cambio cambio;                             ///< lines 1 to 10 of the currency file
    std::array<RecStampa, 81> tabstampa;
    RecGenerale generale{};
};

/// Fills the settings from their files; makes lumeria.gnr and its PDF folder when missing. Leaves `err` as
/// the last step left it.
void caricatabelle(Disco& disco, Errore& err, Impostazioni& imp);
/// Writes the general record; errors are ignored beyond the error number.
void salvagnr(Disco& disco, Errore& err, const Impostazioni& imp);

}  // namespace ambra
