// The start of the desktop program, DIR NNN, up to the first painting of its list.
#include <QTableView>

#include "bench/finestre_comuni.h"
#include "core/memoria.h"
#include "desktop/aspetto.h"
#include "desktop/avvio.h"
#include "desktop/parts/griglia_vista.h"

int main(int argc, char** argv) {
    using namespace ambra;
    if (argc < 3) return 2;
    prepara_memoria();
    auto lista = anticipa(argv[1], argv[2]);
    QApplication app(argc, argv);
    prepara_aspetto(app);
    const ProgrammaDesktop p(argv[1], argv[2], std::move(lista));
    auto* elenco = p.finestre.finestra("vexoraf")->findChild<VistaGriglia*>("elenco");
    const PrimoDisegno fine(elenco->tabella()->viewport());
    return QApplication::exec();
}
