// The run of withheld tax: what to do, the list to click on, the date and the total, the commands.
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "desktop/parts/griglia_vista.h"
#include "desktop/viste.h"

namespace ambra {

QWidget* vista_lumpgr(Contesto& c, Schermo&) {
    QLabel* guida = c.etichetta("Label1");
    guida->setWordWrap(true);

    VistaGriglia* elenco = c.griglia("elenco", {}, QStringLiteral("Ritenute da versare"));
    elenco->setMinimumSize(c.finestra().fontMetrics().averageCharWidth() * 150,
                           c.finestra().fontMetrics().height() * 18);

    elenco->posto_per(3, QStringLiteral("Fattura eliminata"));

    QWidget* data = c.data("text1(0)");
    QLineEdit* totale = c.importo("txt");
    auto* versamento = new QHBoxLayout;
    versamento->addWidget(c.accanto(QStringLiteral("Data del versamento"), data));
    versamento->addWidget(data);
    versamento->addStretch();
    versamento->addWidget(c.accanto(QStringLiteral("Importo versato"), totale));
    versamento->addWidget(totale);

    QPushButton* stampa = nullptr;
    QLayout* comandi = c.comandi(
        {c.bottone("stampante", QStringLiteral("Registra il versamento delle ritenute segnate")),
         stampa = c.bottone("command3d1", QStringLiteral("Stampa il dettaglio delle ritenute segnate")),
         c.bottone("command3d2", QStringLiteral("Imposta la stampante"))},
        {}, {c.bottone("indice")});
    c.tasto("Ctrl+P", stampa);
    c.finestra().custodisce({.uscite = {"indice"}, .scelte = {"elenco"}, .durante = {}});
    return c.pagina({guida, elenco, versamento, comandi}, 1);
}

}  // namespace ambra
