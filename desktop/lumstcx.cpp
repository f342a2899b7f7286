// The synthetic summary of purchases, the ministerial form and the export.
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include "desktop/parts/griglia_vista.h"
#include "desktop/viste.h"

namespace ambra {

QWidget* vista_lumstcx(Contesto& c, Schermo&) {
    auto* fornitori = new QFormLayout;
    c.riga(fornitori, QStringLiteral("Dal fornitore"), {c.testo("t_inizio")});
    c.riga(fornitori, QStringLiteral("Al fornitore"), {c.testo("t_fine")});
    fornitori->addRow(c.casella("Eli"));
    auto* periodo = new QFormLayout;
    c.riga(periodo, QStringLiteral("Dalla data"), {c.data("text1(0)")});
    c.riga(periodo, QStringLiteral("Alla data"), {c.data("text1(1)")});
    c.riga(periodo, QStringLiteral("Anno in esame"), {c.testo("Text3(0)", 6)});
    auto* soglie = new QFormLayout;
    c.riga(soglie, QStringLiteral("Elimina fornitori con fatturato < di"), {c.importo("Text3(1)")});
    c.riga(soglie, QStringLiteral("punto inizio orizzontale (mm)"), {c.numero("Text3(2)", 6)});
    c.riga(soglie, QStringLiteral("punto inizio verticale (mm)"), {c.numero("Text3(3)", 6)});
    auto* filtri = new QHBoxLayout;
    filtri->addLayout(fornitori, 1);
    filtri->addLayout(periodo);
    filtri->addLayout(soglie);

    VistaGriglia* elenco = c.griglia("elenco", {}, QStringLiteral("Riepilogo acquisti sintetico"));
    // A line of dashes fills its cell.
    elenco->tabella()->setTextElideMode(Qt::ElideNone);
    elenco->setMinimumSize(c.finestra().fontMetrics().averageCharWidth() * 130,
                           c.finestra().fontMetrics().height() * 20);
    auto* imposta = c.bottone("command3d1");
    auto* aggiorna = c.bottone("command3d2");
    auto* stampa = c.bottone("stampante");
    auto* quadro = c.cliccabile("Label1(1)", QStringLiteral("Stampa il quadro AC sui fogli del ministero"));
    auto* esporta =
        c.cliccabile("Label1(0)", QStringLiteral("Scrive i fornitori dell'elenco in un file di testo"));
    QLayout* comandi = c.comandi({imposta, aggiorna, stampa, quadro, esporta}, {}, {c.bottone("indice")});
    QLabel* dove = c.etichetta("dove");
    dove->setTextInteractionFlags(Qt::TextSelectableByMouse);
    c.tasto("F5", aggiorna);
    c.tasto("Ctrl+P", stampa);
    return c.pagina({c.gruppo({}, filtri), elenco, dove, comandi}, 1);
}

}  // namespace ambra
