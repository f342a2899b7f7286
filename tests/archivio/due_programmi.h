// Two programs on the documents of one archive.
#pragma once

#include <string>
#include <vector>

#include "tests/supporto/banco.h"

namespace ambra {

inline RecFattura fattura(int fornitore, const std::string& numero) {
    RecFattura f = fattura_vuota();
    f.numfor = fornitore;
    f.numdoc = numero;
    f.datadoc = f.datareg = "20240105";
    f.impon[0] = 100;
    return f;
}

struct DueProgrammi : Banco {
    DiscoMemoria altra{memoria.altro_programma()};
    PiattaformaProva piattaforma2;
    Programma prog2{altra, piattaforma2, "1"};

    void apri(const std::vector<RecFattura>& tutte) {
        fornitori({fornitore_vuoto("A")});
        fatture(tutte);
        prog.apriarchivi();
        prog2.apriarchivi();
    }
    RecFattura letta(int n) {
        RecFattura f{};
        leggi(prog.arc.ftr, n, f);
        return f;
    }
};

}  // namespace ambra
