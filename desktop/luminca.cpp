// The payment window: the document, what is due and what was paid, and the new payments, instalment by
// instalment on the same line.
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <string>

#include "desktop/viste.h"

namespace ambra {

namespace {

constexpr int kRate = 4;

std::string con_indice(const char* base, int n) {
    return std::string(base) + "(" + std::to_string(n) + ")";
}

// What is only shown is left out of the way of Tab; a click on it goes where the screen says.
QLineEdit* solo_mostra(QLineEdit* e) {
    e->setFocusPolicy(Qt::ClickFocus);
    return e;
}

QLayout* documento(Contesto& c) {
    auto* r = new QHBoxLayout;
    const QString didascalie[] = {QStringLiteral("Numero del documento"), QStringLiteral("Data di emissione"),
                                  QStringLiteral("Data di registrazione")};
    for (int n = 0; n < 3; ++n) {
        auto* m = new QFormLayout;
        c.riga(m, didascalie[n], {solo_mostra(c.testo(con_indice("Text2", n), 11))});
        r->addLayout(m);
        r->addStretch();
    }
    return r;
}

// A field of a table with its caption in the cell before it.
void cella(Contesto& c, QGridLayout* g, int riga, int colonna, const QString& didascalia, QWidget* campo) {
    g->addWidget(c.accanto(didascalia, campo), riga, colonna, Qt::AlignLeft | Qt::AlignVCenter);
    g->addWidget(campo, riga, colonna + 1);
}

QLayout* scadenze(Contesto& c) {
    auto* g = new QGridLayout;
    for (int n = 0; n < kRate; ++n) {
        const QString ordinale = QString::number(n + 1) + "' ";
        cella(c, g, n, 0, "Data " + ordinale + "scadenza", solo_mostra(c.testo(con_indice("dsca", n), 11)));
        cella(c, g, n, 2, QStringLiteral("Importo"), solo_mostra(c.importo(con_indice("sca", n))));
        cella(c, g, n, 4, "Data " + ordinale + "pagamento",
              solo_mostra(c.testo(con_indice("dsca", n + kRate), 11)));
        cella(c, g, n, 6, QStringLiteral("Importo"), solo_mostra(c.importo(con_indice("sca", n + kRate))));
    }
    QLineEdit* tipo = solo_mostra(c.testo("Text2(3)", 30));
    g->addWidget(c.accanto(QStringLiteral("Tipo di pagamento"), tipo), kRate, 0);
    g->addWidget(tipo, kRate, 1, 1, 3);
    g->setColumnStretch(8, 1);
    return g;
}

QLayout* nuovi_pagamenti(Contesto& c) {
    auto* g = new QGridLayout;
    for (int n = 0; n < kRate; ++n) {
        const QString rata = QString::number(n + 1) + "' rata";
        cella(c, g, n, 0, rata + ": data pagam.", c.data_scritta(con_indice("dver", n)));
        g->addWidget(c.calendario(con_indice("dve", n), "Calendario della " + rata), n, 2);
        cella(c, g, n, 3, QStringLiteral("Importo"), c.importo(con_indice("ver", n)));
        g->addWidget(c.cliccabile(con_indice("rata", n)), n, 5);
    }
    cella(c, g, kRate, 0, QStringLiteral("Data scadenza versamento ritenuta d'acconto"),
          c.data_scritta("dver(4)"));
    g->addWidget(c.calendario("dve(4)", QStringLiteral("Calendario della ritenuta")), kRate, 2);
    g->addWidget(c.cliccabile("tutta"), kRate, 5);
    QLineEdit* totale = solo_mostra(c.importo("total"));
    g->addWidget(c.accanto(QStringLiteral("Importo complessivo del documento"), totale), kRate + 1, 0);
    g->addWidget(totale, kRate + 1, 1, 1, 2, Qt::AlignLeft);
    g->setColumnStretch(6, 1);
    return g;
}

}  // namespace

QWidget* vista_luminca(Contesto& c, Schermo&) {
    QWidget* estremi = c.gruppo(QStringLiteral("Estremi del documento"), documento(c));
    QWidget* prima =
        c.gruppo(QStringLiteral("Estremi delle scadenze e situazione dei pagamenti precedenti"), scadenze(c));
    QWidget* nuovi = c.gruppo(QStringLiteral("Nuovi pagamenti"), nuovi_pagamenti(c));
    QLayout* comandi = c.comandi({c.bottone("conferma")}, {}, {c.bottone("indice")});
    c.finestra().custodisce({.uscite = {"indice"}, .scelte = {"rata", "tutta"}, .durante = {}});
    return c.pagina({estremi, prima, nuovi, comandi}, -1);
}

}  // namespace ambra
