// "Scadenze delle ritenute": the terms, beneath them the payments of the chosen row, and those that no date
// places.
#include <QLabel>
#include <QPushButton>

#include "desktop/parts/elenco.h"
#include "desktop/viste.h"

namespace ambra {

QWidget* vista_mrvcal(Contesto& c, Schermo&) {
    const QFontMetrics m = c.finestra().fontMetrics();
    VistaGriglia* elenco = c.griglia("elenco", {}, QStringLiteral("Scadenze delle ritenute"));
    elenco->setMinimumSize(m.averageCharWidth() * 130, m.height() * 8);
    elenco->righe_volute(12);
    elenco->posto_per(6, QStringLiteral("in formazione"));

    auto* scelta = new QHBoxLayout;
    scelta->addWidget(c.etichetta("scelto"));
    scelta->addStretch(1);
    auto* cresce = c.etichetta("finora");
    cresce->setToolTip(QStringLiteral("Le ritenute del 4% si sommano finché raggiungono la soglia"));
    scelta->addWidget(c.accanto(QStringLiteral("In formazione, ritenute del 4%:"), cresce));
    scelta->addWidget(cresce);

    VistaGriglia* dettaglio = c.griglia("dettaglio", {}, QStringLiteral("Pagamenti della riga scelta"));
    VistaGriglia* senza = c.griglia("senza", {}, QStringLiteral("Pagamenti senza data"));
    for (VistaGriglia* g : {dettaglio, senza}) {
        g->righe_volute(5);
        g->setMinimumHeight(m.height() * 6);
    }
    // Where every payment has a date the others take the room.
    QSizePolicy posto = senza->sizePolicy();
    posto.setRetainSizeWhenHidden(false);
    senza->setSizePolicy(posto);

    auto* segna = c.bottone(
        "segna", QStringLiteral("Apre il versamento con le fatture di questa scadenza già segnate"));
    auto* stampa = c.bottone("stampante", QStringLiteral("Stampa le righe per l'F24 (Ctrl+P)"));
    auto* aggiorna = c.bottone("command3d2", QStringLiteral("Rilegge l'archivio (F5)"));
    auto* riepilogo = c.bottone("riepilogo", QStringLiteral("Compensi e ritenute dell'anno per fornitore"));
    auto* imposta = c.bottone("command3d1", QStringLiteral("Stampante, orientamento e carta"));
    c.tasto("F5", aggiorna);
    c.tasto("Ctrl+P", stampa);
    QLayout* comandi = c.comandi({segna, stampa, riepilogo, aggiorna, imposta}, {}, {c.bottone("indice")});
    return c.pagina({elenco, scelta, dettaglio, senza, comandi}, 0);
}

}  // namespace ambra
