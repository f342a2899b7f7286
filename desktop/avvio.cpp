#include "desktop/avvio.h"

#include <QDir>

#include "desktop/parts/testo_qt.h"
#include "qt/tutte.h"

namespace ambra {

namespace {

// A job that became a file is worth a word: nothing comes out of a printer.
void di_dove(Platform& p, const std::string& titolo, const QString& file, bool riuscito) {
    if (!riuscito) {
        p.message_box("La stampa non è riuscita"_it, titolo, Icona::stop, Bottoni::ok);
    } else if (!file.isEmpty()) {
        p.message_box(unisci("La stampa è nel file "_it, da_qs(QDir::toNativeSeparators(file))), titolo,
                      Icona::informazione, Bottoni::ok);
    }
}

}  // namespace

ProgrammaDesktop::ProgrammaDesktop(std::string radice, std::string comando)
    : disco(std::move(radice)), programma(disco, piattaforma, std::move(comando)) {
    stampante.stampato = [this](const std::string& titolo, const QString& file, bool riuscito) {
        di_dove(piattaforma, titolo, file, riuscito);
    };
    registra_tutte(programma.schermi);
    programma.schermi.apri("vexoraf");
}

}  // namespace ambra
