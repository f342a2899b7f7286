// "Dettaglio ritenute d'acconto".
#include <QLabel>

#include "desktop/parts/elenco.h"
#include "desktop/viste.h"

namespace ambra {

QWidget* vista_lumstcr(Contesto& c, Schermo&) {
    QLayout* nomi = filtro_nomi(c);
    QLayout* sopra = filtri(c, {nomi, filtro_periodo(c)});
    QLabel* avviso = c.etichetta("avviso");
    QWidget* elenco = elenco_con(c, {}, QStringLiteral("Ritenute per fornitore"));
    return c.pagina({sopra, avviso, elenco, comandi_elenco(c)}, 2);
}

}  // namespace ambra
