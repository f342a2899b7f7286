// "Elenco fornitori".
#include "desktop/parts/elenco.h"
#include "desktop/viste.h"

namespace ambra {

QWidget* vista_lumstct(Contesto& c, Schermo&) {
    QLayout* sopra = filtri(c, {filtro_nomi(c)});
    QWidget* elenco = elenco_con(c, "srx", QStringLiteral("Fornitori"));
    return c.pagina({sopra, elenco, comandi_elenco(c)}, 1);
}

}  // namespace ambra
