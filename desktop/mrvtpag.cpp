// The table of payment terms: a page of rows with the scroll bar at its side, what the columns mean above.
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

#include "desktop/parts/testo_qt.h"
#include "desktop/viste.h"
#include "screen/schermo.h"

namespace ambra {

QWidget* vista_mrvtpag(Contesto& c, Schermo& s) {
    const auto caption = [&s](const char* nome) { return qs(s.trova(nome)->caption()); };
    auto* guida = new QVBoxLayout;
    for (const char* nome : {"guida(0)", "guida(1)", "guida(2)"}) {
        QLabel* l = c.etichetta(nome);
        l->setWordWrap(true);
        guida->addWidget(l);
    }

    auto* t = new QGridLayout;
    t->addWidget(c.etichetta("l_modalita"), 0, 1);
    t->addWidget(c.etichetta("l_frazionamento"), 0, 2, 1, 4);
    for (int k = 0; k < 15; ++k) {
        QLabel* numero = c.etichetta(nome_elemento("numero", k));
        numero->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        t->addWidget(numero, k + 1, 0);
        QLineEdit* nome = c.testo(nome_elemento("text1", k), 40, caption("l_modalita"));
        nome->setMinimumWidth(nome->fontMetrics().averageCharWidth() * 42);
        t->addWidget(nome, k + 1, 1);
        for (int j = 1; j <= 4; ++j)
            t->addWidget(c.testo(nome_elemento("sc" + std::to_string(j), k), 4,
                                 QStringLiteral("Mesi alla rata %1").arg(j)),
                         k + 1, 1 + j);
        t->addWidget(c.casella(nome_elemento("fine", k)), k + 1, 6);
        t->addWidget(c.testo(nome_elemento("sc5", k), 4, QStringLiteral("Giorni oltre la fine del mese")),
                     k + 1, 7);
    }
    t->addWidget(c.etichetta("l_giorni"), 0, 7);
    QScrollBar* cursore = c.cursore("selpag", QStringLiteral("Scorri le modalità di pagamento"));
    cursore->setOrientation(Qt::Vertical);
    cursore->setMinimumWidth(0);
    t->addWidget(cursore, 1, 8, 15, 1);
    t->setColumnStretch(1, 1);
    QWidget* gruppo = c.gruppo(caption("frame"), t);
    c.finestra().custodisce({.uscite = {"indice(1)"}, .scelte = {}, .durante = {}});
    return c.pagina({guida, gruppo, c.comandi({}, {}, {c.bottone("indice(0)"), c.bottone("indice(1)")})}, -1);
}

}  // namespace ambra
