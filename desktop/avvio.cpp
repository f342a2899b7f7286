#include "desktop/avvio.h"

#include <QMessageBox>

#include "core/date.h"
#include "core/nomi_file.h"
#include "desktop/copie.h"
#include "desktop/parts/testo_qt.h"
#include "desktop/ricordo_stampa.h"
#include "maintenance/ripristino.h"
#include "qt/tutte.h"
#include "worklist/lista.h"

namespace ambra {

bool si_puo_aprire(const std::string& radice) {
    const std::string male = ripristino_interrotto(*disco_vero(radice));
    if (male.empty()) return true;
    QMessageBox::critical(nullptr, QStringLiteral("Attenzione"),
                          qs(unisci(maiuscolo(male.substr(0, 1)), male.substr(1), ".")));
    return false;
}

std::future<std::shared_ptr<ListaAnticipata>> anticipa(const std::string& radice,
                                                       const std::string& comando) {
    const std::tm ora = adesso();
    const std::string oggi = in_aaaammgg(testo_data({ora.tm_mday, ora.tm_mon + 1, ora.tm_year + 1900}));
    return std::async(std::launch::async, [=]() -> std::shared_ptr<ListaAnticipata> {
        try {
            return anticipa_lista(disco_vero(radice), nnn_di(comando), oggi);
        } catch (const std::exception&) {
            return nullptr;  // it will be read in its turn
        }
    });
}

ProgrammaDesktop::ProgrammaDesktop(std::string radice, std::string comando,
                                   std::future<std::shared_ptr<ListaAnticipata>> lista)
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
    programma.lista_in_arrivo = std::move(lista);
    programma.schermi.apri("vexoraf");
}

}  // namespace ambra
