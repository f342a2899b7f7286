#include "desktop/copie.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <chrono>
#include <thread>

#include "core/testo.h"
#include "desktop/parts/testo_qt.h"
#include "maintenance/ripristino.h"
#include "screen/programma.h"

namespace ambra {

namespace {

// Long enough for whoever is in the middle of a registration to come to its end, short enough for a click.
constexpr std::chrono::milliseconds kFraDuePassate{60};
constexpr const char *kCopia = "copia", *kStabile = "stabile";

bool e_il(const Schermo& s, const Controllo& c, const char* schermo, const char* controllo) {
    return s.nome() == schermo && s.trova(controllo) == &c;
}

QString frase(std::string_view s) {
    return qs(unisci(maiuscolo(s.substr(0, 1)), s.substr(1), "."));
}

}  // namespace

std::optional<Motivo> senza_ritorno(const Schermo& s, const Controllo& c) {
    if (s.nome() == "vexoraf" && c.caption() == "Riordino") return Motivo::riordino;
    if (e_il(s, c, "mrvaazz", "command3d4(1)")) return Motivo::azzeramento;
    if (e_il(s, c, "lumfor", "b_srt")) return Motivo::indice;
    return {};
}

bool copia_prima(Programma& prog, Disco* fuori, Motivo motivo) {
    std::string male = "non c'è una cartella per le copie"_it;
    if (fuori) {
        const Clessidra attesa(prog);
        male = fai_copia(prog.disco, *fuori, prog.nnn(), motivo, momento_di_adesso(),
                         [] { std::this_thread::sleep_for(kFraDuePassate); });
    }
    return male.empty() ||
           prog.chiedi_prudente(unisci("Non è stato possibile fare una copia dello stabile ("_it, male,
                                       "). Continuare senza copia?"),
                                "Copia di sicurezza");
}

std::optional<std::string> scegli_copia(QWidget* padre, Disco& fuori, const std::string& nnn) {
    const auto copie = copie_di(fuori, nnn);
    QDialog d(padre);
    d.setObjectName(QStringLiteral("ripristina_copia"));
    d.setWindowTitle(QStringLiteral("Ripristina copia"));
    auto* pagina = new QVBoxLayout(&d);
    auto* testo = new QLabel(
        copie.empty()
            ? QStringLiteral("Di questo stabile non ci sono ancora copie. Se ne fa una da sola prima di "
                             "ogni riordino, azzeramento e rifacimento dell'indice.")
            : QStringLiteral("Lo stabile e i file comuni tornano come erano in quel momento. Ciò che c'è ora "
                             "resta in una cartella «sostituiti» accanto all'archivio. Tutti i programmi che "
                             "usano l'archivio vanno chiusi; questo si riapre da solo."));
    testo->setWordWrap(true);
    pagina->addWidget(testo);
    auto* elenco = new QListWidget;
    elenco->setObjectName(QStringLiteral("copie"));
    elenco->setAccessibleName(QStringLiteral("Copie dello stabile"));
    for (const auto& c : copie) elenco->addItem(qs(unisci(c.momento, "   ", c.motivo)));
    elenco->setCurrentRow(copie.empty() ? -1 : 0);
    pagina->addWidget(elenco, 1);
    auto* bottoni = new QDialogButtonBox;
    auto* fai = bottoni->addButton(QStringLiteral("&Ripristina"), QDialogButtonBox::AcceptRole);
    auto* no = bottoni->addButton(QStringLiteral("&Annulla"), QDialogButtonBox::RejectRole);
    fai->setEnabled(!copie.empty());
    // What replaces the archive wants a click of its own.
    no->setDefault(true);
    fai->setAutoDefault(false);
    QObject::connect(bottoni, &QDialogButtonBox::accepted, &d, &QDialog::accept);
    QObject::connect(bottoni, &QDialogButtonBox::rejected, &d, &QDialog::reject);
    pagina->addWidget(bottoni);
    d.resize(d.fontMetrics().averageCharWidth() * 70, d.fontMetrics().height() * 20);
    if (d.exec() != QDialog::Accepted || elenco->currentRow() < 0) return {};
    return copie[static_cast<std::size_t>(elenco->currentRow())].file;
}

void ripristina_copia(QWidget* padre, Programma& prog) {
    const auto fuori = cartella_delle_copie(prog.disco.reale(""));
    if (!fuori) return prog.ferma("Non c'è una cartella per le copie"_it);
    const auto scelta = scegli_copia(padre, *fuori, prog.nnn());
    if (!scelta) return;
    prenota_ripristino(prog.nnn(), *scelta);
    // Not quit(): the windows have nothing to say about it any more.
    QApplication::exit(0);
}

void prenota_ripristino(const std::string& nnn, const std::string& copia) {
    qApp->setProperty(kStabile, QString::fromStdString(nnn));
    qApp->setProperty(kCopia, QString::fromStdString(copia));
}

bool finisci_ripristino_copia(const std::string& radice) {
    const std::string nome = qApp->property(kCopia).toString().toStdString();
    const std::string nnn = qApp->property(kStabile).toString().toStdString();
    if (nome.empty()) return false;
    qApp->setProperty(kCopia, {});
    const auto disco = disco_vero(radice), fuori = cartella_delle_copie(radice);
    std::vector<FileSalvato> file;
    std::string male = fuori ? leggi_copia(*fuori, nnn, nome, file) : "la cartella delle copie manca";
    if (const std::string aperto = aperto_da_altri(*disco, nnn); male.empty() && !aperto.empty())
        male = unisci("un altro programma tiene aperto ", aperto);
    const std::string deposito = nuovo_deposito(*disco, momento_di_adesso());
    if (male.empty()) male = ripristina(*disco, file, nnn, deposito);
    if (male.empty())
        QMessageBox::information(nullptr, QStringLiteral("Ripristina copia"),
                                 qs(unisci("Ripristino eseguito. Ciò che c'era prima è nella cartella "_it,
                                           deposito, ", accanto ai file dell'archivio.")));
    else
        QMessageBox::critical(nullptr, QStringLiteral("Attenzione"),
                              frase(unisci("ripristino non riuscito: ", male)));
    return true;
}

}  // namespace ambra
