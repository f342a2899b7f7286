#include "desktop/manuale.h"

#include "qt/accanto.h"

#include <QFile>
#include <QPointer>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBlock>
#include <QTextBrowser>

namespace ambra {

namespace {

struct Voce {
    const char* schermo;
    const char* capitolo;
};
constexpr Voce kVoci[] = {
    {"vexoraf", "La finestra principale"},
    {"lumfor", "Fornitori"},
    {"lumftem", "Registrare una fattura"},
    {"lumftea", "Registrare una fattura"},
    {"lumincx", "Registrare una fattura"},
    {"mrvsel", "Registrare una fattura"},
    {"luminca", "Pagare"},
    {"lumpgr", "Ritenute d'acconto"},
    {"lumcer", "Ritenute d'acconto"},
    {"lumstca", "Ritenute d'acconto"},
    {"lumstcr", "Ritenute d'acconto"},
    {"mrvcal", "Scadenze delle ritenute"},
    {"mrvcau", "Scadenze delle ritenute"},
    {"mrvanz", "Scoperto per anzianità"},
    {"lumstct", "Stampe"},
    {"lumstcs", "Stampe"},
    {"lumstcf", "Stampe"},
    {"lumstcd", "Stampe"},
    {"lumstcy", "Stampe"},
    {"lumstcx", "Stampe"},
    {"lumstce", "Stampe"},
    {"mrvtiva", "Tabelle"},
    {"mrvtpag", "Tabelle"},
    {"mrvlay", "Tabelle"},
    {"mrvteti", "Tabelle"},
    {"mrvaazz", "Archivi"},
    {"mrvaind", "Archivi"},
};

void vai_al_capitolo(QTextBrowser* b, const QString& capitolo) {
    for (QTextBlock t = b->document()->begin(); t.isValid(); t = t.next()) {
        if (t.blockFormat().headingLevel() == 0 || t.text() != capitolo) continue;
        // From the end upwards, so that the heading comes to stand at the top.
        b->moveCursor(QTextCursor::End);
        b->setTextCursor(QTextCursor(t));
        b->verticalScrollBar()->setValue(b->verticalScrollBar()->value() + b->cursorRect().top());
        return;
    }
}

}  // namespace

QString capitolo_di(const std::string& schermo) {
    for (const Voce& v : kVoci)
        if (schermo == v.schermo) return QString::fromUtf8(v.capitolo);
    return QString::fromUtf8(kVoci[0].capitolo);
}

QTextBrowser* apri_manuale(const std::string& schermo) {
    static QPointer<QTextBrowser> aperto;
    if (!QFile::exists(QStringLiteral(":/manuale.md"))) return nullptr;
    if (!aperto) {
        aperto = new QTextBrowser;
        aperto->setAttribute(Qt::WA_DeleteOnClose);
        for (const QKeySequence& via : {QKeySequence(Qt::Key_Escape), QKeySequence(QKeySequence::Close)})
            QObject::connect(new QShortcut(via, aperto), &QShortcut::activated, aperto, &QWidget::close);
        aperto->setWindowTitle(QStringLiteral("Kit Ambra - Manuale"));
        const QFontMetrics m = aperto->fontMetrics();
        aperto->resize(m.averageCharWidth() * 120, m.height() * 36);
        aperto->setSource(QUrl(QStringLiteral("qrc:/manuale.md")), QTextDocument::MarkdownResource);
        aperto->document()->setDocumentMargin(m.averageCharWidth() * 2);
    }
    if (!aperto->isVisible()) metti_accanto(*aperto);
    aperto->show();
    aperto->raise();
    aperto->activateWindow();
    vai_al_capitolo(aperto, capitolo_di(schermo));
    return aperto;
}

}  // namespace ambra
