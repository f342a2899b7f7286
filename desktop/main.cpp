// vexoraf NNN: the desktop program of one building.
#include <QApplication>
#include <string>

#include "core/disco_vero.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "desktop/aspetto.h"
#include "desktop/finestre.h"
#include "desktop/piattaforma_qt.h"
#include "print/registratore.h"
#include "qt/tutte.h"

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
    DiscoVero disco(DiscoVero::radice_corrente());
    RecordingPrinter stampante;
    PiattaformaQt piattaforma(stampante, &disco);
    Programma programma(disco, piattaforma, comando);
    registra_tutte(programma.schermi);
    const Finestre finestre(programma);
    programma.schermi.apri("vexoraf");
    return QApplication::exec();
}
