// `ambra`, the command line: batch, demo and the upkeep of archives.
#include "ambra/comandi.h"

int main(int argc, char** argv) {
    CLI::App app("Kit Ambra e acquisti per condominio");
    app.require_subcommand(1);
    int stato = 0;
    ambra::aggiungi_batch(app, stato);
    ambra::aggiungi_demo(app, stato);
    ambra::aggiungi_check(app, stato);
    ambra::aggiungi_backup(app, stato);
    CLI11_PARSE(app, argc, argv);
    return stato;
}
