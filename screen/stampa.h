// A tabular print job of a program: the protocol that every report follows.
//
//     if (!prog.chiedi("Iniziare la stampa?", "Stampa elenco fornitori")) return;
//     Stampa lavoro(prog, "Elenco fornitori", 5, {{"Nominativo", 30, 0}, ...});
//     for (...) { lavoro.cella(1) = ...; lavoro.riga(); }
//     lavoro.fine();
//
// The pointer is the hourglass while the job lives. Errors are passed over.
#pragma once

#include <string>
#include <vector>

#include "print/lavoro.h"
#include "print/motore.h"
#include "screen/programma.h"

namespace ambra {

struct ColonnaStampa {
    std::string titolo;
    int larghezza = 0;  ///< relative width
    int tipo = 0;       ///< alignment and number format
};

/// The engine's view of a program. Valid as long as the program.
ContestoStampa contesto_stampa(Programma& prog);

class Stampa {
  public:
    /// Fills entry 0 and the column entries of the print table and starts the counters. `colx` may be more
    /// than the columns described: the rest shows what the table holds from the report before.
    Stampa(Programma& prog, const std::string& titolo, int colx, const std::vector<ColonnaStampa>& colonne,
           int colall = 1);
    /// The text of cell `k`, from 1.
    std::string& cella(int k) { return prog_.imp.tabstampa[static_cast<std::size_t>(k)].coltesto; }
    /// Prints the cells as one row.
    void riga();
    /// Whether the page in hand holds rows.
    bool pagina_aperta() const { return prog_.rigacorr > 0; }
    /// Finishes the last page, if it holds rows, and the job.
    void fine();

  private:
    Programma& prog_;
    Clessidra attesa_;
    ContestoStampa contesto_;
    Lavoro lavoro_;  ///< ends with this
};

}  // namespace ambra
