// The design of a sheet of labels: measures and fields at the left, the picture beside them.
#include "forms/mrvteti.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>

#include "desktop/mrvteti_immagine.h"
#include "desktop/parts/testo_qt.h"
#include "desktop/viste.h"

namespace ambra {

namespace {

constexpr int kMisure = 8;  // the fields before the fixed texts
constexpr int kCaratteriMisura = 6, kCaratteriTesto = 24;

QWidget* misure(Contesto& c, const QString& titolo, int da, int a) {
    auto* modulo = new QFormLayout;
    for (int i = da; i <= a; ++i) {
        const std::string nome = "text(" + std::to_string(i) + ")";
        c.riga(modulo, qs(Mrvteti::didascalie()[static_cast<std::size_t>(i)]),
               {i < kMisure ? c.numero(nome, kCaratteriMisura) : c.testo(nome, kCaratteriTesto)});
    }
    return c.gruppo(titolo, modulo);
}

QLabel* intestazione(Contesto& c, const QString& testo) {
    auto* l = new QLabel(testo, &c.finestra());
    l->setWordWrap(true);
    return l;
}

QWidget* campi(Contesto& c) {
    auto* tabella = new QGridLayout;
    tabella->addWidget(intestazione(c, QStringLiteral("Spostamento orizzontale in millimetri")), 0, 1);
    tabella->addWidget(intestazione(c, QStringLiteral("Spostamento verticale in millimetri")), 0, 2);
    for (int i = 0; i < Mrvteti::kVisibili; ++i) {
        tabella->addWidget(c.etichetta(nome_elemento("campo", i)), i + 1, 0);
        tabella->addWidget(c.numero(nome_elemento("Text1", i), 6,
                                    QStringLiteral("Spostamento orizzontale, riga %1").arg(i + 1)),
                           i + 1, 1);
        tabella->addWidget(c.numero(nome_elemento("Text2", i), 6,
                                    QStringLiteral("Spostamento verticale, riga %1").arg(i + 1)),
                           i + 1, 2);
        tabella->addWidget(
            c.bottone(nome_elemento("carattere", i), QStringLiteral("Sceglie il tipo di carattere")), i + 1,
            3);
        tabella->addWidget(c.bottone(nome_elemento("colore", i), QStringLiteral("Sceglie il colore")), i + 1,
                           4);
    }
    QScrollBar* cursore = c.cursore("VScroll1", QStringLiteral("Campi dell'etichetta"));
    cursore->setOrientation(Qt::Vertical);
    cursore->setMinimumWidth(0);
    cursore->setMaximumWidth(cursore->style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    tabella->addWidget(cursore, 1, 5, Mrvteti::kVisibili, 1);
    tabella->setColumnMinimumWidth(0, c.finestra().fontMetrics().averageCharWidth() * 26);
    tabella->setColumnStretch(3, 1);

    QLabel* guida = c.etichetta("guida");
    guida->setWordWrap(true);
    auto* tutto = new QVBoxLayout;
    tutto->addWidget(guida);
    tutto->addLayout(tabella);
    return c.gruppo(QStringLiteral("Disposizione dei campi sull'etichetta"), tutto);
}

}  // namespace

QWidget* vista_mrvteti(Contesto& c, Schermo& s) {
    auto* sopra = new QGridLayout;
    sopra->addWidget(misure(c, QStringLiteral("Dimensioni del foglio"), 0, 1), 0, 0);
    sopra->addWidget(misure(c, QStringLiteral("Dimensioni dei bordi"), 2, 5), 1, 0);
    sopra->addWidget(misure(c, QStringLiteral("Disposizione delle etichette sul foglio"), 6, 7), 0, 1);
    sopra->addWidget(misure(c, QStringLiteral("Campi di testo fissi"), 8, 12), 1, 1);
    auto* sinistra = new QVBoxLayout;
    sinistra->addLayout(sopra);
    sinistra->addWidget(campi(c));
    auto* centro = new QHBoxLayout;
    centro->addLayout(sinistra, 3);
    centro->addWidget(new VistaEtichetta(c.finestra(), static_cast<Mrvteti&>(s)), 2);
    QLayout* comandi = c.comandi({}, {}, {c.bottone("indice(0)"), c.bottone("indice(1)")});
    c.finestra().custodisce({.uscite = {"indice(1)"}, .scelte = {"carattere", "colore"}, .durante = {}});
    return c.pagina({centro, comandi}, 0);
}

}  // namespace ambra
