#include "suppliers/duplica.h"

#include <algorithm>
#include <array>

#include "archivio/fornitore.h"
#include "core/filetesto.h"
#include "core/lettura.h"
#include "core/testo.h"

namespace ambra {

namespace {

using Codice = std::array<char, 16>;

// Trimmed and padded again, so that two codes compare by their bytes.
Codice codice(const Testo<16>& t) {
    Codice c;
    std::replace_copy(std::begin(t.b), std::end(t.b), c.begin(), '\0', ' ');
    if (c[0] == ' ') {
        const auto inizio = std::find_if(c.begin(), c.end(), [](char x) { return x != ' '; });
        std::fill(std::move(inizio, c.end(), c.begin()), c.end(), ' ');
    }
    return c;
}

// False: another program holds that building.
bool duplica_in(Programma& prog, const std::string& nnn, const RecFornitore& fornitore) {
    FileDi<RecTotali> tfr(prog.err, 26);
    FileDi<RecFornitore> fornitori(prog.err, 27);
    FileDi<RecNome> srf(prog.err, 28);
    tfr.apri(prog.disco, nome_file(nnn, "tfr"));
    fornitori.apri(prog.disco, nome_file(nnn, "for"));
    srf.apri(prog.disco, nome_file(nnn, "srf"));
    Serratura serratura(prog.disco, nome_file(nnn, "tfr"));
    serratura.lasciate = [&] {
        fornitori.consolida();
        srf.consolida();
        tfr.consolida();
    };
    const Sezione sezione(serratura, Serratura::fornitori);
    if (!sezione.presa()) return false;
    RecTotali totali{};
    if (!leggi(tfr, 1, totali)) return true;
    if (trova_codfis(fornitori, totali.parola[0], fornitore.codfis) != 0) return true;
    (void)aggiungi_fornitore({tfr, fornitori, srf}, prog.err, fornitore, fornitore.inte1.grezzo());
    return true;
}

}  // namespace

int trova_codfis(FileDi<RecFornitore>& fornitori, int quanti, const Testo<16>& quale) {
    const Codice cercato = codice(quale);
    Passata<RecFornitore> schede(fornitori);
    for (int k = 1; k <= quanti; ++k) {
        const RecFornitore* f = schede.vista(k);
        if (f && codice(f->codfis) == cercato) return k;
    }
    return 0;
}

bool duplica(Programma& prog, const RecFornitore& fornitore,
             const std::function<void(const std::string&)>& avviso) {
    const int corrente = prog.numero_stabile();
    RecStabile stabile{};
    bool tutti = true;
    for (int b = 1; b <= kUltimoStabileDuplicato; ++b) {
        if (b == corrente) continue;
        const std::string nnn = con_zeri(b, 3);
        if (!prova_lettura(prog.disco, prog.err, nome_file(nnn, "tfr"))) continue;
        leggi_o_resta(prog.arc.edifici, b, stabile);
        if (avviso) avviso(stabile.nome.rifilato());
        tutti = duplica_in(prog, nnn, fornitore) && tutti;
    }
    return tutti;
}

}  // namespace ambra
