#include "desktop/finestra.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <algorithm>

#include "desktop/finestre.h"
#include "desktop/manuale.h"
#include "desktop/parts/griglia_vista.h"
#include "desktop/parts/legame.h"
#include "desktop/parts/testo_qt.h"
#include "qt/ricordi.h"

namespace ambra {

Finestra::Finestra(Schermo& s, Finestre* insieme) : QWidget(nullptr, Qt::Window), s_(&s), insieme_(insieme) {
    setObjectName(QString::fromStdString(s.nome()));
    s.osservatore = [this] { schermo_mosso(); };
}

Finestra::~Finestra() {
    stacca();
}

void Finestra::stacca() {
    if (s_) s_->osservatore = nullptr;
    s_ = nullptr;
    for (auto& l : legami_) l->stacca();
    for (VistaGriglia* v : findChildren<VistaGriglia*>()) v->stacca();
}

Legame& Finestra::lega(Controllo& c, QWidget* w, std::function<void()> valore) {
    legami_.push_back(std::make_unique<Legame>(*this, c, w, std::move(valore)));
    return *legami_.back();
}

Legame* Finestra::legame(const Controllo& c) const {
    for (const auto& l : legami_)
        if (l->controllo() == &c) return l.get();
    return nullptr;
}

namespace {

// Counts what is under way, even if it ends the program by an exception.
class UnaInPiu {
  public:
    explicit UnaInPiu(int& n) : n_(n) { ++n_; }
    ~UnaInPiu() { --n_; }
    UnaInPiu(const UnaInPiu&) = delete;
    UnaInPiu& operator=(const UnaInPiu&) = delete;

