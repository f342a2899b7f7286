#include "desktop/aspetto.h"

#include <QApplication>
#include <QFontMetrics>
#include <QLibraryInfo>
#include <QLocale>
#include <QProxyStyle>
#include <QTranslator>

namespace ambra {

namespace {

// The common style of desktops, with air around the text of cells and headings.
class Stile : public QProxyStyle {
  public:
    Stile() : QProxyStyle(QStringLiteral("Fusion")) {}
    int pixelMetric(PixelMetric m, const QStyleOption* o, const QWidget* w) const override {
        const int proprio = QProxyStyle::pixelMetric(m, o, w);
        if (m == PM_FocusFrameHMargin || m == PM_HeaderMargin)
            return proprio + QFontMetrics(QApplication::font()).averageCharWidth() / 2;
        if (m == PM_ButtonMargin) return proprio + QFontMetrics(QApplication::font()).averageCharWidth();
        return proprio;
    }
};

}  // namespace

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
    QApplication::setStyle(new Stile);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setApplicationDisplayName({});
}

}  // namespace ambra
