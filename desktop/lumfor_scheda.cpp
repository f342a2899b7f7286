#include "desktop/lumfor_scheda.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

#include "desktop/parts/testo_qt.h"
#include "screen/schermo.h"

namespace ambra {

namespace {

QString caption(Contesto& c, const char* nome) {
    const Controllo* x = c.schermo().trova(nome);
    return x ? qs(x->caption()) : QString();
}

// A form whose fields take the room there is.
QFormLayout* modulo_elastico() {
    auto* m = new QFormLayout;
    m->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    return m;
}

// Hidden while a supplier is being written: what stands around it stays where it was.
template <class W>
W* tieni_posto(W* w) {
    QSizePolicy p = w->sizePolicy();
    p.setRetainSizeWhenHidden(true);
    w->setSizePolicy(p);
    return w;
}

// Postal code, town and province on one line.
void riga_citta(Contesto& c, QFormLayout* modulo, const char* cap, const char* citta, const char* prov) {
    QLineEdit* codice = c.testo(cap, 0, QStringLiteral("CAP"));
    QLineEdit* comune = c.testo(citta, 0, QStringLiteral("Città"));
    QLineEdit* provincia = c.testo(prov, 3, QStringLiteral("Provincia"));
    c.riga(modulo, caption(c, cap), {codice, comune, c.accanto(caption(c, prov), provincia), provincia});
}

}  // namespace

QWidget* ricerca_fornitore(Contesto& c) {
    auto* tutto = new QVBoxLayout;
    tutto->setContentsMargins(0, 0, 0, 0);
    QLabel* guida = tieni_posto(c.etichetta("l_cerca"));
    guida->setWordWrap(true);
    tutto->addWidget(guida);

    QLineEdit* nome = tieni_posto(c.testo("nome"));
    QLabel* didascalia = tieni_posto(c.etichetta("l_nome"));
    didascalia->setBuddy(nome);
    nome->setAccessibleName(didascalia->text().remove('&'));
    nome->setMinimumWidth(nome->fontMetrics().averageCharWidth() * 36);
    auto* linea = new QHBoxLayout;
    linea->addWidget(didascalia);
    linea->addWidget(nome, 2);
    linea->addWidget(c.bottone("b_cerca"));
    linea->addWidget(c.bottone("b_lista"));
    linea->addWidget(tieni_posto(c.cursore("HScroll1", QStringLiteral("Scorri i fornitori"))), 3);
    tutto->addLayout(linea);
    c.tasto("Ctrl+F", nome);

    auto* w = new QWidget(&c.finestra());
    w->setLayout(tutto);
    return w;
}

QWidget* sede_legale(Contesto& c) {
    auto* m = modulo_elastico();
    c.riga(m, caption(c, "Text2(0)"), {c.testo("Text2(0)")});
    c.riga(m, QString(), {c.testo("Text2(1)", 0, QStringLiteral("Intestazione, seconda riga"))});
    c.riga(m, caption(c, "Text2(2)"), {c.testo("Text2(2)")});
    riga_citta(c, m, "Text2(3)", "Text2(4)", "Text2(5)");
    c.riga(m, caption(c, "Text2(6)"), {c.testo("Text2(6)")});
    c.riga(m, caption(c, "Text2(7)"), {c.testo("Text2(7)")});

    QCheckBox* fisica = c.casella("indeti(0)");
    auto* persona = c.fila({fisica, c.opzioni({"Sesso(0)", "Sesso(1)"})});
    m->addRow(QString(), persona);
    QLineEdit* luogo = c.testo("Text2(18)");
    QLineEdit* provincia = c.testo("Text2(19)", 3, QStringLiteral("Provincia di nascita"));
    c.riga(m, caption(c, "Text2(18)"), {luogo, c.accanto(caption(c, "Text2(19)"), provincia), provincia});
    c.riga(m, caption(c, "Text2(20)"), {c.testo("Text2(20)", 0, QStringLiteral("Data di nascita"))});

    m->addRow(QString(), c.casella("indeti(1)"));
    QLineEdit* stato = c.testo("Text2(21)");
    QLineEdit* sigla = c.testo("Text2(22)", 0, QStringLiteral("Sigla dello stato estero"));
    c.riga(m, caption(c, "Text2(21)"), {stato, c.accanto(caption(c, "Text2(22)"), sigla), sigla});
    c.riga(m, caption(c, "Text2(23)"), {c.testo("Text2(23)", 0, QStringLiteral("Codice fiscale estero"))});
    return c.gruppo(caption(c, "frame(0)"), m);
}

QWidget* sede_amministrativa(Contesto& c, QWidget* copia) {
    auto* m = modulo_elastico();
    if (copia) m->addRow(QString(), c.fila({copia}));
    c.riga(m, caption(c, "Text2(8)"), {c.testo("Text2(8)")});
    c.riga(m, QString(), {c.testo("Text2(9)", 0, QStringLiteral("Intestazione, seconda riga"))});
    c.riga(m, caption(c, "Text2(10)"), {c.testo("Text2(10)")});
    riga_citta(c, m, "Text2(11)", "Text2(12)", "Text2(13)");
    c.riga(m, caption(c, "Text2(14)"),
           {c.testo("Text2(14)", 0, QStringLiteral("Telefono 1")),
            c.testo("Text2(15)", 0, QStringLiteral("Telefono 2"))});
    c.riga(m, QString(), {c.testo("Text2(16)", 0, QStringLiteral("Telefono 3"))});
    c.riga(m, caption(c, "Text2(17)"), {c.testo("Text2(17)")});
    return c.gruppo(caption(c, "frame(1)"), m);
}

}  // namespace ambra
