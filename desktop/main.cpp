// vexoraf NNN: the desktop program of one building.
#include <QApplication>
#include <string>

#include "core/numeri.h"
#include "core/testo.h"
#include "desktop/aspetto.h"
#include "desktop/avvio.h"

int main(int argc, char** argv) {
    using namespace ambra;
    // The command line is one text, and the number in it is all there is.
    std::string comando;
    for (int i = 1; i < argc; ++i) comando += (i > 1 ? " " : "") + std::string(argv[i]);
    comando = da_utf8(comando);
    if (leggi_numero(comando) == 0) return 0;

    int solo_nome = 1;
    QApplication app(solo_nome, argv);
    prepara_aspetto(app);
    const std::string radice = radice_corrente();
    if (!si_puo_aprire(radice)) return 1;
    const ProgrammaDesktop programma(radice, comando);
    return QApplication::exec();
}
