#include "desktop/aspetto.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetrics>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>
#include <QTranslator>

#include "desktop/italiano.h"

namespace ambra {

namespace {

constexpr int kScuro = 128;  // of 255

// The common style of desktops, with air around the text of cells and headings.
class Stile : public QProxyStyle {
  public:
    Stile() : QProxyStyle(QStringLiteral("Fusion")) {}
    void drawPrimitive(PrimitiveElement e, const QStyleOption* o, QPainter* p,
                       const QWidget* w) const override {
        const auto* b = qstyleoption_cast<const QStyleOptionButton*>(o);
        const bool casella = e == PE_IndicatorCheckBox || e == PE_IndicatorRadioButton;
        if (!b || !casella || o->palette.color(QPalette::Window).lightness() > kScuro)
            return QProxyStyle::drawPrimitive(e, o, p, w);
        // The outline is made darker than the window: in the dark it would be lost.
        QStyleOptionButton chiara(*b);
        chiara.palette.setColor(QPalette::Window, o->palette.color(QPalette::WindowText));
        QProxyStyle::drawPrimitive(e, &chiara, p, w);
    }
    int pixelMetric(PixelMetric m, const QStyleOption* o, const QWidget* w) const override {
        const int proprio = QProxyStyle::pixelMetric(m, o, w);
        if (m == PM_FocusFrameHMargin || m == PM_HeaderMargin)
            return proprio + QFontMetrics(QApplication::font()).averageCharWidth() / 2;
        if (m == PM_ButtonMargin) return proprio + QFontMetrics(QApplication::font()).averageCharWidth();
        return proprio;
    }
    int styleHint(StyleHint h, const QStyleOption* o, const QWidget* w,
                  QStyleHintReturn* ritorno) const override {
        // A wheel meant for the page must not change what a combo holds.
        if (h == SH_ComboBox_AllowWheelScrolling) return 0;
        // A list under the field, as high as told, instead of a menu over the whole display.
        if (h == SH_ComboBox_Popup) return 0;
        if (h == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
        return QProxyStyle::styleHint(h, o, w, ritorno);
    }
};

// A sheet on a drop of amber.
QIcon icona_programma() {
    QIcon icona;
    for (const int lato : {16, 32, 48, 64}) {
        QPixmap m(lato, lato);
        m.fill(Qt::transparent);
        QPainter p(&m);
        p.setRenderHint(QPainter::Antialiasing);
        p.scale(lato / 16.0, lato / 16.0);
        QLinearGradient ambra(0, 0, 0, 16);
        ambra.setColorAt(0, QColor(0xF5, 0xB0, 0x41));
        ambra.setColorAt(1, QColor(0xB9, 0x6A, 0x0C));
        p.setPen(Qt::NoPen);
        p.setBrush(ambra);
        p.drawRoundedRect(QRectF(0.5, 0.5, 15, 15), 3.5, 3.5);
        p.setBrush(Qt::white);
        p.drawRect(QRectF(4.5, 3, 7, 10));
        p.setBrush(QColor(0xB9, 0x6A, 0x0C));
        for (const double y : {5.0, 7.0, 9.0}) p.drawRect(QRectF(5.8, y, 4.4, 0.8));
        icona.addPixmap(m);
    }
    return icona;
}

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

QFont carattere_leggibile(QFont f) {
    if (!QFontInfo(f).fixedPitch()) return f;
    for (const char* nome : {"DejaVu Sans", "Noto Sans", "Liberation Sans", "Arial"}) {
        if (!QFontDatabase::hasFamily(QString::fromLatin1(nome))) continue;
        f.setFamilies({QString::fromLatin1(nome)});
        break;
    }
    return f;
}

void prepara_aspetto(QApplication& app) {
    const QLocale italiano(QLocale::Italian, QLocale::Italy);
    QLocale::setDefault(italiano);
    QApplication::installTranslator(italiano_di_qt(app, italiano));
    QApplication::setFont(carattere_leggibile(QApplication::font()));
    QApplication::setStyle(new Stile);
    QApplication::setWindowIcon(icona_programma());
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setApplicationDisplayName({});
}

}  // namespace ambra
