// `ambra backup` and `ambra restore`: one building and the files of all, in one compressed archive and back.
#include <ctime>
#include <iostream>
#include <memory>

#include "ambra/archivio_compresso.h"
#include "ambra/comandi.h"
#include "core/archivio.h"
#include "core/disco.h"
#include "core/impostazioni.h"
#include "core/numeri.h"
#include "core/testo.h"

namespace ambra {

namespace {

struct Opzioni {
    std::string drive, nnn, file;
};

int esegui_backup(const Opzioni& o) {
    const auto drive = drive_di(o.drive);
    if (!drive) return 2;
    const auto vero = disco_vero(*drive);
    Disco& disco = *vero;
    const std::string nnn = nnn_di(da_utf8(o.nnn));
    std::vector<FileSalvato> file;
    if (const int e = raccogli(disco, nnn, file))
        return non_fatto("lo stabile " + a_utf8(nnn) + " manca o non si legge (errore " + std::to_string(e) +
                         ")");
    if (const std::string male = scrivi_compresso(o.file, file); !male.empty())
        return non_fatto(o.file + ": " + male);
    std::cout << "Stabile " << a_utf8(nnn) << ": " << file.size() - 1 << " file salvati in " << o.file
              << '\n';
    return 0;
}

// "sostituiti-20240315-101502", and a number behind it if such a folder is there: no folder of the archive
// bears such a name.
std::string deposito_di_adesso(Disco& disco) {
    const std::time_t t = std::time(nullptr);
    std::tm tm{};
    localtime_r(&t, &tm);
    char b[40];
    std::strftime(b, sizeof b, "sostituiti-%Y%m%d-%H%M%S", &tm);
    std::vector<std::string> nomi;
    std::string nome = b;
    for (int n = 2; disco.elenca(kCartella + nome, nomi) == 0; ++n) nome = unisci(b, "-", std::to_string(n));
    return nome;
}

// What stands in the archive after a restore that was refused with error `e`.
std::string dopo_il_rifiuto(Disco& disco, int e) {
    std::string giornale;
    const bool a_meta = disco.leggi_tutto(kCartella + kGiornaleRipristino, giornale) == 0;
    return "errore " + std::to_string(e) +
           (a_meta ? "; è rimasto a metà, e il prossimo ambra restore lo finisce" : ". Nulla è cambiato.");
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
    if (const int e = riprendi_ripristino(disco))
        return non_fatto("un ripristino interrotto non si può finire: " + dopo_il_rifiuto(disco, e));
    // The folders of a drive that is new.
    disco.crea_cartella("\\lumdir");
    disco.crea_cartella("\\lumdir\\lumora");
    const std::string deposito = deposito_di_adesso(disco);
    if (const int e = ripristina(disco, file, nnn, deposito))
        return non_fatto("ripristino non riuscito: " + dopo_il_rifiuto(disco, e));
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
    c->callback([o, &stato] { stato = esegui_backup(*o); });

    auto r = std::make_shared<Opzioni>();
    CLI::App* d = app.add_subcommand("restore", "Rimette uno stabile salvato: tutti i file o nessuno");
    aggiungi_drive(*d, r->drive);
    d->add_option("FILE", r->file, "L'archivio da rimettere")->required();
    d->callback([r, &stato] { stato = esegui_restore(*r); });
}

}  // namespace ambra
