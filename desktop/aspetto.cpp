#include "desktop/aspetto.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace ambra {

void prepara_aspetto(QApplication& app) {
    const QLocale italiano(QLocale::Italian, QLocale::Italy);
    QLocale::setDefault(italiano);
    auto* qt = new QTranslator(&app);
    for (const QString& dove :
         {QLibraryInfo::path(QLibraryInfo::TranslationsPath), app.applicationDirPath() + "/translations"})
        if (qt->load(italiano, "qtbase", "_", dove)) {
            QApplication::installTranslator(qt);
            break;
        }
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setApplicationDisplayName({});
}

}  // namespace ambra
