#include "desktop/parts/legame.h"

#include <QAbstractButton>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLabel>

#include "desktop/finestra.h"
#include "desktop/parts/colori.h"
#include "desktop/parts/suggerimenti.h"
#include "desktop/parts/testo_qt.h"

namespace ambra {

namespace {

constexpr const char* kSuggerimentoProprio = "suggerimento proprio";

// A focus that moves with the window, or into a popup, is no user's step from field to field.
bool passo_vero(const QEvent* e) {
    switch (static_cast<const QFocusEvent*>(e)->reason()) {
        case Qt::ActiveWindowFocusReason:
        case Qt::PopupFocusReason:
        case Qt::MenuBarFocusReason:
            return false;
        default:
            return true;
    }
}

// A letter with Alt that no caption bears: it neither writes nor chooses.
bool lettera_di_nessuno(const QKeyEvent* e) {
    return e->modifiers() == Qt::AltModifier && !e->text().isEmpty() && e->text()[0].isPrint();
}

}  // namespace

Legame::Legame(Finestra& f, Controllo& c, QWidget* w, std::function<void()> valore)
    : f_(f), c_(&c), w_(w), bersaglio_(w), valore_(std::move(valore)) {
    w->setObjectName(QString::fromStdString(c.nome()));
    w->installEventFilter(this);
    // A control may be shown in more than one place.
    c.osservatore = [this, altri = std::move(c.osservatore)] {
        if (altri) altri();
        sporco = true;
        f_.segna();
    };
}

Legame::~Legame() {
    stacca();
}

void Legame::stacca() {
    if (c_) c_->osservatore = nullptr;
    c_ = nullptr;
}

void Legame::compagno(QWidget* w) {
    compagni_.append(w);
    sporco = true;
}

void Legame::fuoco_su(QWidget* w) {
    bersaglio_ = w;
    w->installEventFilter(this);
}

void Legame::mostra() {
    sporco = false;
    if (!c_ || !w_) return;
    mostra_caption();
    mostra_colori();
    if (valore_) valore_();
    const bool si_vede = c_->visible() && !(nascondi_vuoto_ && c_->caption().empty());
    const bool si_usa = c_->enabled() && (!utile || utile());
    if (w_->isHidden() == si_vede || w_->isEnabled() != si_usa) f_.segna_caption();
    w_->setVisible(si_vede);
    w_->setEnabled(si_usa);
    for (const auto& x : compagni_) {
        if (!x) continue;
        x->setVisible(si_vede);
        x->setEnabled(si_usa);
    }
}

void Legame::mostra_caption() {
    if (c_->genere() != Genere::label && c_->genere() != Genere::button && c_->genere() != Genere::check &&
        c_->genere() != Genere::option)
        return;
    const QString testo = qs(c_->caption());
    if (w_->property(kDidascalia).toString() == testo && w_->property(kDidascalia).isValid()) return;
    didascalia(w_, testo);
    if (w_->property(kSuggerimentoProprio).isNull())
        w_->setProperty(kSuggerimentoProprio, !w_->toolTip().isEmpty());
    if (!w_->property(kSuggerimentoProprio).toBool()) w_->setToolTip(suggerimento_di(testo));
    f_.segna_caption();
}

void Legame::mostra_colori() {
    if (testo_ == c_->colore_testo() && sfondo_ == c_->colore_sfondo()) return;
    testo_ = c_->colore_testo();
    sfondo_ = c_->colore_sfondo();
    QPalette p;  // what is not set follows the parent and the system
    const QColor dietro =
        sfondo_ >= 0 ? colore_di(sfondo_) : w_->parentWidget()->palette().color(w_->backgroundRole());
    if (sfondo_ >= 0) p.setColor(w_->backgroundRole(), dietro);
    w_->setAutoFillBackground(sfondo_ >= 0);
    if (testo_ >= 0) {
        p.setColor(w_->foregroundRole(), leggibile(colore_di(testo_), dietro));
    } else if (sfondo_ >= 0) {
        p.setColor(w_->foregroundRole(), testo_su(dietro));
    }
    w_->setPalette(p);
}

// True if the key is dealt with.
bool Legame::tasto(QObject* o, const QKeyEvent* e) {
    if (lettera_di_nessuno(e)) return true;
    if (e->key() == Qt::Key_Up || e->key() == Qt::Key_Down)
        return e->modifiers() == Qt::NoModifier && f_.in_colonna(*c_, e->key() == Qt::Key_Down ? 1 : -1);
    if (e->key() != Qt::Key_Return && e->key() != Qt::Key_Enter) return false;
    if (accetta_invio && !accetta_invio()) return true;
    if (finito) finito();
    if (!c_) return true;
    if (c_->invio) {
        f_.utente([this] { c_->premi_invio(); });
        return true;
    }
    if (f_.passa_al_seguente(w_)) return true;
    auto* b = qobject_cast<QAbstractButton*>(o);
    if (b) b->click();
    return b != nullptr;
}

bool Legame::eventFilter(QObject* o, QEvent* e) {
    if (!c_) return QObject::eventFilter(o, e);
    switch (e->type()) {
        case QEvent::FocusIn:
            if (o == bersaglio_) f_.ricevuto(*c_, !passo_vero(e));
            break;
        case QEvent::FocusOut:
            if (o != bersaglio_ || !passo_vero(e)) break;
            if (finito) finito();
            if (c_) f_.lasciato(*c_);
            break;
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            if (f_.trattiene()) return true;
            break;
        case QEvent::MouseButtonRelease:
            // A click in a text field is an event of its own; buttons and boxes tell theirs themselves.
            if (o == w_ && (c_->genere() == Genere::text || c_->genere() == Genere::date) && c_->premuto)
                f_.utente_nel_campo(*c_, [this] { c_->premi(); });
            break;
        case QEvent::KeyPress:
            if (tasto(o, static_cast<QKeyEvent*>(e))) return true;
            break;
        default:
            break;
    }
    return QObject::eventFilter(o, e);
}

}  // namespace ambra
