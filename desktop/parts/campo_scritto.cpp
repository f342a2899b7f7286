#include "desktop/parts/campo_scritto.h"

#include <QFocusEvent>
#include <QPainter>

#include "desktop/parts/colori.h"

namespace ambra {

namespace {
constexpr int kSpessore = 2;  // of the underline, in pixels at 100 %
}

void CampoScritto::errore(const QString& perche) {
    if (errore_ == perche) return;
    if (errore_.isEmpty()) suggerimento_ = toolTip();
    errore_ = perche;
    setToolTip(perche.isEmpty() ? suggerimento_ : perche);
    setAccessibleDescription(perche);
    update();
}

QSize CampoScritto::sizeHint() const {
    const QSize s = QLineEdit::sizeHint();
    return ideale_ > 0 ? QSize(ideale_, s.height()) : s;
}

void CampoScritto::paintEvent(QPaintEvent* e) {
    QLineEdit::paintEvent(e);
    if (errore_.isEmpty()) return;
    QPainter p(this);
    const QRect r = rect().adjusted(kSpessore, 0, -kSpessore, -1);
    p.fillRect(QRect(r.left(), r.bottom() - kSpessore, r.width(), kSpessore),
               leggibile(Qt::red, palette().color(QPalette::Base)));
}

void CampoScritto::focusInEvent(QFocusEvent* e) {
    primo_clic_ = tutto_ && e->reason() == Qt::MouseFocusReason;
    QLineEdit::focusInEvent(e);
}

void CampoScritto::mouseReleaseEvent(QMouseEvent* e) {
    QLineEdit::mouseReleaseEvent(e);
    if (primo_clic_ && !hasSelectedText()) selectAll();
    primo_clic_ = false;
}

}  // namespace ambra
