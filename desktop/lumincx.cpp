// The posting window: the movement on top, with where its money goes, the accounts below.
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "desktop/parts/griglia_vista.h"
#include "desktop/parts/testo_qt.h"
#include "desktop/viste.h"

namespace ambra {

namespace {

QLayout* colonna_movimento(Contesto& c) {
    auto* m = new QFormLayout;
    c.riga(m, QStringLiteral("Data"), {c.data("text")});
    c.riga(m, QStringLiteral("Descrizione movimento"), {c.testo("text1(1)", 40)});
    c.riga(m, QString(), {c.testo("text1(2)", 40, QStringLiteral("Descrizione movimento, seconda riga"))});
    c.riga(m, QString(), {c.testo("text1(3)", 40, QStringLiteral("Descrizione movimento, terza riga"))});
    c.riga(m, QStringLiteral("Importo"), {c.importo("text1(4)")});
    return m;
}

// The three lines of where the money goes stand under the account that each speaks of.
QLayout* colonna_conti(Contesto& c) {
    auto* m = new QFormLayout;
    c.riga(m, c.etichetta("etichetta_condom"), {c.combo("condom")});
    m->addRow(QString(), c.etichetta("dove(2)"));
    c.riga(m, QStringLiteral("Contropartita"), {c.combo("Combo1")});
    m->addRow(QString(), c.etichetta("dove(1)"));
    c.riga(m, QStringLiteral("Conto utilizzato"), {c.avviso("conto")});
    m->addRow(QString(), c.etichetta("dove(0)"));
    return m;
}

}  // namespace

QWidget* vista_lumincx(Contesto& c, Schermo& s) {
    auto* colonne = new QHBoxLayout;
    colonne->addLayout(colonna_movimento(c), 1);
    colonne->addLayout(colonna_conti(c), 1);
    QWidget* movimento = c.gruppo(qs(s.trova("newconto")->caption()), colonne);

    VistaGriglia* elenco = c.griglia("elenco", {}, QStringLiteral("Conti del bilancio"));
    elenco->setMinimumSize(c.finestra().fontMetrics().averageCharWidth() * 110,
                           c.finestra().fontMetrics().height() * 14);
    QLayout* comandi = c.comandi({c.bottone("b_fine(1)")}, {}, {c.bottone("b_fine(0)")});
    c.finestra().custodisce({.uscite = {"b_fine(0)"}, .scelte = {"elenco"}, .durante = {}});
    return c.pagina({movimento, elenco, comandi}, 1);
}

}  // namespace ambra
