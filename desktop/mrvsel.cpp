// The list of suppliers: one list, one way out.
#include <QPushButton>

#include "desktop/parts/griglia_vista.h"
#include "desktop/viste.h"

namespace ambra {

QWidget* vista_mrvsel(Contesto& c, Schermo&) {
    VistaGriglia* elenco = c.griglia("elenco", "srx", QStringLiteral("Fornitori"));
    elenco->righe_volute(25);
    return c.pagina({elenco, c.comandi({}, {}, {c.bottone("indice")})}, 0);
}

}  // namespace ambra
