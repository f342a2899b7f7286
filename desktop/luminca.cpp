// The payment window: the document, what is due and what was paid, and the new payments, instalment by
// instalment on the same line.
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <string>

#include "core/numeri.h"
#include "desktop/parts/testo_qt.h"
#include "desktop/viste.h"
#include "ledger/luminca.h"

namespace ambra {

namespace {

constexpr int kScadenze = kRate;

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
        c.riga(m, didascalie[n], {solo_mostra(c.testo(nome_elemento("Text2", n), 11))});
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
    for (int n = 0; n < kScadenze; ++n) {
        const QString ordinale = QString::number(n + 1) + "' ";
        cella(c, g, n, 0, "Data " + ordinale + "scadenza",
              solo_mostra(c.testo(nome_elemento("dsca", n), 11)));
        cella(c, g, n, 2, QStringLiteral("Importo"), solo_mostra(c.importo(nome_elemento("sca", n))));
        cella(c, g, n, 4, "Data " + ordinale + "pagamento",
              solo_mostra(c.testo(nome_elemento("dsca", n + kScadenze), 11)));
        cella(c, g, n, 6, QStringLiteral("Importo"),
              solo_mostra(c.importo(nome_elemento("sca", n + kScadenze))));
    }
    QLineEdit* tipo = solo_mostra(c.testo("Text2(3)", 30));
    g->addWidget(c.accanto(QStringLiteral("Tipo di pagamento"), tipo), kScadenze, 0);
    g->addWidget(tipo, kScadenze, 1, 1, 3);
    g->setColumnStretch(8, 1);
    return g;
}

QLayout* nuovi_pagamenti(Contesto& c) {
    auto* g = new QGridLayout;
    for (int n = 0; n < kScadenze; ++n) {
        const QString rata = QString::number(n + 1) + "' rata";
        cella(c, g, n, 0, rata + ": data pagam.", c.data_scritta(nome_elemento("dver", n)));
        g->addWidget(c.calendario(nome_elemento("dve", n), "Calendario della " + rata), n, 2);
        cella(c, g, n, 3, QStringLiteral("Importo"), c.importo(nome_elemento("ver", n)));
        g->addWidget(c.cliccabile(nome_elemento("rata", n)), n, 5);
    }
    cella(c, g, kScadenze, 0, QStringLiteral("Data scadenza versamento ritenuta d'acconto"),
          c.data_scritta("dver(4)"));
    g->addWidget(c.calendario("dve(4)", QStringLiteral("Calendario della ritenuta")), kScadenze, 2);
    g->addWidget(c.cliccabile("tutta"), kScadenze, 5);
    QLineEdit* totale = solo_mostra(c.importo("total"));
    g->addWidget(c.accanto(QStringLiteral("Importo complessivo del documento"), totale), kScadenze + 1, 0);
    g->addWidget(totale, kScadenze + 1, 1, 1, 2, Qt::AlignLeft);
    g->setColumnStretch(6, 1);
    return g;
}

QString fornitore(const Schermo& s) {
    return qs(static_cast<const Luminca&>(s).fornitore().inte1.rifilato());
}

// What is due, what was paid, what these payments leave.
QString situazione(const Schermo& s) {
    const auto testo = [&s](const std::string& nome) -> std::string_view {
        const auto* t = dynamic_cast<const CampoTesto*>(s.trova(nome));
        return t ? std::string_view(t->testo()) : std::string_view();
    };
    double netto = 0, pagato = 0, ora = 0;
    for (int n = 0; n < kScadenze; ++n) {
        netto += valimporto_di(testo(nome_elemento("sca", n)));
        pagato += valimporto_di(testo(nome_elemento("sca", n + kScadenze)));
        ora += leggi_numero(testo(nome_elemento("ver", n)));
    }
    const auto scritto = [&s](double x) {
        const QString t = qs(s.prog.fmtimporto(s.prog.arrotonda(x))).trimmed();
        return t.isEmpty() ? QStringLiteral("0,00") : t;
    };
    return QStringLiteral(
               "Netto a pagare %1  -  ritenuta %2  -  già pagato %3  -  pagato ora %4  -  residuo %5")
        .arg(scritto(netto), scritto(valimporto_di(testo("total")) - netto), scritto(pagato), scritto(ora),
             scritto(netto - pagato - ora));
}

}  // namespace

QWidget* vista_luminca(Contesto& c, Schermo& s) {
    QLabel* chi = c.viva("fornitore", [&s] { return fornitore(s); });
    QFont grassetto = chi->font();
    grassetto.setBold(true);
    chi->setFont(grassetto);
    QLabel* conto = c.viva("conto", [&s] { return situazione(s); });
    QWidget* estremi = c.gruppo(QStringLiteral("Estremi del documento"), documento(c));
    QWidget* prima =
        c.gruppo(QStringLiteral("Estremi delle scadenze e situazione dei pagamenti precedenti"), scadenze(c));
    QWidget* nuovi = c.gruppo(QStringLiteral("Nuovi pagamenti"), nuovi_pagamenti(c));
    QLayout* comandi = c.comandi({c.bottone("conferma")}, {}, {c.bottone("indice")});
    c.finestra().custodisce({.uscite = {"indice"}, .scelte = {"rata", "tutta"}, .durante = {}});
    return c.pagina({chi, estremi, prima, nuovi, conto, comandi}, -1);
}

}  // namespace ambra
