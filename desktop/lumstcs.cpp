// "Schede fornitori".
#include "desktop/parts/elenco.h"
#include "desktop/viste.h"

namespace ambra {

QWidget* vista_lumstcs(Contesto& c, Schermo&) {
    return pagina_per_fornitore(c, QStringLiteral("Schede dei fornitori"));
}

}  // namespace ambra
