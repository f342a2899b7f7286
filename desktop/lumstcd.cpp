// "Scadenziario fatture ricevute".
#include <QComboBox>
#include <QLineEdit>

#include "desktop/parts/elenco.h"
#include "desktop/viste.h"

namespace ambra {

QWidget* vista_lumstcd(Contesto& c, Schermo&) {
    QLayout* periodo = filtro_periodo(c);
    auto* scelte = new QFormLayout;
    QLineEdit* nome = c.testo("Text2", 30);
    c.riga(scelte, QStringLiteral("Fornitore"), {nome});
    c.tasto("Ctrl+F", nome);
    c.riga(scelte, QStringLiteral("Pagamento"), {c.combo("Combo1")});
    QLayout* sopra = filtri(c, {periodo, scelte});
    QWidget* elenco = elenco_con(c, "srx", QStringLiteral("Scadenze"));
    return c.pagina({sopra, elenco, comandi_elenco(c)}, 1);
}

}  // namespace ambra
