// What lies in the archive's folder: files under two names, links, what broken work has left.
#include <algorithm>
#include <map>

#include "core/disco_comune.h"
#include "core/impostazioni.h"
#include "core/testo.h"
#include "maintenance/nomi_archivio.h"
#include "maintenance/ripristino.h"
#include "maintenance/verifica_cartella.h"
#include "records/stabile.h"

namespace ambra {

namespace {

void che_cosa_e(Cartella& c, const std::string& nome) {
    Cosa che{};
    if (c.disco().cosa_c_e(kCartella + nome, che) != 0) return;
    if (che == Cosa::collegamento) c.avviso(nome, 0, "", "un collegamento", "un file vero e proprio");
    if (che == Cosa::cartella || che == Cosa::altro) c.errore(nome, 0, "", "non un file", "un file");
}

}  // namespace

void verifica_nomi(Cartella& c, const std::vector<std::string>& nomi) {
    const bool a_meta = !ripristino_interrotto(c.disco()).empty();
    if (a_meta)
        c.errore(kGiornaleRipristino, 0, "", "un ripristino interrotto", "che ambra restore lo finisca");
    std::map<std::string, int> volte;
    for (const auto& n : nomi) {
        // What lies beside a journal is that restore's.
        if (!a_meta && e_avanzo(n))
            c.avviso(n, 0, "", "un file provvisorio rimasto", "nessuno, se nessun programma è al lavoro"_it);
        if (padrone(n).empty()) continue;
        const std::string m = minuscolo(n);
        if (++volte[m] == 2) c.errore(m, 0, "", "due file con questo nome", "un file solo");
        if (m != n) c.avviso(m, 0, "", n, "il nome in minuscolo");
        che_cosa_e(c, n);
    }
}

void verifica_stabile(Cartella& c, Saputo&) {
    FileDi<RecStabile> tot(c.err, 20);
    FileDi<RecStabile2> tt2(c.err, 30);
    const long numero = std::stol(c.nnn());
    // What is wrong with the files as such is told once for all buildings.
    c.err.azzera();
    if (tot.apri(c.disco(), c.percorso("lumora.tot"), Apertura::lettura)) {
        RecStabile r{};
        if (!leggi(tot, numero, r)) return c.illeggibile("lumora.tot", numero);
        if (r.nome.rifilato().empty())
            c.avviso("lumora.tot", numero, "nome", "",
                     unisci("il nome dello stabile ", c.nnn(), ", che ha dei file: aperto per sbaglio?"));
    }
    c.err.azzera();
    if (tt2.apri(c.disco(), c.percorso("lumora.tt2"), Apertura::lettura) && tt2.quanti() < numero)
        c.avviso("lumora.tt2", numero, "", "manca", unisci("i dati dello stabile ", c.nnn()));
}

}  // namespace ambra
