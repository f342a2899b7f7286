// "Dettaglio ritenute d'acconto".
#include "desktop/parts/elenco.h"
#include "desktop/viste.h"

namespace ambra {

QWidget* vista_lumstcr(Contesto& c, Schermo&) {
    return pagina_per_fornitore(c, QStringLiteral("Ritenute per fornitore"));
}

}  // namespace ambra
