// `ambra check`: reads the archive of some or all buildings and tells every breach. It never writes.
#include <iostream>
#include <memory>

#include "ambra/comandi.h"
#include "ambra/eventi.h"
#include "core/archivio.h"
#include "core/disco_vero.h"
#include "core/testo.h"
#include "maintenance/verifica.h"

namespace ambra {

namespace {

struct OpzioniCheck {
    std::string drive;
    bool json = false;
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
                      {"expected", a_utf8(r.atteso)}}
                     .dump()
              << '\n';
}

void a_persona(const Rilievo& r) {
    std::string riga = unisci(r.file, r.record > 0 ? ", record " + std::to_string(r.record) : "",
                              r.campo.empty() ? "" : ", " + r.campo, ": ", nome_gravita(r.gravita),
                              ", trovato \"", r.trovato, "\", atteso: ", r.atteso);
    std::cout << a_utf8(riga) << '\n';
}

int esegui_check(const OpzioniCheck& o) {
    DiscoVero disco(o.drive.empty() ? DiscoVero::radice_corrente() : o.drive);
    long errori = 0, avvisi = 0;
    Verifica v(disco, [&](const Rilievo& r) {
        ++(r.gravita == Gravita::errore ? errori : avvisi);
        o.json ? a_macchina(r) : a_persona(r);
    });
    std::vector<std::string> stabili;
    v.stabili(stabili);
    const bool vuoto = stabili.empty();
    if (!o.stabili.empty()) {
        stabili.clear();
        for (const auto& s : o.stabili) stabili.push_back(nnn_di(da_utf8(s)));
    }
    v.globali();
    for (const auto& s : stabili) v.stabile(s);
    const int stato = vuoto ? 2 : v.stato();
    if (o.json) {
        std::cout << Json{{"event", "summary"},
                          {"buildings", stabili.size()},
                          {"errors", errori},
                          {"warnings", avvisi},
                          {"status", stato}}
                         .dump()
                  << '\n';
    } else {
        std::cout << "Stabili verificati: " << stabili.size() << ", errori: " << errori
                  << ", avvisi: " << avvisi << '\n';
        if (stato == 2) std::cout << "Una parte dell'archivio manca o non si legge\n";
        if (stato == 0) std::cout << "Nessun rilievo\n";
    }
    return stato;
}

}  // namespace

void aggiungi_check(CLI::App& app, int& stato) {
    auto o = std::make_shared<OpzioniCheck>();
    CLI::App* c = app.add_subcommand("check", "Reads an archive and tells every breach; never writes");
    c->add_option("--drive", o->drive, "Folder that stands for the current drive");
    c->add_flag("--json", o->json, "One JSON object a line");
    c->add_option("NNN", o->stabili, "Numbers of the buildings; all if missing");
    c->callback([o, &stato] { stato = esegui_check(*o); });
}

}  // namespace ambra
