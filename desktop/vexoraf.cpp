// The main window: the building, the list of its documents, the command tree.
#include <QLabel>
#include <QPushButton>

#include "desktop/parts/griglia_vista.h"
#include "desktop/viste.h"

namespace ambra {

QWidget* vista_vexoraf(Contesto& c, Schermo&) {
    QLabel* stabile = c.avviso("stabili");
    QLabel* versione = c.etichetta("xx_versione");
    auto* testa = new QHBoxLayout;
    testa->addWidget(stabile, 1);
    testa->addWidget(versione);

    VistaGriglia* elenco = c.griglia("elenco", "srx", QStringLiteral("Fatture dello stabile"));
    elenco->setMinimumSize(c.finestra().fontMetrics().averageCharWidth() * 150,
                           c.finestra().fontMetrics().height() * 24);
    QPushButton* aggiorna = nullptr;
    QLayout* comandi =
        c.comandi({c.bottone("command3d2(3)"), c.bottone("command3d2(2)"), c.bottone("command3d2(1)"),
                   c.bottone("command3d2(0)"), c.bottone("command3d1"), c.bottone("stampante"),
                   aggiorna = c.bottone("Label2")},
                  {}, {c.bottone("indice")});
    return c.pagina({testa, elenco, comandi}, 1);
}

}  // namespace ambra
