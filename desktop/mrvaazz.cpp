// The yearly clearing of the archive.
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include "desktop/viste.h"

namespace ambra {

QWidget* vista_mrvaazz(Contesto& c, Schermo&) {
    QLabel* avvertenza = c.etichetta("avvertenza");
    avvertenza->setWordWrap(true);
    avvertenza->setMinimumWidth(c.finestra().fontMetrics().averageCharWidth() * 70);

    auto* dati = new QFormLayout;
    dati->addRow(c.casella("azz(8)"));
    c.riga(dati, c.etichetta("e_data"), {c.data("text1(6)")});
    QWidget* gruppo = c.gruppo(QStringLiteral("Archivi da azzerare"), dati);

    QLabel* msg = c.avviso("msg");
    QLayout* comandi = c.comandi({}, {c.bottone("command3d4(1)")}, {c.bottone("command3d4(0)")});
    return c.pagina({avvertenza, gruppo, msg, comandi}, 2);
}

}  // namespace ambra
