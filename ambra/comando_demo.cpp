#include <filesystem>
#include <iostream>
#include <memory>

#include "ambra/comandi.h"
#include "ambra/demo.h"
#include "core/disco.h"
#include "core/percorso.h"

namespace ambra {

namespace {

struct OpzioniDemo {
    std::string cartella, oggi;
    bool intera = false;
};

int esegui_demo(const OpzioniDemo& o) {
    const auto oggi = oggi_di(o.oggi);
    if (!oggi) return non_fatto("non è una data: " + o.oggi);
    std::error_code ec;
    std::filesystem::create_directories(percorso_utf8(o.cartella), ec);
    const auto vero = disco_vero(o.cartella);
    Disco& disco = *vero;
    if (demo::archivio_altrui(disco))
        return non_fatto(o.cartella +
                         " contiene già un archivio, che resta com'è: indicate un'altra cartella");
    if (!demo::crea(disco, {*oggi, o.intera}))
        return non_fatto(o.cartella + ": l'archivio di prova non si può scrivere");
    std::cout << "Archivio di prova in " << o.cartella << ", stabili da 1 a 3\n";
    return 0;
}

}  // namespace

void aggiungi_demo(CLI::App& app, int& stato) {
    auto o = std::make_shared<OpzioniDemo>();
    CLI::App* c = app.add_subcommand("demo", "Crea in una cartella un archivio di prova completo");
    c->add_option("DIR", o->cartella, "Cartella che diventa il disco")->required();
    c->add_option("--today", o->oggi, "La data a cui arrivano le registrazioni, gg/mm/aaaa")
        ->type_name("DATA");
    c->add_flag("--full", o->intera, "Stabile 1 di grandezza piena: 30.000 fatture, 1.000 fornitori");
    c->callback([o, &stato] { stato = esegui_demo(*o); });
}

}  // namespace ambra
