// The main window: the building, the list of its documents, the command tree.
#include <QLabel>
#include <QPushButton>

#include "desktop/parts/griglia_vista.h"
#include "desktop/parts/striscia.h"
#include "desktop/viste.h"

namespace ambra {

QWidget* vista_vexoraf(Contesto& c, Schermo& s) {
    auto* testa = new QHBoxLayout;
    testa->addWidget(c.titolo("stabili"), 1);
    testa->addWidget(c.etichetta("xx_versione"));

    VistaGriglia* elenco = c.griglia("elenco", "srx", QStringLiteral("Fatture dello stabile"));
    elenco->righe_volute(25);

    auto* comandi = new QHBoxLayout;
    for (const char* nome : {"command3d2(3)", "command3d2(2)", "command3d2(1)", "command3d2(0)", "command3d1",
                             "stampante", "Label2"}) {
        QPushButton* b = c.bottone(nome);
        // One width for all captions of the tree: a button stays under the hand when it is relabelled.
        b->setMinimumWidth(b->fontMetrics().horizontalAdvance(QStringLiteral("Versam.ritenute ---")));
        comandi->addWidget(b);
        if (nome == std::string_view("Label2")) c.tasto("F5", b, QStringLiteral("Aggiorna lista"));
    }
    comandi->addStretch();
    QPushButton* indice = c.bottone("indice");
    comandi->addWidget(indice);
    // Esc goes back a level; on the first it does nothing.
    c.finestra().esc = [indice, &s] {
        if (!alla_radice(s)) indice->click();
    };
    return c.pagina({new Striscia(&c.finestra()), testa, elenco, comandi}, 2);
}

}  // namespace ambra
