#include "desktop/aspetto.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetrics>
#include <QIcon>
#include <QLocale>
#include <QProxyStyle>
#include <QStyleOption>
#include <QTimer>
#include <QTranslator>

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

constexpr int kDopoIlPrimoElenco = 50;  // ms

// Those of title bars, task bars and switchers, no more: each is read at once.
QIcon icona_programma() {
    QIcon icona;
    for (const int lato : {16, 24, 32, 48, 128}) icona.addFile(QStringLiteral(":/icone/%1.png").arg(lato));
    return icona;
}

// The library's own translation, which the program carries. The names of kinds of files went to another class
// of the library; their Italian stayed behind with the first.
class ItalianoDiQt : public QTranslator {
  public:
    using QTranslator::QTranslator;
    QString translate(const char* contesto, const char* testo, const char* distinzione,
                      int n) const override {
        const QString suo = QTranslator::translate(contesto, testo, distinzione, n);
        if (!suo.isNull() || qstrcmp(contesto, "QAbstractFileIconProvider") != 0) return suo;
        return QTranslator::translate("QFileDialog", testo, distinzione, n);
    }
};

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
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    auto* italiano = new ItalianoDiQt(&app);
    if (italiano->load(QStringLiteral(":/traduzioni/qtbase_it.qm")))
        QApplication::installTranslator(italiano);
    QApplication::setFont(carattere_leggibile(QApplication::font()));
    QApplication::setStyle(new Stile);
    // Pictures need libraries of their own, which a list does without.
    QTimer::singleShot(kDopoIlPrimoElenco, &app, [] { QApplication::setWindowIcon(icona_programma()); });
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setApplicationDisplayName({});
}

}  // namespace ambra
