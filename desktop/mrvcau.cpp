// "Riepilogo per il consulente": the year, what the columns count, the list.
#include <QLabel>
#include <QLineEdit>

#include "desktop/parts/elenco.h"
#include "desktop/viste.h"

namespace ambra {

QWidget* vista_mrvcau(Contesto& c, Schermo&) {
    auto* sopra = new QFormLayout;
    c.riga(sopra, QStringLiteral("Anno dei pagamenti"), {c.testo("anno", 6)});
    QLabel* avviso = c.etichetta("avviso");
    avviso->setWordWrap(true);
    VistaGriglia* elenco = elenco_con(c, {}, QStringLiteral("Compensi e ritenute dell'anno"));
    auto* causale = new QLabel(QStringLiteral("Un clic sulla causale la cambia: A, M, W, Z."));
    return c.pagina({sopra, avviso, elenco, causale, comandi_elenco(c)}, 2);
}

}  // namespace ambra
