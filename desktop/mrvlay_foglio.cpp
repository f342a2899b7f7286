#include "desktop/mrvlay_foglio.h"

#include <QHelpEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QToolTip>
#include <algorithm>

#include "core/numeri.h"
#include "desktop/finestra.h"
#include "desktop/parts/colori.h"
#include "desktop/parts/griglia_vista.h"
#include "desktop/parts/testo_qt.h"
#include "forms/mrvlay.h"

namespace ambra {

namespace {

constexpr double kLarga_mm = 210, kAlta_mm = 297;
constexpr int kMargine = 10;  // pixels around the sheet
constexpr int kMinimo = 7;    // pixels: a name stays readable on a small picture
constexpr double kMm_per_punto = 25.4 / 72;

}  // namespace

VistaFoglio::VistaFoglio(Finestra& f, Mrvlay& s, VistaGriglia* elenco, QLabel* campione)
    : QWidget(&f), f_(f), elenco_(elenco), campione_(campione) {
    setObjectName(QStringLiteral("foglio"));
    setAccessibleName(QStringLiteral("Immagine del foglio"));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    s.mutato = [questo = QPointer<VistaFoglio>(this)] {
        if (questo) questo->mutato();
    };
    mutato();
}

QSize VistaFoglio::sizeHint() const {
    const int alta = fontMetrics().height() * 32;
    return {static_cast<int>(alta * kLarga_mm / kAlta_mm) + 2 * kMargine, alta};
}

QSize VistaFoglio::minimumSizeHint() const {
    return sizeHint() / 2;
}

const Mrvlay* VistaFoglio::schermo() const {
    return static_cast<const Mrvlay*>(f_.schermo());
}

double VistaFoglio::scala() const {
    return std::max(0.1,
                    std::min((width() - 2.0 * kMargine) / kLarga_mm, (height() - 2.0 * kMargine) / kAlta_mm));
}

QRectF VistaFoglio::foglio() const {
    const QSizeF s(kLarga_mm * scala(), kAlta_mm * scala());
    return {QPointF((width() - s.width()) / 2, (height() - s.height()) / 2), s};
}

QFont VistaFoglio::carattere(int riga, double pixel_per_punto) const {
    const Carattere c = carattere_di(schermo()->layout().campo[static_cast<std::size_t>(riga)]);
    QFont f(qs(c.nome));
    f.setPixelSize(std::clamp(static_cast<int>(c.punti * pixel_per_punto + 0.5), kMinimo, 2000));
    f.setBold(c.grassetto);
    f.setItalic(c.corsivo);
    return f;
}

QRectF VistaFoglio::posto(int riga) const {
    const Mrvlay* s = schermo();
    if (!s || riga < 1 || riga > s->tabella.quanti) return {};
    const CampoLayout& c = s->layout().campo[static_cast<std::size_t>(riga)];
    if (leggi_numero(c.posizione) == 0) return {};
    const QRectF f = foglio();
    const QFontMetricsF m(carattere(riga, scala() * kMm_per_punto));
    const QString nome = qs(s->tabella.riga[static_cast<std::size_t>(riga)].descrizione);
    return {f.left() + c.x_mm() * scala(), f.top() + c.y_mm() * scala(), m.horizontalAdvance(nome),
            m.height()};
}

void VistaFoglio::paintEvent(QPaintEvent*) {
    const Mrvlay* s = schermo();
    if (!s) return;
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF f = foglio();
    p.fillRect(f.translated(2, 2), palette().color(QPalette::Shadow));
    p.fillRect(f, Qt::white);

    // A faint line each 50 millimetres gives the eye a measure.
    p.setPen(QPen(QColor(225, 229, 236), 1));
    for (int mm = 50; mm < kAlta_mm; mm += 50) {
        const double passo = mm * scala();
        if (mm < kLarga_mm)
            p.drawLine(QPointF(f.left() + passo, f.top()), QPointF(f.left() + passo, f.bottom()));
        p.drawLine(QPointF(f.left(), f.top() + passo), QPointF(f.right(), f.top() + passo));
    }
    p.setPen(QPen(palette().color(QPalette::Mid), 1));
    p.drawRect(f);
    p.setClipRect(f);

    const QColor accento = palette().color(QPalette::Highlight);
    for (int r = 1; r <= s->tabella.quanti; ++r) {
        const QRectF dove = posto(r);
        if (dove.isNull()) continue;
        const CampoLayout& c = s->layout().campo[static_cast<std::size_t>(r)];
        p.setPen(leggibile(colore_di(c.rgb()), Qt::white));
        p.setFont(carattere(r, scala() * kMm_per_punto));
        p.drawText(dove.topLeft() + QPointF(0, QFontMetricsF(p.font()).ascent()),
                   qs(s->tabella.riga[static_cast<std::size_t>(r)].descrizione));
        // A corner marks the exact place even where the text is too small to read.
        p.setPen(QPen(accento, 1));
        p.drawLine(dove.topLeft(), dove.topLeft() + QPointF(3, 0));
        p.drawLine(dove.topLeft(), dove.topLeft() + QPointF(0, 3));
    }
    disegna_scelto(p, s->riga(), f);
}

// The chosen field: guides to the edges, and its name on a tag that can be read at any size.
void VistaFoglio::disegna_scelto(QPainter& p, int riga, const QRectF& f) const {
    const QRectF dove = posto(riga);
    if (dove.isNull()) return;
    const QColor accento = palette().color(QPalette::Highlight);
    p.setPen(QPen(accento, 1, Qt::DashLine));
    p.drawLine(QPointF(f.left(), dove.top()), QPointF(f.right(), dove.top()));
    p.drawLine(QPointF(dove.left(), f.top()), QPointF(dove.left(), f.bottom()));
    QColor velo = accento;
    velo.setAlpha(60);
    p.fillRect(dove, velo);

    p.setFont(font());
    const QString nome = qs(schermo()->tabella.riga[static_cast<std::size_t>(riga)].descrizione);
    QRectF targa(dove.bottomLeft() + QPointF(0, 4),
                 QSizeF(p.fontMetrics().horizontalAdvance(nome) + 10, p.fontMetrics().height() + 4));
    targa.moveLeft(std::max(f.left(), std::min(targa.left(), f.right() - targa.width())));
    targa.moveTop(std::max(f.top(), std::min(targa.top(), f.bottom() - targa.height())));
    p.setPen(Qt::NoPen);
    p.setBrush(accento);
    p.drawRoundedRect(targa, 3, 3);
    p.setPen(palette().color(QPalette::HighlightedText));
    p.drawText(targa, Qt::AlignCenter, nome);
}

int VistaFoglio::riga_a(const QPointF& punto) const {
    const Mrvlay* s = schermo();
    if (!s) return 0;
    for (int r = s->tabella.quanti; r >= 1; --r)
        if (posto(r).adjusted(-1, -1, 1, 1).contains(punto)) return r;
    return 0;
}

void VistaFoglio::mousePressEvent(QMouseEvent* e) {
    const int r = riga_a(e->position());
    if (r == 0) return;
    f_.utente([&] { static_cast<Mrvlay*>(f_.schermo())->elenco.scegli(r, 0); });
}

bool VistaFoglio::event(QEvent* e) {
    if (e->type() == QEvent::ToolTip) {
        auto* aiuto = static_cast<QHelpEvent*>(e);
        const Mrvlay* s = schermo();
        const int r = riga_a(aiuto->pos());
        if (s && r > 0) {
            const CampoLayout& c = s->layout().campo[static_cast<std::size_t>(r)];
            QToolTip::showText(aiuto->globalPos(),
                               QStringLiteral("%1: %2 × %3 mm")
                                   .arg(qs(s->tabella.riga[static_cast<std::size_t>(r)].descrizione))
                                   .arg(c.x_mm())
                                   .arg(c.y_mm()),
                               this);
        } else {
            QToolTip::hideText();
        }
        return true;
    }
    return QWidget::event(e);
}

void VistaFoglio::mutato() {
    update();
    const Mrvlay* s = schermo();
    if (!s || s->riga() == 0) return;
    QTableView* t = elenco_->tabella();
    if (t->model() && t->currentIndex().row() != s->riga() - 1)
        t->setCurrentIndex(t->model()->index(s->riga() - 1, 0));
    QFont f = carattere(s->riga(), 1);
    const CampoLayout& c = s->layout().campo[static_cast<std::size_t>(s->riga())];
    f.setPointSizeF(std::clamp(leggi_numero(c.corpo), 6.0, 18.0));
    campione_->setFont(f);
}

}  // namespace ambra
