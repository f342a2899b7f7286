#include "desktop/parts/pagina_scorrevole.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>

namespace ambra {

namespace {

// Hides from the scroll area that the page has lines that wrap: it would want the height that the page would
// like, where its lists can do with less.
class Foglio : public QWidget {
  public:
    explicit Foglio(QWidget* pagina) : pagina_(pagina) { pagina->setParent(this); }
    QSize sizeHint() const override { return pagina_->sizeHint(); }
    QSize minimumSizeHint() const override {
        QSize s = pagina_->minimumSizeHint();
        const QLayout* l = pagina_->layout();
        if (l && l->hasHeightForWidth() && width() >= s.width())
            s.setHeight(std::max(s.height(), l->minimumHeightForWidth(width())));
        return s;
    }

  protected:
    void resizeEvent(QResizeEvent*) override { pagina_->setGeometry(rect()); }
    bool event(QEvent* e) override {
        if (e->type() == QEvent::LayoutRequest) updateGeometry();
        return QWidget::event(e);
    }

  private:
    QWidget* pagina_;
};

}  // namespace

PaginaScorrevole::PaginaScorrevole(QWidget* pagina, QWidget* padre) : QScrollArea(padre) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setWidget(new Foglio(pagina));
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* ora) { segui_il_fuoco(ora); });
}

QSize PaginaScorrevole::sizeHint() const {
    return widget()->sizeHint();
}

QSize PaginaScorrevole::minimumSizeHint() const {
    const QSize minima = widget()->minimumSizeHint();
    // Room for the frame and the title of the window, and for its margins.
    const int bordo = fontMetrics().height() * 3;
    const QSize spazio = screen()->availableGeometry().size() - QSize(bordo, bordo);
    const int barra = verticalScrollBar()->sizeHint().width();
    const bool alta = minima.height() > spazio.height();
    return (minima + QSize(alta ? barra : 0, 0)).boundedTo(spazio);
}

void PaginaScorrevole::segui_il_fuoco(QWidget* ora) {
    if (!ora || !widget()->isAncestorOf(ora)) return;
    // As far to the left as the field allows: its caption stands there.
    if (ora->mapTo(widget(), QPoint(ora->width(), 0)).x() <= viewport()->width())
        horizontalScrollBar()->setValue(0);
    ensureWidgetVisible(ora);
}

void PaginaScorrevole::resizeEvent(QResizeEvent* e) {
    QScrollArea::resizeEvent(e);
    segui_il_fuoco(QApplication::focusWidget());
}

bool PaginaScorrevole::eventFilter(QObject* o, QEvent* e) {
    if (o == widget() && e->type() == QEvent::LayoutRequest) updateGeometry();
    return QScrollArea::eventFilter(o, e);
}

}  // namespace ambra
