#include "desktop/aspetto.h"

#include <QApplication>
#include <QFontMetrics>
#include <QLibraryInfo>
#include <QLocale>
#include <QProxyStyle>
#include <QTranslator>

#include "desktop/italiano.h"

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

// The library's own translation, or ours where it is not installed.
QTranslator* italiano_di_qt(QApplication& app, const QLocale& italiano) {
    auto* suo = new QTranslator(&app);
    for (const QString& dove :
         {QLibraryInfo::path(QLibraryInfo::TranslationsPath), app.applicationDirPath() + "/translations"})
        if (suo->load(italiano, "qtbase", "_", dove)) return suo;
    delete suo;
    return new ItalianoDiQt(&app);
}

}  // namespace

void prepara_aspetto(QApplication& app) {
    const QLocale italiano(QLocale::Italian, QLocale::Italy);
    QLocale::setDefault(italiano);
    QApplication::installTranslator(italiano_di_qt(app, italiano));
    QApplication::setStyle(new Stile);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setApplicationDisplayName({});
}

}  // namespace ambra
