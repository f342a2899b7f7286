#include "desktop/cartella_archivio.h"

#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

#include "core/disco.h"
#include "desktop/ingresso.h"
#include "qt/ricordi.h"

namespace ambra {

namespace {

const QString kCartellaScelta = QStringLiteral("archivio/cartella");

// The drive around a folder, which becomes the current one, if it holds an archive.
std::optional<std::string> archivio_attorno(const QString& cartella) {
    if (cartella.isEmpty() || !QDir::setCurrent(cartella)) return {};
    std::string radice = radice_corrente();
    if (stabili_in_archivio(*disco_vero(radice)).empty()) return {};
    return radice;
}

}  // namespace

std::optional<std::string> radice_dal_desktop(const std::function<QString(const QString&)>& chiedi) {
    QString cartella = QDir::currentPath();
    if (auto radice = archivio_attorno(cartella)) return radice;
    if (auto radice = archivio_attorno(ricordi().value(kCartellaScelta).toString())) return radice;
    for (;;) {
        cartella = chiedi(QStringLiteral("Nessun archivio in %1.").arg(QDir::toNativeSeparators(cartella)));
        if (cartella.isEmpty()) return {};
        if (auto radice = archivio_attorno(cartella)) {
            ricordi().setValue(kCartellaScelta, QDir::currentPath());
            return radice;
        }
    }
}

QString chiedi_cartella(const QString& motivo) {
    QMessageBox m(QMessageBox::Question, QStringLiteral("Kit Ambra"), motivo);
    m.setInformativeText(QStringLiteral("L'archivio è la cartella in cui si trova \"lumdir\"."));
    QPushButton* scegli = m.addButton(QStringLiteral("&Scegli la cartella..."), QMessageBox::AcceptRole);
    m.addButton(QStringLiteral("&Esci"), QMessageBox::RejectRole);
    m.setDefaultButton(scegli);
    m.exec();
    if (m.clickedButton() != scegli) return {};
    return QFileDialog::getExistingDirectory(nullptr, QStringLiteral("La cartella dell'archivio"),
                                             QDir::homePath());
}

}  // namespace ambra
