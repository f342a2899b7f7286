// "Riepilogo per il consulente": the year, what the columns count, the list, and its way out.
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "desktop/parts/elenco.h"
#include "desktop/parts/mnemonici.h"
#include "desktop/viste.h"

namespace ambra {

QWidget* vista_mrvcau(Contesto& c, Schermo&) {
    auto* sopra = new QFormLayout;
    c.riga(sopra, QStringLiteral("Anno dei pagamenti"), {c.testo("anno", 6)});
    QLabel* avviso = c.etichetta("avviso");
    avviso->setWordWrap(true);
    VistaGriglia* elenco = elenco_con(c, {}, QStringLiteral("Compensi e ritenute dell'anno"));
    auto* esporta = new QPushButton(&c.finestra());
    esporta->setObjectName(QStringLiteral("esporta"));
    esporta->setAutoDefault(false);
    didascalia(esporta, QStringLiteral("Esporta per il consulente…"));
    esporta->setToolTip(QStringLiteral("Scrive la lista in un foglio di calcolo (Ctrl+E)"));
    QObject::connect(esporta, &QPushButton::clicked, elenco, &VistaGriglia::esporta);
    auto* sotto = new QHBoxLayout;
    sotto->addWidget(new QLabel(QStringLiteral("Un clic sulla causale la cambia: A, M, W, Z.")));
    sotto->addStretch(1);
    sotto->addWidget(esporta);
    return c.pagina({sopra, avviso, elenco, sotto, comandi_elenco(c)}, 2);
}

}  // namespace ambra
