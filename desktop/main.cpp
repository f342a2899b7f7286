// vexoraf NNN: the desktop program of one building.
#include <QApplication>
#include <cstdio>
#include <string>
#include <string_view>

#include "core/memoria.h"
#include "core/numeri.h"
#include "core/riga.h"
#include "core/testo.h"
#include "desktop/aspetto.h"
#include "desktop/avvio.h"
#include "desktop/cartella_archivio.h"
#include "desktop/copie.h"
#include "desktop/ingresso.h"

namespace {

constexpr const char* kUso =
    "Uso: vexoraf NNN\n"
    "     vexoraf --scegli\n"
    "Apre l'archivio dello stabile NNN che si trova nella cartella corrente (o nella radice dell'unità).\n"
    "  --scegli   mostra gli stabili per nome, fra cui scegliere\n"
    "  --help     queste righe\n"
    "  --version  la versione\n";

}  // namespace

int main(int argc, char** argv) {
    using namespace ambra;
    prepara_memoria();
    const std::string_view primo = argc > 1 ? argv[1] : "";
    if (primo == "--help" || primo == "-h") return di_a_chi_chiama(stdout, kUso), 0;
    if (primo == "--version") return di_a_chi_chiama(stdout, "vexoraf " AMBRA_VERSIONE "\n"), 0;
    const bool scegli = primo == "--scegli" && argc == 2;
    // A second word is no part of a number: the files of some other building would be made.
    if (argc > 2 || (primo.starts_with("-") && !scegli && leggi_numero(primo) <= 0))
        return di_a_chi_chiama(stderr, kUso), 2;
    // The command line is one text, and the number in it is all there is.
    std::string comando;
    if (!scegli)
        for (const auto& parola : parole_della_riga(argc, argv))
            comando += (comando.empty() ? "" : " ") + parola;
    comando = da_utf8(comando);
    if (!scegli && leggi_numero(comando) == 0) return 0;

    auto lista =
        scegli ? std::future<std::shared_ptr<ListaAnticipata>>() : anticipa(radice_corrente(), comando);
    int solo_nome = 1;
    QApplication app(solo_nome, argv);
    prepara_aspetto(app);
    const auto dove = scegli ? radice_dal_desktop(chiedi_cartella) : radice_corrente();
    if (!dove) return 1;
    const std::string& radice = *dove;
    const auto da_aprire = ingresso(radice, comando);
    if (!da_aprire) return 1;
    for (;;) {
        const int stato = [&] {
            const ProgrammaDesktop programma(radice, *da_aprire, std::move(lista));
            return QApplication::exec();
        }();
        // A copy that was chosen is put back while no program is there; then the work begins anew.
        if (!finisci_ripristino_copia(radice)) return stato;
        if (!si_puo_aprire(radice)) return 1;
    }
}
