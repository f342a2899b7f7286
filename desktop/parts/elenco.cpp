#include "desktop/parts/elenco.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "desktop/finestra.h"

namespace ambra {

QFormLayout* filtro_nomi(Contesto& c) {
    auto* modulo = new QFormLayout;
    QLineEdit* inizio = c.testo("t_inizio", 30);
    c.riga(modulo, QStringLiteral("Dal fornitore"), {inizio});
    c.riga(modulo, QStringLiteral("Al fornitore"), {c.testo("t_fine", 30)});
    c.tasto("Ctrl+F", inizio);
    return modulo;
}

QFormLayout* filtro_periodo(Contesto& c, const QString& dalla, const QString& alla) {
    auto* modulo = new QFormLayout;
    c.riga(modulo, dalla, {c.data("text1(0)")});
    c.riga(modulo, alla, {c.data("text1(1)")});
    return modulo;
}

QHBoxLayout* filtri(Contesto& c, std::initializer_list<Parte> gruppi) {
    auto* fila = new QHBoxLayout;
    for (const Parte& p : gruppi) {
        if (p.widget) fila->addWidget(p.widget, 0, Qt::AlignTop);
        if (p.layout) fila->addLayout(p.layout);
        fila->addSpacing(c.finestra().fontMetrics().averageCharWidth() * 3);
    }
    fila->addStretch(1);
    return fila;
}

VistaGriglia* elenco_con(Contesto& c, std::string_view etichette, const QString& accessibile) {
    VistaGriglia* elenco = c.griglia("elenco", etichette, accessibile);
    const QFontMetrics m = c.finestra().fontMetrics();
    elenco->setMinimumSize(m.averageCharWidth() * 150, m.height() * 20);
    return elenco;
}

QLayout* comandi_elenco(Contesto& c) {
    QPushButton* imposta = c.bottone("command3d1", QStringLiteral("Stampante, orientamento e carta"));
    QPushButton* aggiorna = c.bottone("command3d2", QStringLiteral("Rifà la lista con i filtri (F5)"));
    QPushButton* stampa = c.bottone("stampante", QStringLiteral("Stampa la lista come la si vede (Ctrl+P)"));
    c.tasto("F5", aggiorna);
    c.tasto("Ctrl+P", stampa);
    return c.comandi({imposta, aggiorna, stampa}, {}, {c.bottone("indice")});
}

QWidget* pagina_per_fornitore(Contesto& c, const QString& accessibile) {
    QLayout* nomi = filtro_nomi(c);
    QLayout* sopra = filtri(c, {nomi, filtro_periodo(c)});
    QLabel* avviso = c.etichetta("avviso");
    QWidget* elenco = elenco_con(c, {}, accessibile);
    return c.pagina({sopra, avviso, elenco, comandi_elenco(c)}, 2);
}

}  // namespace ambra
