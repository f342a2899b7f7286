// The supplier picker: the search is the work, the supplier is only shown.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "desktop/lumfor_scheda.h"
#include "desktop/parts/legame.h"
#include "desktop/parts/testo_qt.h"
#include "screen/schermo.h"

namespace ambra {

QWidget* vista_lumftem(Contesto& c, Schermo& s) {
    QWidget* ricerca = ricerca_fornitore(c);
    // After a search its field is empty: Enter once more would go on to some other supplier.
    if (auto* nome = dynamic_cast<const CampoTesto*>(s.trova("nome")))
        c.finestra().legame(*nome)->accetta_invio = [nome] { return !rifila(nome->testo()).empty(); };
    QPushButton* continua = c.bottone("b_ins", QStringLiteral("Registra la fattura di questo fornitore"));
    QPushButton* esci = c.bottone("b_fine");
    QLabel* eliminato = c.avviso("Label2");

    auto* scheda = new QWidget(&c.finestra());
    auto* sedi = new QHBoxLayout;
    sedi->addWidget(sede_legale(c), 1);
    sedi->addWidget(sede_amministrativa(c, nullptr), 1);
    auto* tutto = new QVBoxLayout(scheda);
    tutto->setContentsMargins(0, 0, 0, 0);
    tutto->addLayout(sedi);
    auto* m = new QFormLayout;
    c.riga(m, QStringLiteral("Forma pagamento"), {c.combo("Combo1")});
    m->addRow(c.casella("indeti(2)"));
    tutto->addWidget(c.gruppo(QStringLiteral("Dati contabili"), m));
    // The hand stays on search and commands; a field can be clicked, not walked to.
    for (auto* w : scheda->findChildren<QWidget*>())
        if (w->focusPolicy() != Qt::NoFocus) w->setFocusPolicy(Qt::ClickFocus);

    return c.pagina({ricerca, eliminato, scheda, c.comandi({}, {}, {continua, esci})}, 2);
}

}  // namespace ambra
