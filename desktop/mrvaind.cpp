// The record counts, by hand.
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "desktop/parts/testo_qt.h"
#include "desktop/viste.h"

namespace ambra {

QWidget* vista_mrvaind(Contesto& c, Schermo& s) {
    QLabel* avvertenza = c.avviso("avvertenza");
    avvertenza->setMinimumWidth(c.finestra().fontMetrics().averageCharWidth() * 70);

    auto* dati = new QFormLayout;
    c.riga(dati, c.etichetta("e_text1(0)"), {c.testo("text1(0)", 8)});
    c.riga(dati, c.etichetta("e_text1(1)"), {c.testo("text1(1)", 8)});
    QWidget* gruppo = c.gruppo(qs(s.trova("cornice")->caption()), dati);

    QLayout* comandi = c.comandi({c.bottone("command3d4(1)")}, {}, {c.bottone("command3d4(0)")});
    c.finestra().custodisce({.uscite = {"command3d4(0)"}, .scelte = {}, .durante = {}});
    return c.pagina({avvertenza, gruppo, comandi}, 1);
}

}  // namespace ambra
