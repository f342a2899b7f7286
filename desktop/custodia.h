// What a window holds that is not stored yet, and the question that stands before its loss.
#pragma once

#include <string_view>
#include <vector>

namespace ambra {

class Controllo;
class Programma;
class Schermo;

/// Which part of a window is the user's writing, by the names of its controls; "rata" stands for rata(0),
/// rata(1) ... too. Fields, boxes, options and lists always are; grids, buttons and captions where named.
struct Custodia {
    std::vector<std::string_view> uscite;  ///< commands that leave the window, the writing with it
    std::vector<std::string_view> scelte;  ///< what else a click on is part of the writing
    std::string_view durante;              ///< only what is written while this is in sight counts
};

/// True if a click on the control, or a word in it, is part of the writing.
bool fa_parte(const Custodia& custodia, const Controllo& c);
/// True if the control leaves the window for good; one that bears "Indietro" does not.
bool fa_uscire(const Custodia& custodia, const Controllo& c);

/// The screen whose document a click would replace by another: nullptr for none. `riga` and `colonna` are
/// those of a grid.
Schermo* riaperto_da(const Schermo& s, const Controllo& c, int riga, int colonna);

/// True on the first level of the command tree of the main screen.
bool alla_radice(const Schermo& s);
/// True if the click ends the program: "Fine" on the first level of the command tree.
bool fine_del_programma(const Schermo& s, const Controllo& c);

/// "Abbandonare i dati inseriti?"; true for yes.
bool abbandonare(Programma& prog);

}  // namespace ambra