  private:
    int& n_;
};

}  // namespace

bool Finestra::utente(const std::function<void()>& azione) {
    if (!s_) return false;
    if (in_attesa()) {
        // What was written meanwhile is taken back: the screen goes on with what it was given.
        for (auto& l : legami_) l->sporco = true;
        segna();
        if (insieme_) insieme_->porta_avanti_chi_e_atteso();
        return false;
    }
    const UnaInPiu azione_in_corso(azioni_);
    Registro& registro = s_->prog.schermi;
    const Registro::Turno turno(registro);
    if (s_->visible()) registro.davanti(*s_);
    azione();
    return true;
}

bool Finestra::agisce(Controllo& c, const std::function<void()>& azione, int riga, int colonna) {
    if (!s_ || (!in_attesa() && insieme_ && !insieme_->lascia_fare(*this, c, riga, colonna))) return false;
    if (!utente(azione)) return false;
    toccato(c);
    return true;
}

void Finestra::toccato(const Controllo& c) {
    if (!s_ || custodia_.uscite.empty()) return;
    if (fa_parte(custodia_, c)) scritta_ = true;
    const Controllo* durante = custodia_.durante.empty() ? nullptr : s_->trova(custodia_.durante);
    if (durante && !durante->visible()) scritta_ = false;
}

bool Finestra::utente_nel_campo(Controllo& c, const std::function<void()>& azione) {
    return agisce(c, [&] {
        azione();
        if (s_ && s_->visible() && s_->fuoco() != &c && c.visible() && c.enabled()) s_->fuoco(c);
    });
}

// ---- from the logic ----

void Finestra::schermo_mosso() {
    titolo_vecchio_ = true;
    if (s_->fuoco() != fuoco_noto_) fuoco_chiesto_ = s_->fuoco() != nullptr;
    fuoco_noto_ = s_->fuoco();
    segna();
}

void Finestra::segna() {
    if (in_coda_) return;
    in_coda_ = true;
    QMetaObject::invokeMethod(this, &Finestra::aggiorna, Qt::QueuedConnection);
}

void Finestra::aggiorna() {
    in_coda_ = false;
    if (!s_) return;
    // Hiding a control moves the focus to its neighbour: not a user's move when the screen has told another.
    const bool tratteneva = trattiene_;
    trattiene_ = trattiene_ || fuoco_chiesto_;
    for (auto& l : legami_)
        if (l->sporco || l->utile) l->mostra();
    trattiene_ = tratteneva;
    for (const auto& giro : giri_) giro();
    if (titolo_vecchio_) titolo();
    if (mnemonici_vecchi_) {
        mnemonici_vecchi_ = false;
        assegna_mnemonici(this);
    }
    if (fuoco_chiesto_) applica_fuoco();
    trattiene_ = false;
}

void Finestra::titolo() {
    titolo_vecchio_ = false;
    const std::string stabile(rifila(s_->prog.stabili));
    // The building first: a taskbar shows the beginning.
    setWindowTitle(qs(unisci(stabile, " - ", s_->caption())));
}

void Finestra::applica_fuoco() {
    fuoco_chiesto_ = false;
    if (!s_->fuoco()) return;
    const Legame* l = legame(*s_->fuoco());
    if (!l || !l->bersaglio() || l->bersaglio()->hasFocus()) return;
    l->bersaglio()->setFocus(Qt::OtherFocusReason);
    if (auto* campo = qobject_cast<QLineEdit*>(l->bersaglio())) campo->selectAll();
}

// ---- from the user ----

void Finestra::ricevuto(Controllo& c, bool con_la_finestra) {
    if (!s_ || trattiene_ || s_->fuoco() == &c) return;
    // What came to the front has its first field in hand, while the one that the screen told is on its way.
    if (con_la_finestra && fuoco_chiesto_) return;
    const Registro::Turno turno(s_->prog.schermi);
    fuoco_noto_ = &c;
    s_->fuoco(c);
}

void Finestra::completa() {
    for (const auto& l : legami_)
        if (l->finito && l->bersaglio() && l->bersaglio() == focusWidget()) return l->finito();
}

bool Finestra::in_colonna(const Controllo& c, int passo) {
    const auto scrivibile = [](const Controllo* x) {
        const auto* t = dynamic_cast<const CampoTesto*>(x);
        return t && t->importo && !t->sola_lettura && t->visible() && t->enabled();
    };
    const QString nome = QString::fromStdString(c.nome());
    const qsizetype parentesi = nome.indexOf('(');
    if (parentesi < 0 || !scrivibile(&c)) return false;
    const int indice = nome.mid(parentesi + 1).chopped(1).toInt() + passo;
    const Controllo* altro =
        s_->trova(QStringLiteral("%1(%2)").arg(nome.left(parentesi)).arg(indice).toStdString());
    const Legame* l = scrivibile(altro) ? legame(*altro) : nullptr;
    if (!l || !l->bersaglio()) return false;
    l->bersaglio()->setFocus(Qt::TabFocusReason);
    return true;
}

bool Finestra::passa_al_seguente(QWidget* da) {
    if (ultimo_per_invio_.isEmpty() || da->inherits("QPushButton")) return false;
    for (QWidget* w = da->nextInFocusChain(); w != da; w = w->nextInFocusChain()) {
        const bool campo = w->inherits("QLineEdit") || w->inherits("QComboBox") || w->inherits("QCheckBox") ||
                           w->inherits("QRadioButton");
        if (!campo && w->objectName() != ultimo_per_invio_) continue;
        if (!w->isVisible() || !w->isEnabled() || !(w->focusPolicy() & Qt::TabFocus)) continue;
        w->setFocus(Qt::TabFocusReason);
        return true;
    }
    return false;
}

void Finestra::lasciato(Controllo& c) {
    if (!s_ || trattiene_ || !s_->visible()) return;
    const Registro::Turno turno(s_->prog.schermi);
    if (!c.lascia()) {
        if (!s_) return;
        s_->fuoco(c);
        trattiene_ = true;
        fuoco_chiesto_ = true;
        segna();
    } else if (s_ && s_->fuoco() == &c) {
        fuoco_noto_ = nullptr;
        s_->senza_fuoco();
    }
}

void Finestra::closeEvent(QCloseEvent* e) {
    if (!s_) return;
    e->ignore();
    if (in_attesa() || (insieme_ && !insieme_->lascia_chiudere(*this))) return;
    // A field that keeps the focus does not keep the window.
    utente([this] { s_->prog.schermi.chiudi_dal_bordo(*s_); });
}

void Finestra::keyPressEvent(QKeyEvent* e) {
    if (e->key() == Qt::Key_Escape && e->modifiers() == Qt::NoModifier) {
        if (esc) {
            esc();
        } else {
            close();
        }
        return;
    }
    if (e->key() == Qt::Key_F1 && s_) {
        apri_manuale(s_->nome());
        return;
    }
    if (e->matches(QKeySequence::Save)) return conferma();
    QWidget::keyPressEvent(e);
}

// Ctrl+S: the command that stores, or goes on, whatever its name here.
void Finestra::conferma() {
    for (const auto& l : legami_) {
        auto* b = qobject_cast<QPushButton*>(l->bersaglio());
        if (!b || !b->isVisible() || !b->isEnabled()) continue;
        const QString testo = senza_mnemonico(b->property(kDidascalia).toString());
        for (const char* nome : {"Conferma", "Memorizza", "Continua"})
            if (testo == QLatin1String(nome)) return b->click();
    }
}

bool Finestra::event(QEvent* e) {
    if (e->type() == QEvent::WindowActivate && s_ && s_->visible()) s_->prog.schermi.davanti(*s_);
    if (e->type() == QEvent::PaletteChange || e->type() == QEvent::StyleChange) {
        for (auto& l : legami_) l->sporco = true;
        segna();
    }
    return QWidget::event(e);
}

void Finestra::showEvent(QShowEvent* e) {
    // Only now is it known what can be seen.
    mnemonici_vecchi_ = true;
    aggiorna();
    QWidget::showEvent(e);
}

// The first control that a hand would use; the labels that sort a list come after it.
void Finestra::primo_fuoco() {
    if (s_->fuoco()) return;
    for (const auto& l : legami_) {
        QWidget* w = l->bersaglio();
        if (!w || w->focusPolicy() < Qt::StrongFocus || !w->isEnabled() || w->isHidden()) continue;
        w->setFocus(Qt::OtherFocusReason);
        if (auto* campo = qobject_cast<QLineEdit*>(w)) campo->selectAll();
        return;
    }
}

void Finestra::ricorda() const {
    ricordi().setValue(insieme_->posto().nome(objectName()), saveGeometry());
}

void Finestra::hideEvent(QHideEvent* e) {
    if (!e->spontaneous()) ricorda();
    QWidget::hideEvent(e);
}

void Finestra::disponi() {
    aggiorna();
    primo_fuoco();
    const auto torna = [this](const QString& nome) {
        return restoreGeometry(ricordi().value(nome).toByteArray());
    };
    const Posto& posto = insieme_->posto();
    if (torna(posto.nome(objectName()))) return;
    // Room for the window's own frame and title.
    const int bordo = fontMetrics().height() * 2;
    QRect spazio = (screen() ? screen() : QGuiApplication::primaryScreen())->availableGeometry();
    if (posto.primo() || !torna(Posto::nome_nel_primo(objectName()))) {
        adjustSize();
        const QSize s = sizeHint().boundedTo(QSize(spazio.width(), spazio.height() - bordo));
        resize(s);
        move(spazio.x() + (spazio.width() - s.width()) / 2,
             spazio.y() + std::max(0, (spazio.height() - bordo - s.height()) / 2));
    }
    if (!posto.primo() && !isMaximized())
        setGeometry(posto.accanto_al_primo(geometry(), spazio.adjusted(0, 0, 0, -bordo / 2), bordo));
}

}  // namespace ambra
