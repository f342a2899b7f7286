// The analytic summary of purchases.
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "desktop/parts/griglia_vista.h"
#include "desktop/viste.h"

namespace ambra {

QWidget* vista_lumstcy(Contesto& c, Schermo&) {
    auto* fornitori = new QFormLayout;
    c.riga(fornitori, QStringLiteral("Dal fornitore"), {c.testo("t_inizio")});
    c.riga(fornitori, QStringLiteral("Al fornitore"), {c.testo("t_fine")});
    auto* periodo = new QFormLayout;
    c.riga(periodo, QStringLiteral("Dalla data"), {c.data("text1(0)")});
    c.riga(periodo, QStringLiteral("Alla data"), {c.data("text1(1)")});
    auto* anno = new QFormLayout;
    c.riga(anno, QStringLiteral("Anno in esame"), {c.testo("Text3", 6)});
    anno->addRow(c.casella("Eli"));
    auto* filtri = new QHBoxLayout;
    filtri->addLayout(fornitori, 1);
    filtri->addLayout(periodo);
    filtri->addLayout(anno);

    VistaGriglia* elenco = c.griglia("elenco", {}, QStringLiteral("Riepilogo acquisti analitico"));
    // A line of dashes fills its cell.
    elenco->tabella()->setTextElideMode(Qt::ElideNone);
    elenco->setMinimumSize(c.finestra().fontMetrics().averageCharWidth() * 130,
                           c.finestra().fontMetrics().height() * 22);
    auto* aggiorna = c.bottone("command3d2");
    auto* stampa = c.bottone("stampante");
    QLayout* comandi = c.comandi({c.bottone("command3d1"), aggiorna, stampa}, {}, {c.bottone("indice")});
    c.tasto("F5", aggiorna);
    c.tasto("Ctrl+P", stampa);
    return c.pagina({c.gruppo({}, filtri), elenco, comandi}, 1);
}

}  // namespace ambra
