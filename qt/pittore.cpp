#include "qt/pittore.h"

#include <QGlyphRun>
#include <algorithm>
#include <cmath>

namespace ambra {

namespace {

// Coordinates of a table gone wrong stay within what every device can take.
constexpr double kLimite = 1e6;
constexpr int kTestoInPenna = -2;

double entro(double v) {
    return std::isnan(v) ? 0 : std::clamp(v, -kLimite, kLimite);
}

QRectF rettangolo(double x1, double y1, double x2, double y2) {
    return QRectF(QPointF(entro(x1), entro(y1)), QPointF(entro(x2), entro(y2))).normalized();
}

}  // namespace

void Pittore::penna(long colore, int stile, int spessore) {
    if (colore == colore_ && stile == stile_ && spessore == spessore_) return;
    QPen penna(colore_qt(colore));
    if (stile != kTestoInPenna) {
        penna.setWidthF(std::clamp(spessore, 1, 600) * kTwipPerPuntoPenna);
        penna.setStyle(stile == 2 ? Qt::DotLine : Qt::SolidLine);
        penna.setCapStyle(Qt::FlatCap);
        penna.setJoinStyle(Qt::MiterJoin);
    }
    p_.setPen(penna);
    colore_ = colore;
    stile_ = stile;
    spessore_ = spessore;
}

void Pittore::testo(double x, double y, std::string_view testo, const Carattere& font, long colore) {
    const Faccia& faccia = facce_.di(font);
    if (colore != colore_testi_ || font != font_) disegna_testi();
    if (testi_.quali.isEmpty()) {
        colore_testi_ = colore;
        font_ = font;
        faccia_ = faccia.grezza();
    }
    if (faccia.raccogli(testi_, entro(x), entro(y), testo)) return;
    disegna_testi();
    penna(colore, kTestoInPenna, 0);
    faccia.disegna_in_prestito(p_, entro(x), entro(y), testo);
}

void Pittore::disegna_testi() {
    if (testi_.quali.isEmpty()) return;
    penna(colore_testi_, kTestoInPenna, 0);
    QGlyphRun run;
    run.setRawFont(faccia_);
    run.setRawData(testi_.quali.constData(), testi_.dove.constData(), static_cast<int>(testi_.quali.size()));
    p_.drawGlyphRun(QPointF(), run);
    testi_.quali.clear();
    testi_.dove.clear();
}

void Pittore::linea(double x1, double y1, double x2, double y2, long colore, int stile, int spessore) {
    disegna_testi();
    penna(colore, stile, spessore);
    p_.drawLine(QPointF(entro(x1), entro(y1)), QPointF(entro(x2), entro(y2)));
}

void Pittore::riquadro(double x1, double y1, double x2, double y2, long colore, int stile, int spessore) {
    disegna_testi();
    penna(colore, stile, spessore);
    p_.setBrush(Qt::NoBrush);
    p_.drawRect(rettangolo(x1, y1, x2, y2));
}

void Pittore::pieno(double x1, double y1, double x2, double y2, long colore) {
    disegna_testi();
    p_.fillRect(rettangolo(x1, y1, x2, y2), colore_qt(colore));
}

void Pittore::operazione(const OperazioneStampa& o) {
    const double k = o.unita == Scala::twip ? 1 : kTwipPerMm;
    switch (o.tipo) {
        case OperazioneStampa::Tipo::testo:
            testo(o.x1 * k, o.y1 * k, o.testo, o.font, o.colore);
            break;
        case OperazioneStampa::Tipo::linea:
            linea(o.x1 * k, o.y1 * k, o.x2 * k, o.y2 * k, o.colore, o.stile, o.spessore);
            break;
        case OperazioneStampa::Tipo::riquadro:
            riquadro(o.x1 * k, o.y1 * k, o.x2 * k, o.y2 * k, o.colore, o.stile, o.spessore);
            break;
        case OperazioneStampa::Tipo::pieno:
            pieno(o.x1 * k, o.y1 * k, o.x2 * k, o.y2 * k, o.colore);
            break;
        case OperazioneStampa::Tipo::testo_ricco:
            break;
    }
}

}  // namespace ambra
