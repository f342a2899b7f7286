// The actions of a batch script: one line, one verb, one function.
#pragma once

#include <deque>
#include <string>

#include "ambra/eventi.h"
#include "screen/programma.h"

namespace ambra {

/// What the script has laid ready for the questions to come, in order; as it was written (UTF-8).
struct Pronte {
    std::deque<std::string> risposte, file, caratteri, colori, stampanti;
    std::deque<int> aperture;
};

/// What an action works on.
struct Scena {
    Programma& prog;
    Eventi& eventi;
    Pronte& pronte;
    Data& oggi;
};

/// A line of the script that cannot be done, and why (UTF-8 as far as the script was).
struct RigaSbagliata {
    std::string testo;
};

/// Does what a line of the script says. Throws RigaSbagliata, and whatever ends the script meanwhile.
void esegui_riga(const Scena& s, const std::string& riga);

}  // namespace ambra
