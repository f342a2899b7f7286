#include "desktop/parts/colori.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

namespace ambra {

namespace {

constexpr double kContrastoMinimo = 4.5;

double canale(double c) {
    return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double luminanza(const QColor& c) {
    return 0.2126 * canale(c.redF()) + 0.7152 * canale(c.greenF()) + 0.0722 * canale(c.blueF());
}

bool cifre_uguali(const QFont& f) {
    const QFontMetricsF m(f);
    const double zero = m.horizontalAdvance('0');
    for (char c = '1'; c <= '9'; ++c)
        if (std::abs(m.horizontalAdvance(QLatin1Char(c)) - zero) > 0.01) return false;
    return true;
}

}  // namespace

QColor colore_di(long rgb) {
    return QColor(static_cast<int>(rgb & 0xFF), static_cast<int>(rgb >> 8 & 0xFF),
                  static_cast<int>(rgb >> 16 & 0xFF));
}

double contrasto(const QColor& a, const QColor& b) {
    const double x = luminanza(a), y = luminanza(b);
    return (std::max(x, y) + 0.05) / (std::min(x, y) + 0.05);
}

QColor testo_su(const QColor& sfondo) {
    return contrasto(Qt::black, sfondo) >= contrasto(Qt::white, sfondo) ? QColor(Qt::black)
                                                                        : QColor(Qt::white);
}

QColor leggibile(const QColor& testo, const QColor& sfondo) {
    const bool verso_chiaro = testo_su(sfondo) == QColor(Qt::white);
    float h, s, l;
    testo.getHslF(&h, &s, &l);
    QColor c = testo;
    for (int passo = 0; passo < 50 && contrasto(c, sfondo) < kContrastoMinimo; ++passo) {
        l = std::clamp(l + (verso_chiaro ? 0.02f : -0.02f), 0.0f, 1.0f);
        c = QColor::fromHslF(std::max(h, 0.0f), s, l);
    }
    return c;
}

QFont cifre_pari(const QFont& f) {
    if (cifre_uguali(f)) return f;
    for (const char* famiglia : {"Segoe UI", "Noto Sans", "DejaVu Sans", "Liberation Sans", "Arial"}) {
        if (!QFontDatabase::hasFamily(famiglia)) continue;
        QFont g(f);
        g.setFamilies({famiglia});
        if (cifre_uguali(g)) return g;
    }
    return f;
}

}  // namespace ambra
