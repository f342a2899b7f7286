#include <ctime>
#include <filesystem>
#include <iostream>
#include <memory>

#include "ambra/comandi.h"
#include "ambra/demo.h"
#include "core/disco_vero.h"

namespace ambra {

namespace {

struct OpzioniDemo {
    std::string cartella, oggi;
    bool intera = false;
};

int esegui_demo(const OpzioniDemo& o) {
    const auto oggi = oggi_di(o.oggi);
    if (!oggi) {
        std::cerr << "ambra: not a date: " << o.oggi << '\n';
        return 2;
    }
    std::error_code ec;
    std::filesystem::create_directories(o.cartella, ec);
    DiscoVero disco(o.cartella);
    if (!demo::crea(disco, {*oggi, o.intera})) {
        std::cerr << "ambra: cannot write the demo archive in " << o.cartella << '\n';
        return 2;
    }
    std::cout << "Demo archive in " << o.cartella << ", buildings 1 to 3\n";
    return 0;
}

}  // namespace

void aggiungi_demo(CLI::App& app, int& stato) {
    auto o = std::make_shared<OpzioniDemo>();
    CLI::App* c = app.add_subcommand("demo", "Makes a complete, lifelike archive under a folder");
    c->add_option("DIR", o->cartella, "Folder that becomes the drive")->required();
    c->add_option("--today", o->oggi, "The date up to which the books run, dd/mm/yyyy");
    c->add_flag("--full", o->intera, "Building 1 of full size: 30,000 documents, 1,000 suppliers");
    c->callback([o, &stato] { stato = esegui_demo(*o); });
}

}  // namespace ambra
