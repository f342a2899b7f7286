#include "desktop/manuale.h"

#include <QFile>
#include <QPointer>
#include <QTextBrowser>

namespace ambra {

namespace {

QString pagina(const std::string& schermo) {
    for (const QString& nome : {QString::fromStdString(schermo), QStringLiteral("indice"),
                                QStringLiteral("README"), QStringLiteral("index")}) {
        const QString file = ":/manuale/" + nome + ".md";
        if (QFile::exists(file)) return file;
    }
    return {};
}

}  // namespace

bool apri_manuale(const std::string& schermo) {
    static QPointer<QTextBrowser> aperto;
    const QString file = pagina(schermo);
    if (file.isEmpty()) return false;
    if (!aperto) {
        aperto = new QTextBrowser;
        aperto->setAttribute(Qt::WA_DeleteOnClose);
        aperto->setWindowTitle(QStringLiteral("Kit Ambra - Manuale"));
        aperto->setOpenExternalLinks(false);
        const QFontMetrics m = aperto->fontMetrics();
        aperto->resize(m.averageCharWidth() * 100, m.height() * 36);
    }
    aperto->setSource(QUrl("qrc" + file), QTextDocument::MarkdownResource);
    aperto->show();
    aperto->raise();
    aperto->activateWindow();
    return true;
}

}  // namespace ambra
