#include "desktop/avvio.h"

#include <QMessageBox>

#include "desktop/copie.h"
#include "desktop/parts/testo_qt.h"
#include "desktop/ricordo_stampa.h"
#include "maintenance/ripristino.h"
#include "qt/tutte.h"

namespace ambra {

bool si_puo_aprire(const std::string& radice) {
    const std::string male = ripristino_interrotto(*disco_vero(radice));
    if (male.empty()) return true;
    QMessageBox::critical(nullptr, QStringLiteral("Attenzione"),
                          qs(unisci(maiuscolo(male.substr(0, 1)), male.substr(1), ".")));
    return false;
}

ProgrammaDesktop::ProgrammaDesktop(std::string radice, std::string comando)
    : vero(disco_vero(std::move(radice))), programma(disco, piattaforma, std::move(comando)) {
    piattaforma.imposta_stampante = [this](QWidget* padre) {
        const bool confermata = gestore_stampa.imposta(padre);
        if (confermata) ricorda_stampa(stampante);
        return confermata;
    };
    piattaforma.prima_della_fine = [this] { finestre.ricorda(); };
    disco.avviso = [this](const Guasto& g) { finestre.guasto(g); };
    riprendi_stampa(stampante);
    programma.lettore = lettore.get();
    copie = cartella_delle_copie(disco.reale(""));
    finestre.prima_del_clic = [this](const Schermo& s, const Controllo& c) {
        const auto motivo = senza_ritorno(s, c);
        return !motivo || copia_prima(programma, copie.get(), *motivo);
    };
    registra_tutte(programma.schermi);
    programma.schermi.apri("vexoraf");
}

}  // namespace ambra
