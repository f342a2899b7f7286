// The main window: the building, the list of its documents, the command tree.
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include "desktop/fatture_trascinate.h"
#include "desktop/parts/griglia_vista.h"
#include "desktop/parts/striscia.h"
#include "desktop/vexoraf_cambiato.h"
#include "desktop/vexoraf_menu.h"
#include "desktop/vexoraf_ricerca.h"
#include "desktop/vexoraf_righe.h"
#include "desktop/viste.h"
#include "worklist/vexoraf.h"

namespace ambra {

namespace {

QHBoxLayout* albero(Contesto& c, VistaGriglia& elenco) {
    auto* comandi = new QHBoxLayout;
    for (const char* nome : {"command3d2(3)", "command3d2(2)", "command3d2(1)", "command3d2(0)", "command3d1",
                             "stampante", "Label2"}) {
        QPushButton* b = c.bottone(nome);
        // One width for all captions of the tree: a button stays under the hand when it is relabelled.
        b->setMinimumWidth(b->fontMetrics().horizontalAdvance(QStringLiteral("Versam.ritenute ---")));
        comandi->addWidget(b);
        if (nome == std::string_view("Label2")) c.tasto("F5", b, QStringLiteral("Aggiorna lista"));
    }
    comandi->addStretch();
    comandi->addWidget(c.bottone("indice"));
    // A list made anew is there to be gone on with.
    auto* aggiorna = c.finestra().findChild<QPushButton*>(QStringLiteral("Label2"));
    QObject::connect(aggiorna, &QPushButton::clicked, &elenco, [&elenco, &s = c.schermo()] {
        if (s.trova("Label2")->caption() == "Aggiorna lista") elenco.tabella()->setFocus();
    });
    return comandi;
}

// Only told when it is so, in a place that is always kept.
QToolButton* elenco_vecchio(Contesto& c, Vexoraf& s) {
    auto* b = new QToolButton(&c.finestra());
    b->setObjectName(QStringLiteral("elenco_vecchio"));
    b->setText(QStringLiteral("L'elenco è cambiato: aggiorna (F5)"));
    b->setFocusPolicy(Qt::NoFocus);
    QPalette p = b->palette();
    p.setColor(QPalette::Button, QColor(0xFF, 0xE0, 0x80));
    p.setColor(QPalette::ButtonText, Qt::black);
    b->setPalette(p);
    QSizePolicy posto = b->sizePolicy();
    posto.setRetainSizeWhenHidden(true);
    b->setSizePolicy(posto);
    b->hide();
    QObject::connect(b, &QToolButton::clicked, &c.finestra(),
                     [&f = c.finestra(), &s] { f.agisce(s.elenco, [&s] { s.aggiornalista(); }); });
    return b;
}

}  // namespace

QWidget* vista_vexoraf(Contesto& c, Schermo& schermo) {
    accetta_fatture(c.finestra());
    auto& s = static_cast<Vexoraf&>(schermo);
    Finestra& f = c.finestra();
    barra_dei_menu(c);
    auto* testa = new QHBoxLayout;
    testa->addWidget(c.titolo("stabili"), 1);
    testa->addWidget(c.etichetta("xx_versione"));

    VistaGriglia* elenco = c.griglia("elenco", "srx", QStringLiteral("Fatture dello stabile"));
    elenco->righe_volute(25);
    auto* ricerca = new Ricerca(s, *elenco, &f);
    QToolButton* vecchio = elenco_vecchio(c, s);
    auto* sopra = new QHBoxLayout;
    sopra->addWidget(ricerca, 1);
    sopra->addWidget(vecchio);
    QHBoxLayout* comandi = albero(c, *elenco);

    auto* cambiato = new ElencoCambiato(s.prog, &f, [vecchio](bool si) { vecchio->setVisible(si); });
    lavora_sulle_righe(c, s, *elenco);
    elenco->rifatta = [=] {
        ricerca->rifatta();
        cambiato->fatto();
    };
    f.a_ogni_giro([ricerca] { ricerca->riconta(); });
    c.tasto("Ctrl+F", ricerca->campo());

    // Esc takes the search away, then goes back a level; on the first it does nothing.
    f.esc = [&f, ricerca, elenco, &s] {
        if (ricerca->svuota()) return elenco->tabella()->setFocus();
        if (!alla_radice(s)) f.findChild<QPushButton*>(QStringLiteral("indice"))->click();
    };
    return c.pagina({new Striscia(&f), testa, sopra, elenco, ricerca->totali(), comandi}, 3);
}

}  // namespace ambra
