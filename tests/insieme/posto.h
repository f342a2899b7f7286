// A workplace: one program with all its screens on its own view of a shared archive in memory, and what its
// user does there, each action on the real screens.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "core/disco_attento.h"
#include "qt/tutte.h"
#include "screen/programma.h"
#include "tests/supporto/banco.h"

namespace ambra {

struct Posto {
    DiscoMemoria memoria;
    DiscoGuasto guasto{memoria};
    std::chrono::milliseconds dormito{0};
    DiscoAttento disco{guasto,
                       {[this] { return std::chrono::steady_clock::time_point(dormito); },
                        [this](std::chrono::milliseconds quanto) { dormito += quanto; }}};
    PiattaformaProva piattaforma;
    Programma prog;
    std::string sigla;             ///< of its user: tells his documents and amounts from another's
    std::vector<Guasto> avvisi;    ///< refused writes that were told
    std::vector<std::string> nel;  ///< names of the documents in its list
    int movimenti = 0;             ///< postings that it stored

    Posto(const ArchivioProva& archivio, std::string chi);

    bool primo() const { return sigla == "UNO"; }
    template <class F>
    void fai(F f) {
        Registro::Turno turno(prog.schermi);
        f();
    }
    template <class S>
    S& schermo(std::string_view nome) {
        return *static_cast<S*>(prog.schermi.caricato(nome));
    }
    bool aperto(std::string_view nome) const;
    void premi(Bottone& b) {
        fai([&] { b.premi(); });
    }
    void digita(CampoTesto& c, const std::string& s) {
        fai([&] { c.digita(s); });
    }
    /// Clicks the row of that document in the worklist.
    void clic(const std::string& numero, int colonna);
    /// The answers to the next questions, all "Sì" but for a charge that is not wanted.
    void rispondi(std::initializer_list<Risposta> r) { piattaforma.risposte.assign(r); }
    /// The next posting is stored by its user; where he finds the archive held he tries once more, then
    /// gives it up.
    void memorizza_l_addebito();
    /// Whether a stop sign with these words was shown.
    bool detto(const std::string& parole) const;
};

/// One action of a user: what he prepares, and the command that writes.
struct Azione {
    const char* nome;
    std::function<void(Posto&)> prepara;
    std::function<void(Posto&)> comanda;
    const char* documento = "";  ///< the one on file that it touches, "" for none, "*" for all
    void operator()(Posto& p) const {
        prepara(p);
        comanda(p);
    }
};

/// Every command of these programs that writes documents, accounts, suppliers or counters.
extern const std::vector<Azione> kAzioni;
/// The one of that name.
const Azione& azione(std::string_view nome);

/// The archive that they work on: three suppliers and the place of a deleted one, an index out of order,
/// three condomini, eight documents in every state.
struct ArchivioPronto : ArchivioProva {
    ArchivioPronto();
};

/// What an archive holds, told without the order of its documents, movements and suppliers.
struct Stato {
    std::vector<std::string> documenti, movimenti, fornitori;  ///< their bytes, sorted
    std::vector<std::string>
        nomi;  ///< of the index, in its order, each with the name on the record that it bears
    std::string contatori, totali, conti, condomini;
    bool stessi_documenti(const Stato& s) const {
        return documenti == s.documenti && contatori == s.contatori;
    }
    bool stessi_fornitori(const Stato& s) const {
        return fornitori == s.fornitori && nomi == s.nomi && contatori == s.contatori;
    }
    bool stessi_conti(const Stato& s) const {
        return movimenti == s.movimenti && totali == s.totali && conti == s.conti && condomini == s.condomini;
    }
};
Stato stato_di(ArchivioProva& a);
/// Number, and what of it matters, of each document: for the words of a failing test.
std::string in_breve(const Stato& s);

}  // namespace ambra
