#include "desktop/avvio.h"

#include "qt/tutte.h"

namespace ambra {

ProgrammaDesktop::ProgrammaDesktop(std::string radice, std::string comando)
    : vero(disco_vero(std::move(radice))), programma(disco, piattaforma, std::move(comando)) {
    piattaforma.imposta_stampante = [this](QWidget* padre) { return gestore_stampa.imposta(padre); };
    registra_tutte(programma.schermi);
    programma.schermi.apri("vexoraf");
}

}  // namespace ambra
