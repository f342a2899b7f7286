// `ambra backup` and `ambra restore`: one building and the files of all, in one compressed archive and back.
#include <ctime>
#include <iostream>
#include <memory>

#include "ambra/archivio_compresso.h"
#include "ambra/comandi.h"
#include "core/archivio.h"
#include "core/disco_vero.h"
#include "core/numeri.h"
#include "core/testo.h"

namespace ambra {

namespace {

struct Opzioni {
    std::string drive, nnn, file;
};

DiscoVero disco_di(const Opzioni& o) {
    return DiscoVero(o.drive.empty() ? DiscoVero::radice_corrente() : o.drive);
}

int esegui_backup(const Opzioni& o) {
    DiscoVero disco = disco_di(o);
    const std::string nnn = nnn_di(da_utf8(o.nnn));
    std::vector<FileSalvato> file;
    if (const int e = raccogli(disco, nnn, file)) {
        std::cerr << "ambra: lo stabile " << a_utf8(nnn) << " manca o non si legge (errore " << e << ")\n";
        return 2;
    }
    if (const std::string male = scrivi_compresso(o.file, file); !male.empty()) {
        std::cerr << "ambra: " << o.file << ": " << male << '\n';
        return 2;
    }
    std::cout << "Stabile " << a_utf8(nnn) << ": " << file.size() - 1 << " file salvati in " << o.file
              << '\n';
    return 0;
}

// "sostituiti-20240315-101502": no folder of the archive bears such a name.
std::string deposito_di_adesso() {
    const std::time_t t = std::time(nullptr);
    std::tm tm{};
    localtime_r(&t, &tm);
    char b[40];
    std::strftime(b, sizeof b, "sostituiti-%Y%m%d-%H%M%S", &tm);
    return b;
}

int esegui_restore(const Opzioni& o) {
    std::vector<FileSalvato> file;
    std::string nnn, male = leggi_compresso(o.file, file);
    if (male.empty()) male = a_utf8(difetto(file, nnn));
    if (!male.empty()) {
        std::cerr << "ambra: " << o.file << " rifiutato: " << male << ". Nulla è cambiato.\n";
        return 2;
    }
    DiscoVero disco = disco_di(o);
    if (const int e = riprendi_ripristino(disco)) {
        std::cerr << "ambra: un ripristino interrotto non si può finire (errore " << e << ")\n";
        return 2;
    }
    // The folders of a drive that is new.
    disco.crea_cartella("\\lumdir");
    disco.crea_cartella("\\lumdir\\lumora");
    const std::string deposito = deposito_di_adesso();
    if (const int e = ripristina(disco, file, nnn, deposito)) {
        std::cerr << "ambra: ripristino non riuscito (errore " << e << ")\n";
        return 2;
    }
    std::cout << "Stabile " << nnn << ": " << file.size() - 1
              << " file ripristinati; quelli di prima sono in "
              << disco.reale("\\lumdir\\lumora\\" + deposito) << '\n';
    return 0;
}

}  // namespace

void aggiungi_backup(CLI::App& app, int& stato) {
    auto o = std::make_shared<Opzioni>();
    CLI::App* c = app.add_subcommand("backup", "Saves a building and the common files in one archive");
    c->add_option("--drive", o->drive, "Folder that stands for the current drive");
    c->add_option("NNN", o->nnn, "Number of the building")->required();
    c->add_option("FILE", o->file, "The archive to write (.tar.gz)")->required();
    c->callback([o, &stato] { stato = esegui_backup(*o); });

    auto r = std::make_shared<Opzioni>();
    CLI::App* d = app.add_subcommand("restore", "Puts a saved building back: all its files or none");
    d->add_option("--drive", r->drive, "Folder that stands for the current drive");
    d->add_option("FILE", r->file, "The archive of a backup")->required();
    d->callback([r, &stato] { stato = esegui_restore(*r); });
}

}  // namespace ambra
