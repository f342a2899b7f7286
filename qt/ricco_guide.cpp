#include "qt/ricco_guide.h"

#include <QFontMetricsF>
#include <QTextCursor>
#include <algorithm>

namespace ambra {

namespace {

constexpr int kGuide = QTextFormat::UserProperty + 30;
constexpr double kUnPoco = 0.5;
constexpr int kMassime = 4000;  // characters in one row of dots

// What leads to the stop that a tab beginning at `x` of its line goes to.
QChar guida_da(const QTextBlockFormat& f, double x) {
    const QString guide = f.stringProperty(kGuide);
    const QList<QTextOption::Tab> fermate = f.tabPositions();
    const auto n = std::min(fermate.size(), guide.size());
    for (qsizetype i = 0; i < n; ++i)
        if (fermate[i].position > x + kUnPoco) return guide[i];
    return {};
}

}  // namespace

void ricorda_guide(QTextBlockFormat& f, const QString& guide) {
    const bool qualcuna = std::any_of(guide.begin(), guide.end(), [](QChar c) { return !c.isNull(); });
    if (qualcuna) f.setProperty(kGuide, guide);
}

void disegna_guide(QPainter& p, const QTextBlock& b, const QTextLine& linea, QPointF dove) {
    if (!b.blockFormat().hasProperty(kGuide)) return;
    const QString testo = b.text();
    QTextCursor cursore(b);
    for (int i = linea.textStart(); i < linea.textStart() + linea.textLength(); ++i) {
        if (testo[i] != u'\t') continue;
        const double da = linea.cursorToX(i), a = linea.cursorToX(i + 1);
        const QChar guida = guida_da(b.blockFormat(), da - linea.x());
        if (guida.isNull()) continue;
        cursore.setPosition(b.position() + i + 1);
        const QTextCharFormat f = cursore.charFormat();
        const double larga = QFontMetricsF(f.font()).horizontalAdvance(guida);
        if (!(larga > 0)) continue;
        const int quante = std::clamp(static_cast<int>((a - da) / larga), 0, kMassime);
        p.setFont(f.font());
        p.setPen(f.foreground().color());
        p.drawText(dove + QPointF(a - quante * larga, linea.y() + linea.ascent()), QString(quante, guida));
    }
}

}  // namespace ambra
