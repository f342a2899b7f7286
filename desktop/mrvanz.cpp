// "Scoperto per anzianità": the date and the list.
#include "desktop/parts/elenco.h"
#include "desktop/viste.h"

namespace ambra {

QWidget* vista_mrvanz(Contesto& c, Schermo&) {
    auto* data = new QFormLayout;
    c.riga(data, QStringLiteral("Alla data"), {c.data("text1(0)")});
    VistaGriglia* elenco = elenco_con(c, {}, QStringLiteral("Scoperto per fornitore"));
    return c.pagina({data, elenco, comandi_elenco(c)}, 1);
}

}  // namespace ambra
