// "Elenco fatture ricevute".
#include "desktop/parts/elenco.h"
#include "desktop/viste.h"

namespace ambra {

QWidget* vista_lumstcf(Contesto& c, Schermo&) {
    QLayout* sopra = filtri(c, {filtro_periodo(c)});
    QWidget* elenco = elenco_con(c, "srx", QStringLiteral("Fatture ricevute"));
    return c.pagina({sopra, elenco, comandi_elenco(c)}, 1);
}

}  // namespace ambra
