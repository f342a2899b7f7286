// "Elenco ritenute acconto".
#include <QCheckBox>

#include "desktop/parts/elenco.h"
#include "desktop/viste.h"

namespace ambra {

QWidget* vista_lumstca(Contesto& c, Schermo&) {
    QLayout* periodo = filtro_periodo(c, QStringLiteral("Dalla scadenza"), QStringLiteral("Alla scadenza"));
    QLayout* sopra = filtri(c, {periodo, c.casella("rac")});
    VistaGriglia* elenco = elenco_con(c, "srx", QStringLiteral("Ritenute d'acconto"));
    elenco->posto_per(3, QStringLiteral("Fattura eliminata"));
    return c.pagina({sopra, elenco, comandi_elenco(c)}, 1);
}

}  // namespace ambra
