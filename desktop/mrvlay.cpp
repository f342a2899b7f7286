// The editor of a form's coordinates: the fields, the chosen one, and the sheet as it will be.
#include "forms/mrvlay.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "desktop/mrvlay_foglio.h"
#include "desktop/parts/griglia_vista.h"
#include "desktop/viste.h"

namespace ambra {

QWidget* vista_mrvlay(Contesto& c, Schermo& s) {
    const QFontMetrics m = c.finestra().fontMetrics();
    VistaGriglia* elenco = c.griglia("elenco", {}, QStringLiteral("Campi del modulo"));
    elenco->setMinimumSize(m.averageCharWidth() * 80, m.height() * 12);

    auto* dati = new QFormLayout;
    QLabel* nome = c.avviso("nomcam");
    c.riga(dati, QStringLiteral("Campo scelto"), {nome});
    c.riga(dati,
           QStringLiteral("Spostamento orizzontale del campo dal bordo sinistro del foglio (in millimetri)"),
           {c.testo("Text1(0)", 5)});
    c.riga(dati,
           QStringLiteral("Spostamento verticale del campo dal bordo superiore del foglio (in millimetri)"),
           {c.testo("Text1(1)", 5)});
    QPushButton* carattere = c.bottone("Command3d5(0)", QStringLiteral("Sceglie il tipo di carattere"));
    QLabel* campione = c.etichetta("car");
    c.riga(dati, QStringLiteral("Tipo di carattere (font) da utilizzare per la stampa del campo"),
           {carattere, campione});
    c.riga(dati, QStringLiteral("Colore del carattere da utilizzare per la stampa del campo"),
           {c.bottone("Command3d5(1)", QStringLiteral("Sceglie il colore")), new QLabel(&c.finestra())});
    c.riga(dati, QStringLiteral("Oggetto"), {c.testo("Text2(0)")});
    c.riga(dati, QStringLiteral("Testo"), {c.testo("Text2(1)")});
    dati->addRow(c.fila({c.casella("bianca"), c.bottone("Command3d6")}));

    auto* sinistra = new QVBoxLayout;
    sinistra->addWidget(elenco, 1);
    sinistra->addWidget(c.gruppo({}, dati));
    auto* centro = new QHBoxLayout;
    centro->addLayout(sinistra, 3);
    centro->addWidget(new VistaFoglio(c.finestra(), static_cast<Mrvlay&>(s), elenco, campione), 2);

    QLayout* comandi = c.comandi({c.bottone("indice(4)"), c.bottone("indice(5)")},
                                 {c.bottone("indice(2)"), c.bottone("indice(3)")},
                                 {c.bottone("indice(1)"), c.bottone("indice(0)")});
    c.finestra().custodisce(
        {.uscite = {"indice(0)"}, .scelte = {"Command3d5", "indice(2)", "indice(3)"}, .durante = {}});
    return c.pagina({centro, comandi}, 0);
}

}  // namespace ambra
