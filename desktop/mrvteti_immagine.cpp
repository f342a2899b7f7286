#include "desktop/mrvteti_immagine.h"

#include <QLocale>
#include <QPainter>
#include <QPointer>
#include <algorithm>
#include <cmath>

#include "desktop/finestra.h"
#include "desktop/parts/colori.h"
#include "desktop/parts/testo_qt.h"
#include "forms/mrvteti.h"

namespace ambra {

namespace {

constexpr int kMargine = 10;  // pixels around each picture
constexpr double kMm_per_punto = 25.4 / 72;
constexpr double kParteEtichetta = 0.42;  // of the height
constexpr int kMassimoLinee = 200;        // more labels than that are a grey sheet

// A rectangle of `mm` in the middle of `dove`, as large as fits; empty for measures that are none.
QRectF dentro(const QRectF& dove, const QSizeF& mm) {
    if (!(mm.width() > 0.1 && mm.height() > 0.1 && mm.width() < 1e5 && mm.height() < 1e5)) return {};
    const QSizeF s = mm.scaled(dove.size(), Qt::KeepAspectRatio);
    return {dove.center() - QPointF(s.width() / 2, s.height() / 2), s};
}

}  // namespace

VistaEtichetta::VistaEtichetta(Finestra& f, Mrvteti& s) : QWidget(&f), f_(f) {
    setObjectName(QStringLiteral("immagine"));
    setLocale(QLocale(QLocale::Italian));
    setAccessibleName(QStringLiteral("Immagine dell'etichetta e del foglio"));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    s.mutato = [questo = QPointer<VistaEtichetta>(this)] {
        if (questo) questo->update();
    };
}

QSize VistaEtichetta::sizeHint() const {
    const int passo = fontMetrics().height();
    return {passo * 20, passo * 30};
}

QSize VistaEtichetta::minimumSizeHint() const {
    return sizeHint() / 2;
}

const Mrvteti* VistaEtichetta::schermo() const {
    return static_cast<const Mrvteti*>(f_.schermo());
}

GeometriaFoglio VistaEtichetta::misure() const {
    return schermo() ? geometria(schermo()->etic()) : GeometriaFoglio{};
}

QRectF VistaEtichetta::etichetta() const {
    const GeometriaFoglio g = misure();
    const QRectF dove(kMargine, kMargine + fontMetrics().height(), width() - 2.0 * kMargine,
                      height() * kParteEtichetta - 2.0 * kMargine - fontMetrics().height());
    return dentro(dove, {g.larghezza, g.altezza});
}

QRectF VistaEtichetta::foglio() const {
    if (!schermo()) return {};
    const Etic& e = schermo()->etic();
    const double sopra = height() * kParteEtichetta + fontMetrics().height();
    const QRectF dove(kMargine, sopra + kMargine, width() - 2.0 * kMargine,
                      height() - sopra - 2.0 * kMargine);
    return dentro(dove, {e.numero(Etic::kFoglio, 1), e.numero(Etic::kFoglio, 2)});
}

double VistaEtichetta::scala() const {
    const QRectF r = etichetta();
    return r.isEmpty() ? 0 : r.width() / misure().larghezza;
}

QFont VistaEtichetta::carattere(int riga) const {
    const Carattere c = schermo()->etic().carattere(riga);
    QFont f(qs(c.nome));
    f.setPixelSize(std::clamp(static_cast<int>(c.punti * kMm_per_punto * scala() + 0.5), 4, 400));
    f.setBold(c.grassetto);
    f.setItalic(c.corsivo);
    return f;
}

// What the label will bear: the fixed text of a free field, else the name of the field.
QString VistaEtichetta::testo_campo(int riga) const {
    const auto& campi = schermo()->campi();
    const int liberi = static_cast<int>(campi.size()) - 5;
    if (riga > liberi && riga <= liberi + 5) {
        const std::string& fisso = schermo()->etic()(Etic::kTestiFissi, riga - liberi);
        if (!fisso.empty()) return qs(fisso);
    }
    return qs(campi[static_cast<std::size_t>(riga) - 1]);
}

QRectF VistaEtichetta::posto(int riga) const {
    const QRectF r = etichetta();
    if (r.isEmpty() || riga < 1 || riga > static_cast<int>(schermo()->campi().size())) return {};
    const double x = schermo()->etic().numero(riga, Etic::kX), y = schermo()->etic().numero(riga, Etic::kY);
    if (!(x > 0 && y > 0 && x < 1e5 && y < 1e5)) return {};
    const QFontMetricsF m(carattere(riga));
    return {r.left() + x * scala(), r.top() + y * scala(), m.horizontalAdvance(testo_campo(riga)),
            m.height()};
}

void VistaEtichetta::disegna_etichetta(QPainter& p) const {
    const QRectF r = etichetta();
    p.setPen(palette().color(QPalette::WindowText));
    const GeometriaFoglio g = misure();
    const QString titolo = r.isEmpty() ? QStringLiteral("Etichetta: misure non valide")
                                       : QStringLiteral("Etichetta campione, %1 × %2 mm")
                                             .arg(locale().toString(g.larghezza, 'f', 1))
                                             .arg(locale().toString(g.altezza, 'f', 1));
    p.drawText(QRectF(0, 2, width(), fontMetrics().height() + 4), Qt::AlignCenter, titolo);
    if (r.isEmpty()) return;
    p.fillRect(r.translated(2, 2), palette().color(QPalette::Shadow));
    p.fillRect(r, Qt::white);
    p.save();
    p.setClipRect(r);
    p.setPen(QPen(QColor(225, 229, 236), 1));
    for (double mm = 10; mm < g.larghezza && mm < 2000; mm += 10)
        p.drawLine(QPointF(r.left() + mm * scala(), r.top()), QPointF(r.left() + mm * scala(), r.bottom()));
    for (double mm = 10; mm < g.altezza && mm < 2000; mm += 10)
        p.drawLine(QPointF(r.left(), r.top() + mm * scala()), QPointF(r.right(), r.top() + mm * scala()));
    const int quanti = static_cast<int>(schermo()->campi().size());
    const int prima = schermo()->prima_riga();
    for (int riga = 1; riga <= quanti; ++riga) {
        const QRectF dove = posto(riga);
        if (dove.isNull()) continue;
        QColor velo = palette().color(QPalette::Highlight);
        velo.setAlpha(40);
        if (riga >= prima && riga < prima + Mrvteti::kVisibili) p.fillRect(dove, velo);
        p.setFont(carattere(riga));
        p.setPen(leggibile(colore_di(schermo()->etic().colore(riga)), Qt::white));
        p.drawText(dove.topLeft() + QPointF(0, QFontMetricsF(p.font()).ascent()), testo_campo(riga));
    }
    p.restore();
    p.setPen(QPen(palette().color(QPalette::Mid), 1));
    p.drawRect(r);
}

void VistaEtichetta::disegna_foglio(QPainter& p) const {
    const QRectF r = foglio();
    const GeometriaFoglio g = misure();
    p.setFont(font());
    p.setPen(palette().color(QPalette::WindowText));
    const QString titolo = r.isEmpty()
                               ? QStringLiteral("Foglio: misure non valide")
                               : QStringLiteral("Foglio: %1 × %2 etichette").arg(g.colonne).arg(g.righe);
    p.drawText(QRectF(0, height() * kParteEtichetta, width(), fontMetrics().height() + 4), Qt::AlignCenter,
               titolo);
    if (r.isEmpty()) return;
    const double s = r.width() / schermo()->etic().numero(Etic::kFoglio, 1);
    p.fillRect(r.translated(2, 2), palette().color(QPalette::Shadow));
    p.fillRect(r, Qt::white);
    p.save();
    p.setClipRect(r);
    const auto punto = [&](double x, double y) { return QPointF(r.left() + x * s, r.top() + y * s); };
    if (g.colonne > 0 && g.righe > 0 && g.colonne <= kMassimoLinee && g.righe <= kMassimoLinee) {
        QColor velo = palette().color(QPalette::Highlight);
        velo.setAlpha(50);
        p.fillRect(QRectF(punto(g.x0, g.y0), punto(g.x0 + g.larghezza, g.y0 + g.altezza)), velo);
        p.setPen(QPen(palette().color(QPalette::Highlight), 1));
        for (int i = 0; i <= g.colonne; ++i)
            p.drawLine(punto(g.x0 + i * g.larghezza, g.y0), punto(g.x0 + i * g.larghezza, g.y1));
        for (int i = 0; i <= g.righe; ++i)
            p.drawLine(punto(g.x0, g.y0 + i * g.altezza), punto(g.x1, g.y0 + i * g.altezza));
    }
    p.restore();
    p.setPen(QPen(palette().color(QPalette::Mid), 1));
    p.drawRect(r);
}

void VistaEtichetta::paintEvent(QPaintEvent*) {
    if (!schermo()) return;
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    disegna_etichetta(p);
    disegna_foglio(p);
}

}  // namespace ambra
