// `ambra`, the command line: batch, demo and the upkeep of archives.
#include <algorithm>

#include "ambra/comandi.h"
#include "core/riga.h"

namespace {

void parla_italiano(CLI::App& app) {
    for (const auto& [chiave, valore] : {std::pair{"Usage", "Uso"},
                                         {"OPTIONS", "OPZIONI"},
                                         {"SUBCOMMAND", "COMANDO"},
                                         {"Positionals", "Argomenti"},
                                         {"REQUIRED", "(necessario)"},
                                         {"TEXT", ""}})
        app.get_formatter()->label(chiave, valore);
    for (CLI::App* c : app.get_subcommands({})) {
        c->group("Comandi");
        c->get_help_ptr()->group("Opzioni");
    }
    app.get_help_ptr()->group("Opzioni");
    app.get_version_ptr()->group("Opzioni");
}

// What is wrong with the words of the command line.
std::string difetto_di_riga(const CLI::App& app, const CLI::ParseError& e) {
    const std::string detto = e.what();
    const auto resto = app.remaining(true);
    if (dynamic_cast<const CLI::ExtrasError*>(&e)) return "non capisco " + CLI::detail::join(resto, " ");
    if (dynamic_cast<const CLI::RequiredError*>(&e)) {
        if (!app.get_subcommands().empty()) return "manca " + detto.substr(0, detto.find(' '));
        return resto.empty() ? "manca il comando" : "non conosco il comando " + resto.front();
    }
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&e))
        return "manca il valore di " + detto.substr(0, detto.find(':'));
    return detto;
}

}  // namespace

int main(int argc, char** argv) {
    const ambra::FlussiUtf8 flussi;
    CLI::App app("Kit Ambra e acquisti per condominio", "ambra");
    app.require_subcommand(1);
    app.allow_windows_style_options(false);
    app.set_help_flag("-h,--help", "Mostra queste righe");
    app.set_version_flag("--version", "ambra " AMBRA_VERSIONE, "La versione");
    app.option_defaults()->group("Opzioni");
    int stato = 0;
    ambra::aggiungi_batch(app, stato);
    ambra::aggiungi_demo(app, stato);
    ambra::aggiungi_check(app, stato);
    ambra::aggiungi_backup(app, stato);
    ambra::aggiungi_fatture(app, stato);
    parla_italiano(app);
    auto parole = ambra::parole_della_riga(argc, argv);
    std::reverse(parole.begin(), parole.end());  // as the library takes them
    try {
        app.parse(std::move(parole));
    } catch (const CLI::ParseError& e) {
        if (e.get_exit_code() == 0) return app.exit(e);
        return ambra::non_fatto(difetto_di_riga(app, e) + "; si veda ambra --help");
    }
    return stato;
}
