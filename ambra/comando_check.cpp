// `ambra check`: reads the archive of some or all buildings and tells every breach. It writes nothing unless
// told to repair.
#include <algorithm>
#include <iostream>
#include <memory>

#include "ambra/comandi.h"
#include "ambra/stato_json.h"
#include "archivio/archivio.h"
#include "core/disco.h"
#include "core/testo.h"
#include "maintenance/copie_datate.h"
#include "maintenance/riparazione.h"
#include "maintenance/ripristino.h"
#include "maintenance/verifica.h"

namespace ambra {

namespace {

struct OpzioniCheck {
    std::string drive;
    bool json = false, ripara = false;
    std::vector<std::string> stabili;
};

const char* nome_gravita(Gravita g) {
    return g == Gravita::errore ? "errore" : "avviso";
}

void a_macchina(const Rilievo& r) {
    std::cout << Json{{"event", "finding"},
                      {"severity", r.gravita == Gravita::errore ? "error" : "warning"},
                      {"building", r.stabile},
                      {"file", a_utf8(r.file)},
                      {"record", r.record},
                      {"field", r.campo},
                      {"found", a_utf8(r.trovato)},
                      {"expected", a_utf8(r.atteso)},
                      {"count", r.volte}}
                     .dump()
              << '\n';
}

void a_persona(const Rilievo& r) {
    std::string riga = unisci(r.file, r.record > 0 ? ", record " + std::to_string(r.record) : "",
                              r.campo.empty() ? "" : ", " + r.campo, ": ", nome_gravita(r.gravita),
                              ", trovato \"", r.trovato, "\", atteso: ", r.atteso,
                              r.volte == 2  ? " (e un'altra volta)"
                              : r.volte > 2 ? unisci(" (e altre ", std::to_string(r.volte - 1), " volte)")
                                            : "");
    std::cout << a_utf8(riga) << '\n';
}

struct Conto {
    std::size_t stabili = 0;
    long errori = 0, avvisi = 0;
};

void conclusione_a_macchina(const Conto& c, int stato) {
    std::cout << Json{{"event", "summary"},
                      {"buildings", c.stabili},
                      {"errors", c.errori},
                      {"warnings", c.avvisi},
                      {"status", stato}}
                     .dump()
              << '\n';
}

void conclusione_a_persona(const Conto& c, int stato) {
    std::cout << "Stabili verificati: " << c.stabili << ", errori: " << c.errori << ", avvisi: " << c.avvisi
              << '\n';
    if (stato == 2) std::cout << "Una parte dell'archivio manca o non si legge\n";
    if (stato == 0) std::cout << "Nessun rilievo\n";
}

// The buildings to look at, those that were asked for or all; one that is not there is told.
std::vector<std::string> da_verificare(const OpzioniCheck& o, const std::vector<std::string>& presenti) {
    if (o.stabili.empty()) return presenti;
    std::vector<std::string> chiesti;
    for (const auto& s : o.stabili) {
        chiesti.push_back(nnn_di(da_utf8(s)));
        if (std::find(presenti.begin(), presenti.end(), chiesti.back()) == presenti.end())
            non_fatto("lo stabile " + a_utf8(chiesti.back()) + " manca");
    }
    return chiesti;
}

void racconta(const OpzioniCheck& o, const std::string& nnn, const std::string& detto) {
    if (o.json)
        std::cout << Json{{"event", "repair"}, {"building", nnn}, {"text", a_utf8(detto)}}.dump() << '\n';
    else
        std::cout << "Riparato " << a_utf8(detto) << '\n';
}

// Mends one building, a copy first; false if it was refused, which is told.
bool ripara_stabile(const OpzioniCheck& o, Disco& disco, Disco* copie, const std::string& nnn) {
    if (!riparabile(disco, nnn)) return true;
    std::string male = copie ? fai_copia(disco, *copie, nnn, Motivo::riparazione, momento_di_adesso())
                             : "non c'è una cartella per le copie"_it;
    if (!male.empty()) male = unisci("senza una copia non si tocca nulla: ", male);
    if (male.empty()) male = ripara(disco, nnn, [&](const std::string& s) { racconta(o, nnn, s); });
    if (!male.empty()) non_fatto("stabile " + a_utf8(nnn) + " non riparato: " + a_utf8(male));
    return male.empty();
}

// Before the check: what broken work has left, then each building.
bool ripara_tutto(const OpzioniCheck& o, Disco& disco, const std::string& drive,
                  const std::vector<std::string>& stabili) {
    if (const std::string male = riprendi_ripristino(disco); !male.empty()) {
        non_fatto("un ripristino interrotto non si può finire: " + a_utf8(male));
        return false;
    }
    togli_avanzi(disco, [&](const std::string& s) { racconta(o, "", s); });
    const auto copie = cartella_delle_copie(drive);
    bool bene = true;
    for (const auto& s : stabili) bene = ripara_stabile(o, disco, copie.get(), s) && bene;
    return bene;
}

int esegui_check(const OpzioniCheck& o) {
    const auto drive = drive_di(o.drive);
    if (!drive) return 2;
    const auto vero = disco_vero(*drive);
    Disco& disco = *vero;
    Conto conto;
    Verifica v(disco, [&](const Rilievo& r) {
        ++(r.gravita == Gravita::errore ? conto.errori : conto.avvisi);
        o.json ? a_macchina(r) : a_persona(r);
    });
    std::vector<std::string> presenti, stabili;
    bool bene = v.quali_stabili(presenti);
    if (!bene) {
        non_fatto(*drive + ": la cartella lumdir/lumora manca o non si legge");
    } else if (presenti.empty()) {
        bene = false;
        non_fatto(*drive + ": in lumdir/lumora non c'è nessuno stabile");
    } else {
        stabili = da_verificare(o, presenti);
        if (o.ripara) bene = ripara_tutto(o, disco, *drive, stabili);
        v.globali();
        for (const auto& s : stabili) v.stabile(s);
    }
    conto.stabili = stabili.size();
    const int stato = bene ? v.stato() : 2;
    (o.json ? conclusione_a_macchina : conclusione_a_persona)(conto, stato);
    return stato;
}

}  // namespace

void aggiungi_check(CLI::App& app, int& stato) {
    auto o = std::make_shared<OpzioniCheck>();
    CLI::App* c = app.add_subcommand(
        "check", "Controlla un archivio e dice ogni difetto; non scrive nulla, se non con --repair");
    aggiungi_drive(*c, o->drive);
    c->add_flag("--repair", o->ripara,
                "Prima rimedia a indici, conteggi e avanzi, dopo averne fatto una copia");
    c->add_flag("--json", o->json, "Un oggetto JSON per riga");
    c->add_option("NNN", o->stabili, "Numeri degli stabili; se mancano, tutti");
    c->callback([o, &stato] { stato = esegui_check(*o); });
}

}  // namespace ambra
