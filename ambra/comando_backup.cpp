// `ambra backup` and `ambra restore`: one building and the files of all, in one compressed archive and back.
#include <chrono>
#include <iostream>
#include <memory>
#include <thread>

#include "ambra/archivio_compresso.h"
#include "ambra/comandi.h"
#include "archivio/archivio.h"
#include "core/disco.h"
#include "core/impostazioni.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "maintenance/copie_datate.h"
#include "maintenance/ripristino.h"

namespace ambra {

namespace {

// Long enough for whoever is in the middle of a registration to come to its end.
constexpr std::chrono::milliseconds kFraDuePassate{150};

struct Opzioni {
    std::string drive, nnn, file;
    bool comunque = false;
};

int esegui_backup(const Opzioni& o) {
    const auto drive = drive_di(o.drive);
    if (!drive) return 2;
    if (!o.comunque && altrui(o.file))
        return non_fatto(o.file + " c'è già e non è un salvataggio: per sostituirlo, --force");
    const auto vero = disco_vero(*drive);
    Disco& disco = *vero;
    const std::string nnn = nnn_di(da_utf8(o.nnn));
    std::vector<FileSalvato> file;
    const std::string male = raccogli(disco, nnn, file, [] { std::this_thread::sleep_for(kFraDuePassate); });
    if (!male.empty()) return non_fatto("stabile " + a_utf8(nnn) + " non salvato: " + a_utf8(male));
    if (const std::string no = scrivi_compresso(o.file, file); !no.empty())
        return non_fatto(o.file + ": " + no);
    std::cout << "Stabile " << a_utf8(nnn) << ": " << file.size() - 1 << " file salvati in " << o.file
              << '\n';
    return 0;
}

// What stands in the archive after a restore that was refused for that reason.
std::string dopo_il_rifiuto(Disco& disco, const std::string& male) {
    return a_utf8(male) + (ripristino_interrotto(disco).empty()
                               ? ". Nulla è cambiato."
                               : "; un ripristino è rimasto a metà, e il prossimo ambra restore lo finisce");
}

int esegui_restore(const Opzioni& o) {
    std::vector<FileSalvato> file;
    std::string nnn, male = leggi_compresso(o.file, file);
    if (male.empty()) male = a_utf8(difetto(file, nnn));
    if (!male.empty()) return non_fatto(o.file + " rifiutato: " + male + ". Nulla è cambiato.");
    const auto drive = drive_di(o.drive);
    if (!drive) return 2;
    const auto vero = disco_vero(*drive);
    Disco& disco = *vero;
    if (const std::string aperto = aperto_da_altri(disco, nnn); !aperto.empty())
        return non_fatto("un altro programma tiene aperto " + a_utf8(aperto) +
                         ": chiudete tutti i programmi che usano l'archivio. Nulla è cambiato.");
    if (const std::string no = riprendi_ripristino(disco); !no.empty())
        return non_fatto("un ripristino interrotto non si può finire: " + dopo_il_rifiuto(disco, no));
    // The folders of a drive that is new.
    disco.crea_cartella("\\lumdir");
    disco.crea_cartella("\\lumdir\\lumora");
    const std::string deposito = nuovo_deposito(disco, momento_di_adesso());
    if (const std::string no = ripristina(disco, file, nnn, deposito); !no.empty())
        return non_fatto("ripristino non riuscito: " + dopo_il_rifiuto(disco, no));
    std::cout << "Stabile " << nnn << ": " << file.size() - 1
              << " file ripristinati; quelli di prima sono in "
              << disco.reale("\\lumdir\\lumora\\" + deposito) << '\n';
    return 0;
}

}  // namespace

void aggiungi_backup(CLI::App& app, int& stato) {
    auto o = std::make_shared<Opzioni>();
    CLI::App* c = app.add_subcommand("backup", "Salva uno stabile e i file comuni in un archivio compresso");
    aggiungi_drive(*c, o->drive);
    c->add_option("NNN", o->nnn, "Numero dello stabile")->required();
    c->add_option("FILE", o->file, "L'archivio da scrivere (.tar.gz)")->required();
    c->add_flag("--force", o->comunque, "Sostituisce FILE anche se non è un salvataggio");
    c->callback([o, &stato] { stato = esegui_backup(*o); });

    auto r = std::make_shared<Opzioni>();
    CLI::App* d = app.add_subcommand("restore", "Rimette uno stabile salvato: tutti i file o nessuno");
    aggiungi_drive(*d, r->drive);
    d->add_option("FILE", r->file, "L'archivio da rimettere")->required();
    d->callback([r, &stato] { stato = esegui_restore(*r); });
}

}  // namespace ambra
