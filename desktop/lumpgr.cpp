// The run of withheld tax: what to do, the list to click on, the date and the total, the commands.
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/date.h"
#include "desktop/parts/campo_scritto.h"
#include "desktop/parts/griglia_vista.h"
#include "desktop/parts/mnemonici.h"
#include "desktop/parts/scrittura.h"
#include "desktop/parts/testo_qt.h"
#include "desktop/viste.h"
#include "ledger/lumpgr.h"

namespace ambra {

namespace {

constexpr int kScadenza = 5;

// The day as a number that grows; 0 for no date.
int ordine(std::string_view data) {
    const auto d = data_valida(data);
    return d ? (d->anno * 100 + d->mese) * 100 + d->giorno : 0;
}

// Clicks every row that falls due by the date and is not marked yet, as a hand would.
void segna_entro(Finestra& f, const QString& entro) {
    auto* s = static_cast<Lumpgr*>(f.schermo());
    const int limite = ordine(da_qs(entro));
    if (!s || limite == 0) return;
    f.agisce(s->elenco, [s, limite] {
        for (int r = 1; r < s->elenco.righe(); ++r) {
            const int giorno = ordine(s->elenco.vista(r, kScadenza));
            if (giorno > 0 && giorno <= limite && !s->segnata(r)) s->elenco.scegli(r, 0);
        }
    });
}

// A date of the window alone, and the button that marks by it.
void tutte_entro(Contesto& c, QHBoxLayout* riga) {
    auto* data = new CampoScritto(&c.finestra());
    data->setObjectName(QStringLiteral("entro"));
    data->setText(qs(c.schermo().prog.oggi()));
    data->setMaximumWidth(data->fontMetrics().horizontalAdvance(QStringLiteral("00/00/0000mmm")));
    auto* segna = new QPushButton(&c.finestra());
    segna->setObjectName(QStringLiteral("segna_entro"));
    segna->setAutoDefault(false);
    segna->setToolTip(QStringLiteral("Segna le ritenute la cui scadenza non va oltre la data"));
    didascalia(segna, QStringLiteral("Segna"));
    QObject::connect(data, &QLineEdit::editingFinished, data, [data] {
        data->setText(data_finita(data->text()));
        data->errore(data_sbagliata(data->text()) ? QStringLiteral("Non è una data: gg/mm/aaaa") : QString());
    });
    QObject::connect(segna, &QPushButton::clicked, data, [&f = c.finestra(), data] {
        data->setText(data_finita(data->text()));
        segna_entro(f, data->text());
    });
    riga->addWidget(c.accanto(QStringLiteral("Tutte le ritenute in scadenza entro"), data));
    riga->addWidget(data);
    riga->addWidget(segna);
}

}  // namespace

QWidget* vista_lumpgr(Contesto& c, Schermo&) {
    QLabel* guida = c.etichetta("Label1");
    guida->setWordWrap(true);

    VistaGriglia* elenco = c.griglia("elenco", {}, QStringLiteral("Ritenute da versare"));
    elenco->setMinimumSize(c.finestra().fontMetrics().averageCharWidth() * 150,
                           c.finestra().fontMetrics().height() * 18);

    elenco->posto_per(3, QStringLiteral("Fattura eliminata"));

    QWidget* data = c.data("text1(0)");
    QLineEdit* totale = c.importo("txt");
    auto* versamento = new QHBoxLayout;
    versamento->addWidget(c.accanto(QStringLiteral("Data del versamento"), data));
    versamento->addWidget(data);
    versamento->addStretch();
    tutte_entro(c, versamento);
    versamento->addStretch();
    versamento->addWidget(c.accanto(QStringLiteral("Importo versato"), totale));
    versamento->addWidget(totale);

    QPushButton* stampa = nullptr;
    QLayout* comandi = c.comandi(
        {c.bottone("stampante", QStringLiteral("Registra il versamento delle ritenute segnate")),
         stampa = c.bottone("command3d1", QStringLiteral("Stampa il dettaglio delle ritenute segnate")),
         c.bottone("command3d2", QStringLiteral("Imposta la stampante"))},
        {}, {c.bottone("indice")});
    c.tasto("Ctrl+P", stampa);
    c.finestra().custodisce({.uscite = {"indice"}, .scelte = {"elenco"}, .durante = {}});
    return c.pagina({guida, elenco, versamento, comandi}, 1);
}

}  // namespace ambra
