// The workbench of a unit test: a program with all its screens on a disc in memory.
#pragma once

#include <string>
#include <vector>

#include "qt/tutte.h"
#include "records/fattura.h"
#include "records/fornitore.h"
#include "records/nome.h"
#include "records/totali.h"
#include "screen/programma.h"
#include "tests/supporto/disco_guasto.h"
#include "tests/supporto/disco_memoria.h"
#include "tests/supporto/piattaforma_prova.h"

namespace ambra {

/// The bytes of a record.
template <class R>
std::string byte_di(const R& r) {
    return {reinterpret_cast<const char*>(&r), sizeof r};
}

/// A record of blanks and zeros as this system writes them: texts blank, numbers 0.
RecFornitore fornitore_vuoto(const std::string& nome = "");
RecFattura fattura_vuota();

/// The archive of building 1 on a disc in memory.
struct ArchivioProva {
    DiscoMemoria memoria;

    /// Content of lumNNN.ext of building 1, or of a whole global name.
    std::string& file(const std::string& estensione);
    /// Appends suppliers (index in the given order, upper case) and sets their counters.
    void fornitori(const std::vector<RecFornitore>& tutti);
    /// Appends documents and sets their counter.
    void fatture(const std::vector<RecFattura>& tutte);
    void testo(const std::string& nome, const std::vector<std::string>& righe);
};

struct Banco : ArchivioProva {
    DiscoGuasto disco{memoria};
    PiattaformaProva piattaforma;
    Programma prog;

    explicit Banco(std::string nnn = "1") : prog(disco, piattaforma, std::move(nnn)) {
        registra_tutte(prog.schermi);
        piattaforma.sezioni_prese = [this] { return prog.arc.sezioni_prese(); };
    }
    /// The archive must be laid out before: opens the main screen.
    void avvia() { prog.schermi.apri("vexoraf"); }

    template <class S>
    S& schermo(std::string_view nome) {
        return prog.schermi.carica<S>(nome);
    }
};

}  // namespace ambra
