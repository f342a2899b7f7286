// `ambra fatture`: lists electronic invoices, sorted by the building that they are for. It never writes.
#include <algorithm>
#include <filesystem>
#include <iostream>
#include <memory>
#include <vector>

#include "ambra/comandi.h"
#include "ambra/fatture_json.h"
#include "core/date.h"
#include "core/disco.h"
#include "core/percorso.h"
#include "core/testo.h"
#include "invoices/analisi.h"
#include "invoices/stabili_drive.h"
#include "parti/parti.h"

namespace ambra {

namespace {

struct OpzioniFatture {
    std::string drive;
    bool json = false;
    std::vector<std::string> percorsi;
};

// A line of the list, ready to be written.
struct Riga {
    int stabile = 0;  // 0: of no building of the drive
    std::string testo;
};

struct Elenco {
    std::vector<Riga> righe;
    std::vector<std::string> rifiutate;
    int saltate = 0;
};

std::string data_italiana(const std::string& iso) {
    const auto d = data_iso(iso);
    return d ? testo_data(*d) : iso;
}

std::string a_persona(const FatturaLetta& f, const Analisi& a, int stabile) {
    std::string r = stabile > 0 ? con_zeri(stabile, 3) : "---";
    for (const std::string& s :
         {data_italiana(a.data), std::string(a.nota_credito ? "Nota credito" : "Fattura"), a.numero,
          f.fornitore.chiamato(), a.totale.testo_italiano(), "ritenuta " + a.ritenuta.testo_italiano(),
          "netto " + a.netto.testo_italiano(), f.voce.empty() ? f.file : f.file + "/" + f.voce})
        r += "  " + s;
    for (std::size_t i = 0; i < a.avvisi.size(); ++i) r += (i == 0 ? "  [" : ", ") + a.avvisi[i];
    std::replace_if(
        r.begin(), r.end(), [](char c) { return c == '\n' || c == '\r' || c == '\t'; }, ' ');
    return a.avvisi.empty() ? r : r + "]";
}

std::string a_persona(const FatturaRifiutata& r) {
    return (r.voce.empty() ? r.file : r.file + "/" + r.voce) + ": non leggibile: " + r.motivo;
}

void aggiungi(const OpzioniFatture& o, const StabiliDrive& stabili, const FileLetto& letto, Elenco& e) {
    for (const FatturaLetta& f : letto.fatture) {
        const Analisi a = analizza(f);
        const int stabile = stabili.di(f.cliente);
        e.righe.push_back({stabile, o.json ? riga_json(f, a) : a_persona(f, a, stabile)});
    }
    for (const FatturaRifiutata& r : letto.rifiutate)
        e.rifiutate.push_back(o.json ? riga_json(r) : a_persona(r));
    e.saltate += letto.saltate;
}

// A folder that cannot be listed is handed back as what was asked for.
void prendi(const OpzioniFatture& o, const StabiliDrive& stabili, LettoreFatture& lettore,
            const std::string& percorso, Elenco& e) {
    for (const std::string& f : lettore.file_di(percorso)) {
        FileLetto letto = lettore.leggi_file(f);
        std::error_code ec;
        if (std::filesystem::is_directory(percorso_utf8(f), ec))
            for (FatturaRifiutata& r : letto.rifiutate) r.motivo = "la cartella non si legge";
        aggiungi(o, stabili, letto, e);
    }
}

int esegui_fatture(const OpzioniFatture& o) {
    const auto drive = drive_di(o.drive);
    if (!drive) return 2;
    std::string perche;
    ParteArchivi* archivi = parte_archivi(perche);
    if (!archivi) return non_fatto(perche);
    const StabiliDrive stabili(*disco_vero(*drive));
    Elenco e;
    for (const std::string& p : o.percorsi) prendi(o, stabili, archivi->lettore(), p, e);
    // By building; what is of none of them comes last.
    std::stable_sort(e.righe.begin(), e.righe.end(), [](const Riga& a, const Riga& b) {
        return static_cast<unsigned>(a.stabile - 1) < static_cast<unsigned>(b.stabile - 1);
    });
    for (const Riga& r : e.righe) std::cout << r.testo << '\n';
    for (const std::string& r : e.rifiutate) std::cout << r << '\n';
    if (!o.json)
        std::cout << "Documenti: " << e.righe.size() << ", non leggibili: " << e.rifiutate.size()
                  << ", altre voci: " << e.saltate << '\n';
    return e.rifiutate.empty() ? 0 : 1;
}

}  // namespace

void aggiungi_fatture(CLI::App& app, int& stato) {
    auto o = std::make_shared<OpzioniFatture>();
    CLI::App* c = app.add_subcommand("fatture", "Elenca fatture elettroniche per stabile; non scrive nulla");
    aggiungi_drive(*c, o->drive);
    c->add_flag("--json", o->json, "Un oggetto JSON per documento");
    c->add_option("PERCORSO", o->percorsi, "File e cartelle: XML, p7m, zip")->required();
    c->callback([o, &stato] { stato = esegui_fatture(*o); });
}

}  // namespace ambra
