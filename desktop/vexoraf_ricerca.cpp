#include "desktop/vexoraf_ricerca.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include "desktop/parts/griglia_vista.h"
#include "desktop/parts/testo_qt.h"
#include "worklist/vexoraf.h"

namespace ambra {

namespace {

constexpr int kColonneCercate = 7;  // those that tell of the document; the rest are commands
constexpr const char* kFiltri[][2] = {
    {"Da pagare", "filtro_da_pagare"}, {"Scadute", "filtro_scadute"}, {"Eliminate", "filtro_eliminate"}};

}  // namespace

Ricerca::Ricerca(Vexoraf& s, VistaGriglia& elenco, QWidget* padre)
    : QWidget(padre),
      s_(s),
      elenco_(elenco),
      righe_(s.elenco, kColonneCercate),
      cerca_(new QLineEdit(this)),
      quante_(new QLabel(this)),
      totali_(new QLabel(padre)) {
    auto* fila = new QHBoxLayout(this);
    fila->setContentsMargins(0, 0, 0, 0);
    cerca_->setObjectName(QStringLiteral("cerca"));
    cerca_->setPlaceholderText(QStringLiteral("Cerca: fornitore, numero, data, importo (Ctrl+F)"));
    cerca_->setAccessibleName(QStringLiteral("Cerca nell'elenco"));
    cerca_->setClearButtonEnabled(true);
    cerca_->setMaximumWidth(fontMetrics().averageCharWidth() * 70);
    cerca_->installEventFilter(this);
    connect(cerca_, &QLineEdit::textChanged, this, &Ricerca::applica);
    fila->addWidget(cerca_, 1);
    for (int i = 0; i < quanti; ++i) {
        auto* b = filtri_[i] = new QToolButton(this);
        b->setText(QString::fromLatin1(kFiltri[i][0]));
        b->setObjectName(QString::fromLatin1(kFiltri[i][1]));
        b->setCheckable(true);
        connect(b, &QToolButton::toggled, this, [this, i](bool su) {
            for (int k = 0; su && k < quanti; ++k)
                if (k != i) filtri_[k]->setChecked(false);
            applica();
        });
        fila->addWidget(b);
    }
    quante_->setObjectName(QStringLiteral("quante"));
    fila->addWidget(quante_);
    fila->addStretch();
    totali_->setObjectName(QStringLiteral("totali"));
}

bool Ricerca::svuota() {
    bool qualcosa = !cerca_->text().isEmpty();
    for (QToolButton* b : filtri_) {
        qualcosa = qualcosa || b->isChecked();
        b->setChecked(false);
    }
    cerca_->clear();
    return qualcosa;
}

void Ricerca::rifatta() {
    righe_.rifatta();
}

bool Ricerca::passa(int riga) {
    const VoceElenco* v = s_.voce(riga);
    if (!v) return false;
    if (filtri_[da_pagare]->isChecked() && (v->eliminata || v->scoperto == 0)) return false;
    if (filtri_[scadute]->isChecked() && (v->eliminata || v->scaduto == 0)) return false;
    if (filtri_[eliminate]->isChecked() && !v->eliminata) return false;
    return righe_.passa(riga);
}

void Ricerca::applica() {
    righe_.cerca(da_qs(cerca_->text()));
    bool qualcosa = righe_.qualcosa();
    for (const QToolButton* b : filtri_) qualcosa = qualcosa || b->isChecked();
    if (qualcosa) {
        elenco_.filtra([this](int riga) { return passa(riga); });
    } else {
        elenco_.filtra({});
    }
    conta();
}

void Ricerca::riconta() {
    if (contata_ != s_.volta()) conta();
}

void Ricerca::conta() {
    contata_ = s_.volta();
    const auto importo = [this](double x) {
        const std::string t = s_.prog.fmtimporto(s_.prog.arrotonda(x));
        return t.empty() ? QStringLiteral("0,00") : qs(t);
    };
    VoceElenco somma;
    int vive = 0, via = 0;
    const auto aggiungi = [&](const VoceElenco& v) {
        ++(v.eliminata ? via : vive);
        if (v.eliminata) return;
        somma.totale += v.totale;
        somma.scoperto += v.scoperto;
        somma.scaduto += v.scaduto;
    };
    if (elenco_.filtrata()) {
        for (int i = 0; i < elenco_.righe_mostrate(); ++i)
            if (const VoceElenco* v = s_.voce(elenco_.riga_mostrata(i))) aggiungi(*v);
    } else {
        for (const VoceElenco& v : s_.voci()) aggiungi(v);
    }
    QString t = vive == 1 ? QStringLiteral("1 documento") : QStringLiteral("%1 documenti").arg(vive);
    if (via) t += via == 1 ? QStringLiteral(", 1 eliminato") : QStringLiteral(", %1 eliminati").arg(via);
    totali_->setText(t + QStringLiteral("   -   totale %1   -   scoperto %2   -   di cui scaduto %3")
                             .arg(importo(somma.totale), importo(somma.scoperto), importo(somma.scaduto)));
    quante_->setText(elenco_.filtrata() ? QStringLiteral("%1 di %2").arg(vive + via).arg(s_.voci().size())
                                        : QString());
}

// Enter and the arrows go on in the list; Esc is the window's.
bool Ricerca::eventFilter(QObject* o, QEvent* e) {
    if (o == cerca_ && e->type() == QEvent::KeyPress) {
        const int tasto = static_cast<QKeyEvent*>(e)->key();
        if (tasto == Qt::Key_Return || tasto == Qt::Key_Enter || tasto == Qt::Key_Down) {
            elenco_.tabella()->setFocus(Qt::ShortcutFocusReason);
            return true;
        }
    }
    return QWidget::eventFilter(o, e);
}

}  // namespace ambra
