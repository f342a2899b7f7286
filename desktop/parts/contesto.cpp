#include "desktop/parts/contesto.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QShortcut>
#include <QToolButton>

#include "desktop/finestra.h"
#include "desktop/parts/griglia_vista.h"
#include "desktop/parts/legame.h"
#include "desktop/parts/testo_qt.h"

namespace ambra {

Controllo* Contesto::trova(std::string_view nome) const {
    return s_.trova(nome);
}

VistaGriglia* Contesto::griglia(std::string_view nome, std::string_view etichette,
                                const QString& accessibile) {
    auto* g = dynamic_cast<Griglia*>(trova(nome));
    if (!g) return nullptr;
    auto* v = new VistaGriglia(*this, *g);
    if (!etichette.empty()) v->etichette(*this, etichette);
    v->tabella()->setAccessibleName(accessibile.isEmpty() ? qs(s_.caption()) : accessibile);
    return v;
}

QWidget* Contesto::pezzo(std::string_view nome) {
    const Controllo* c = trova(nome);
    if (!c) return etichetta(nome);
    switch (c->genere()) {
        case Genere::text:
            return testo(nome);
        case Genere::date:
            return data(nome);
        case Genere::label:
            return c->premuto ? static_cast<QWidget*>(cliccabile(nome)) : etichetta(nome);
        case Genere::button:
            return bottone(nome);
        case Genere::check:
            return casella(nome);
        case Genere::option:
            return opzione(nome);
        case Genere::list:
            return combo(nome);
        case Genere::scroll:
            return cursore(nome);
        case Genere::progress:
            return progresso(nome);
        case Genere::grid:
            return griglia(nome);
    }
    return nullptr;
}

// ---- layout ----

QLabel* Contesto::riga(QFormLayout* modulo, const QString& testo, std::initializer_list<QWidget*> pezzi) {
    auto* l = new QLabel(&f_);
    l->setProperty(kDidascalia, testo);
    return riga(modulo, l, pezzi);
}

QLabel* Contesto::riga(QFormLayout* modulo, QLabel* l, std::initializer_list<QWidget*> pezzi) {
    QWidget* primo = pezzi.size() ? *pezzi.begin() : nullptr;
    if (primo) {
        QWidget* fuoco = primo->focusProxy() ? primo->focusProxy() : primo;
        l->setBuddy(fuoco);
        const QString testo = l->property(kDidascalia).toString();
        for (QWidget* p : pezzi) {
            QWidget* x = p->focusProxy() ? p->focusProxy() : p;
            if (x->accessibleName().isEmpty()) x->setAccessibleName(testo);
        }
        // A caption without a name of its own comes and goes with its field.
        if (l->objectName().isEmpty())
            if (Controllo* c = trova(primo->objectName().toStdString()))
                if (Legame* legame = f_.legame(*c)) legame->compagno(l);
    }
    didascalia(l, l->property(kDidascalia).toString());
    if (pezzi.size() == 1) {
        modulo->addRow(l, primo);
    } else {
        modulo->addRow(l, fila(pezzi));
    }
    return l;
}

QLabel* Contesto::accanto(const QString& testo, QWidget* campo) {
    auto* l = new QLabel(&f_);
    l->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    QWidget* fuoco = campo->focusProxy() ? campo->focusProxy() : campo;
    l->setBuddy(fuoco);
    if (fuoco->accessibleName().isEmpty()) fuoco->setAccessibleName(testo);
    if (Controllo* c = trova(campo->objectName().toStdString()))
        if (Legame* legame = f_.legame(*c)) legame->compagno(l);
    didascalia(l, testo);
    return l;
}

QHBoxLayout* Contesto::fila(std::initializer_list<QWidget*> pezzi) {
    auto* r = new QHBoxLayout;
    bool cresce = false;
    for (QWidget* p : pezzi) {
        if (!p) continue;
        r->addWidget(p);
        cresce = cresce || p->sizePolicy().expandingDirections() & Qt::Horizontal;
    }
    if (!cresce) r->addStretch();
    return r;
}

QWidget* Contesto::gruppo(const QString& titolo, QLayout* contenuto) {
    auto* g = new QGroupBox(titolo, &f_);
    if (titolo.isEmpty()) g->setFlat(true);
    g->setLayout(contenuto);
    return g;
}

QLayout* Contesto::comandi(std::initializer_list<QWidget*> azioni,
                           std::initializer_list<QWidget*> distruttivi,
                           std::initializer_list<QWidget*> uscita) {
    auto* r = new QHBoxLayout;
    const int distacco = f_.style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing) * 3;
    for (QWidget* w : azioni) r->addWidget(w);
    if (distruttivi.size()) r->addSpacing(std::max(distacco, 12));
    for (QWidget* w : distruttivi) r->addWidget(w);
    r->addStretch();
    for (QWidget* w : uscita) r->addWidget(w);
    return r;
}

void Contesto::tasto(const char* sequenza, QWidget* w, const QString& caption) {
    auto* s = new QShortcut(QKeySequence(QString::fromLatin1(sequenza)), &f_);
    QObject::connect(s, &QShortcut::activated, w, [w, caption] {
        if (!w->isVisible() || !w->isEnabled()) return;
        if (!caption.isEmpty() && w->property(kDidascalia).toString() != caption) return;
        if (auto* b = qobject_cast<QAbstractButton*>(w)) {
            b->click();
        } else {
            w->setFocus(Qt::ShortcutFocusReason);
        }
    });
}

QWidget* Contesto::pagina(std::initializer_list<Parte> parti, int elastico) {
    auto* p = new QWidget(&f_);
    auto* v = new QVBoxLayout(p);
    v->setContentsMargins(0, 0, 0, 0);
    int i = 0;
    for (const Parte& x : parti) {
        const int peso = i++ == elastico ? 1 : 0;
        if (x.widget) v->addWidget(x.widget, peso);
        if (x.layout) v->addLayout(x.layout, peso);
    }
    if (elastico < 0) v->addStretch(1);
    return p;
}

}  // namespace ambra
