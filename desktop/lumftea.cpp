// The invoice window: the document on top, its detail by VAT code with the running totals, the instalments
// beside, and what the confirmation will do with the expense below.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

#include "core/numeri.h"
#include "desktop/documento_pdf.h"
#include "desktop/parts/colori.h"
#include "desktop/parts/testo_qt.h"
#include "desktop/viste.h"
#include "invoices/lumftea.h"

namespace ambra {

namespace {

constexpr int kCodici = 8;
constexpr int kScadenze = kRate;
constexpr int kCaratteriEsenzione = 22;
constexpr int kCaratteriTotale = 20;

QLabel* intestazione(const QString& testo) {
    auto* l = new QLabel(testo);
    l->setAlignment(Qt::AlignRight | Qt::AlignBottom);
    l->setWordWrap(true);
    return l;
}

QWidget* documento(Contesto& c) {
    auto* primo = new QFormLayout;
    c.riga(primo, QStringLiteral("Tipo documento"), {c.opzione("tipodc(0)"), c.opzione("tipodc(1)")});
    c.riga(primo, QStringLiteral("Numero del documento"), {c.testo("Text2(0)", 13)});
    auto* secondo = new QFormLayout;
    c.riga(secondo, QStringLiteral("Data documento"), {c.data("text1(0)")});
    c.riga(secondo, QStringLiteral("Data di registrazione"), {c.data("text1(1)")});
    auto* terzo = new QFormLayout;
    terzo->addRow(new QLabel(QStringLiteral("Fornitore")), c.etichetta("fornitore"));
    c.riga(terzo, QStringLiteral("Modalità di pagamento"), {c.combo("Combo1")});
    const int distacco = c.finestra().fontMetrics().averageCharWidth() * 4;
    primo->addRow(c.cliccabile("doppia", QStringLiteral("Mostra quel documento nell'elenco")));
    auto* accanto = new QHBoxLayout;
    accanto->addLayout(primo);
    accanto->addSpacing(distacco);
    accanto->addLayout(secondo);
    accanto->addSpacing(distacco);
    accanto->addLayout(terzo, 1);
    return c.gruppo(QStringLiteral("Estremi del documento"), accanto);
}

// Columns: VAT code, taxable amount, VAT, withholding and its rate, exemption, exempt amount.
QWidget* dettaglio(Contesto& c) {
    auto* g = new QGridLayout;
    g->addWidget(intestazione(QStringLiteral("Imponibile")), 0, 1);
    g->addWidget(intestazione(QStringLiteral("Imposta")), 0, 2);
    g->addWidget(intestazione(QStringLiteral("Ritenuta acconto")), 0, 3);
    g->addWidget(intestazione(QStringLiteral("Importi in esenzione iva")), 0, 5, 1, 2);
    for (int i = 0; i < kCodici; ++i) {
        const int r = i + 1;
        const QString codice = QStringLiteral(", codice %1").arg(r);
        g->addWidget(c.etichetta(nome_elemento("iv", i)), r, 0);
        g->addWidget(c.testo(nome_elemento("impon", i), 0, QStringLiteral("Imponibile") + codice), r, 1);
        g->addWidget(c.testo(nome_elemento("ivai", i), 0, QStringLiteral("Imposta") + codice), r, 2);
        g->addWidget(c.testo(nome_elemento("rac", i), 0, QStringLiteral("Ritenuta acconto") + codice), r, 3);
        g->addWidget(c.etichetta(nome_elemento("iv", kCodici + i)), r, 4);
        QLabel* esenzione = c.etichetta(nome_elemento("es", i));
        // An article of law may be long: what has no room is in the tooltip.
        esenzione->setToolTip(esenzione->text());
        esenzione->setMinimumWidth(esenzione->fontMetrics().averageCharWidth() * kCaratteriEsenzione);
        esenzione->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        g->addWidget(esenzione, r, 5);
        g->addWidget(c.testo(nome_elemento("esent", i), 0, QStringLiteral("Esente") + codice), r, 6);
    }
    const int totali = kCodici + 1;
    g->addWidget(new QLabel(QStringLiteral(" Totale ")), totali, 0);
    g->addWidget(c.testo("total(0)", 0, QStringLiteral("Totale imponibile")), totali, 1);
    g->addWidget(c.testo("total(1)", 0, QStringLiteral("Totale imposta")), totali, 2);
    g->addWidget(c.testo("total(2)", 0, QStringLiteral("Totale ritenuta acconto")), totali, 3);
    g->addWidget(c.testo("total(3)", 0, QStringLiteral("Totale esente")), totali, 6);
    auto* insieme = new QLabel(QStringLiteral("Totale documento"));
    QLineEdit* totale = c.testo("total(4)", kCaratteriTotale, QStringLiteral("Totale documento"));
    for (QWidget* w : {static_cast<QWidget*>(insieme), static_cast<QWidget*>(totale)}) {
        QFont grassetto = w->font();
        grassetto.setBold(true);
        w->setFont(grassetto);
    }
    auto* fondo = new QHBoxLayout;
    fondo->addStretch();
    fondo->addWidget(insieme);
    fondo->addWidget(totale);
    g->addLayout(fondo, totali + 1, 0, 1, 7);
    g->setColumnStretch(5, 1);
    g->setRowStretch(totali + 2, 1);
    return c.gruppo(QStringLiteral("Dettaglio degli importi"), g);
}

double mostrato(const Schermo& s, const std::string& nome) {
    const auto* t = dynamic_cast<const CampoTesto*>(s.trova(nome));
    return t ? valimporto_di(t->testo()) : 0;
}

double netto_a_pagare(const Schermo& s) {
    return s.prog.arrotonda(mostrato(s, "total(4)") - mostrato(s, "total(2)"));
}

QString netto(const Schermo& s) {
    if (mostrato(s, "total(4)") == 0) return {};
    QString t = QStringLiteral("Netto a pagare %1").arg(qs(s.prog.fmtimporto(netto_a_pagare(s))));
    if (const double r = mostrato(s, "total(2)"); r != 0)
        t += QStringLiteral("  -  ritenuta %1").arg(qs(s.prog.fmtimporto(r)));
    const DocumentoInMano& documento = static_cast<const Lumftea&>(s).documento();
    if (documento.mai_scritto()) return t;
    const RecFattura& f = documento.visto();
    const double pagato = somma(f.ver);
    const auto importo = [&](double x) {
        const std::string detto = s.prog.fmtimporto(s.prog.arrotonda(x));
        return detto.empty() ? QStringLiteral("0,00") : qs(detto);
    };
    return t +
           QStringLiteral("\nPagato %1  -  residuo %2").arg(importo(pagato), importo(somma(f.sca) - pagato));
}

// Words for instalments that do not add up to the net; they may be meant so.
QString rate_storte(const Schermo& s) {
    double somma = 0;
    for (int k = 0; k < kScadenze; ++k)
        if (const auto* t = dynamic_cast<const CampoTesto*>(s.trova(nome_elemento("sca", k))))
            somma += leggi_numero(t->testo());
    const double manca = s.prog.arrotonda(netto_a_pagare(s) - somma);
    if (manca == 0) return {};
    return QStringLiteral("Le rate sommano %1: %2 %3")
        .arg(qs(s.prog.fmtimporto(somma)),
             manca > 0 ? QStringLiteral("al netto mancano") : QStringLiteral("il netto è superato di"),
             qs(s.prog.fmtimporto(manca > 0 ? manca : -manca)));
}

void in_rosso(QLabel* l) {
    QPalette p = l->palette();
    p.setColor(QPalette::WindowText, leggibile(Qt::red, p.color(QPalette::Window)));
    l->setPalette(p);
    QFont f = l->font();
    f.setBold(true);
    l->setFont(f);
}

// Date, calendar and amount of each instalment; the dates of the withheld tax stand in the same columns.
QWidget* scadenze(Contesto& c) {
    auto* g = new QGridLayout;
    g->addWidget(new QLabel(QStringLiteral("Data scadenza")), 0, 1, 1, 2);
    g->addWidget(intestazione(QStringLiteral("Importo")), 0, 3);
    const auto data = [&](int k, int r, const QString& che) {
        QLineEdit* campo = c.data_scritta(nome_elemento("dsca", k), che);
        g->addWidget(campo, r, 1);
        g->addWidget(c.calendario(nome_elemento("dsc", k), che + QStringLiteral(", calendario")), r, 2);
        return campo;
    };
    for (int k = 0; k < kScadenze; ++k) {
        const QString rata = QStringLiteral("%1' rata").arg(k + 1);
        g->addWidget(new QLabel(rata), k + 1, 0);
        const QLineEdit* campo = data(k, k + 1, rata + QStringLiteral(", data scadenza"));
        g->addWidget(c.testo(nome_elemento("sca", k), 0, rata + QStringLiteral(", importo")), k + 1, 3);
        if (k > 0) continue;
        QPushButton* oggi = c.bottone("Command1", QStringLiteral("La prima rata scade oggi"));
        oggi->setMaximumHeight(campo->sizeHint().height());
        g->addWidget(oggi, 1, 4);
    }
    g->addWidget(c.casella("pagato"), kScadenze + 1, 0, 1, 5);
    const char* ritenuta[] = {"Scadenza versamento rit.acc.", "Data versamento rit.acconto"};
    for (int k = 0; k < 2; ++k) {
        const QString che = QString::fromLatin1(ritenuta[k]);
        QLabel* l = new QLabel(che);
        l->setWordWrap(true);
        g->addWidget(l, kScadenze + 2 + k, 0);
        data(kScadenze + k, kScadenze + 2 + k, che);
    }
    g->addWidget(c.viva("netto", [&s = c.schermo()] { return netto(s); }), kScadenze + 4, 0, 1, 5);
    QLabel* somma = c.viva("somma_rate", [&s = c.schermo()] { return rate_storte(s); });
    in_rosso(somma);
    g->addWidget(somma, kScadenze + 5, 0, 1, 5);
    g->setColumnStretch(5, 1);  // past the last one: on a wide display captions stay by their fields
    g->setRowStretch(kScadenze + 6, 1);
    return c.gruppo(QStringLiteral("Frazionamento in scadenze"), g);
}

QWidget* contabilita(Contesto& c) {
    auto* scelte = new QVBoxLayout;
    scelte->addWidget(c.opzione("riporta(0)"));
    scelte->addWidget(c.opzione("riporta(1)"));
    scelte->addWidget(c.casella("addebita"));
    return c.gruppo(QStringLiteral("Contabilizzazione della spesa per la ripartizione"), scelte);
}

}  // namespace

QWidget* vista_lumftea(Contesto& c, Schermo&) {
    QLabel* pagata = c.avviso("vispag");
    pagata->setMargin(pagata->fontMetrics().height() / 4);
    QWidget* estremi = documento(c);
    QWidget* importi = dettaglio(c);
    // On a wide display a caption does not go far from its figure.
    importi->setMaximumWidth(importi->fontMetrics().averageCharWidth() * 140);
    auto* destra = new QVBoxLayout;
    destra->addWidget(scadenze(c), 1);
    destra->addWidget(contabilita(c));
    auto* lavoro = new QHBoxLayout;
    lavoro->addWidget(importi, 1);
    lavoro->addLayout(destra);

    auto* documento_pdf = new QHBoxLayout;
    documento_pdf->addWidget(c.etichetta("Label2"));
    documento_pdf->addWidget(c.testo("pdf", 0, QStringLiteral("Documento in formato PDF")), 1);
    documento_pdf->addWidget(c.bottone("Command3(0)"));
    documento_pdf->addWidget(c.bottone("Command3(1)"));

    QLayout* comandi =
        c.comandi({c.bottone("command3d1(0)"), c.bottone("command3d1(5)"),
                   c.bottone("command3d1(3)", QStringLiteral("Cambia il fornitore del documento"))},
                  {c.bottone("command3d1(2)")}, {c.bottone("command3d1(1)")});
    accoglie_pdf(c.finestra());
    c.finestra().custodisce({.uscite = {"command3d1(1)"}, .scelte = {"Command1"}, .durante = {}});
    return c.pagina({pagata, estremi, lavoro, documento_pdf, comandi}, 2);
}

}  // namespace ambra
