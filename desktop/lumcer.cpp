#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "desktop/parts/griglia_vista.h"
#include "desktop/viste.h"

namespace ambra {

QWidget* vista_lumcer(Contesto& c, Schermo&) {
    auto* spiega = new QLabel(QStringLiteral(
        "Per poter stampare le certificazione dei compensi occorre definire i prospetti tramite "
        "il Kit Opale per condominio: utilizzare il prospetto:"));
    spiega->setWordWrap(true);
    auto* dati = new QFormLayout;
    dati->addRow(spiega);
    c.riga(dati, QStringLiteral("Prospetto"), {c.combo("tabulato")});
    c.riga(dati, QStringLiteral("Ritenute versate nel periodo"), {c.data("text1(0)"), c.data("text1(1)")});
    c.riga(dati, QStringLiteral("Numero 1' certificazione"), {c.testo("Text2", 8)});
    VistaGriglia* elenco = c.griglia("elenco");
    QPushButton* aggiorna = c.bottone("command3d2");
    QPushButton* lista = c.bottone("stampante");
    QLayout* comandi =
        c.comandi({c.bottone("certif"), lista, aggiorna, c.bottone("command3d1")}, {}, {c.bottone("indice")});
    c.tasto("F5", aggiorna);
    c.tasto("Ctrl+P", lista);
    return c.pagina({dati, elenco, comandi}, 1);
}

}  // namespace ambra
