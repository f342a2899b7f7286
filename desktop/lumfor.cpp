// The supplier register: search on top, the supplier in the groups of the form, the accounts beside the
// accounting data, the commands below.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include "desktop/lumfor_scheda.h"
#include "desktop/parts/griglia_vista.h"
#include "desktop/parts/legame.h"
#include "suppliers/lumfor.h"

namespace ambra {

namespace {

constexpr int kComodo = 204;  // characters

QWidget* dati_contabili(Contesto& c) {
    auto* m = new QFormLayout;
    c.riga(m, QStringLiteral("Forma pagamento"), {c.combo("Combo1")});
    m->addRow(c.casella("indeti(2)"));
    VistaGriglia* elenco = c.griglia("elenco", {}, QStringLiteral("Conto predefinito"));
    elenco->righe_volute(5);
    // It takes what the form beside it leaves.
    elenco->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    elenco->setMinimumWidth(elenco->fontMetrics().averageCharWidth() * 50);
    auto* accanto = new QHBoxLayout;
    accanto->addLayout(m);
    accanto->addWidget(elenco, 1);
    return c.gruppo(QStringLiteral("Dati contabili"), accanto);
}

// In each state of the screen some of its commands do nothing.
void spegni_i_vani(Contesto& c, const Lumfor& s) {
    const auto solo_se = [&c, &s](const char* nome, std::function<bool()> utile) {
        if (Legame* l = c.finestra().legame(*s.trova(nome))) l->utile = std::move(utile);
    };
    const auto sfoglia = [&s] { return s.stato == Lumfor::kSfoglia; };
    const auto di_un_vivo = [&s] { return s.stato != Lumfor::kInserisce && s.dati.vivo(); };
    solo_se("b_ins", sfoglia);
    solo_se("b_srt", sfoglia);
    for (const char* nome : {"b_mod", "b_dup", "b_eli"}) solo_se(nome, di_un_vivo);
}

}  // namespace

QWidget* vista_lumfor(Contesto& c, Schermo& s) {
    QWidget* ricerca = ricerca_fornitore(c);
    QLabel* eliminato = c.avviso("Label2");
    auto* sedi = new QHBoxLayout;
    sedi->addWidget(sede_legale(c), 1);
    QPushButton* copia = c.bottone("b_copia");
    sedi->addWidget(sede_amministrativa(c, copia), 1);
    QWidget* contabili = dati_contabili(c);

    auto* riordino = new QHBoxLayout;
    riordino->addWidget(c.etichetta("Label4"));
    riordino->addWidget(c.progresso("srtval"), 1);

    QPushButton* conferma = c.bottone("b_conferma");
    QPushButton* annulla = c.bottone("b_annulla");
    QLayout* comandi =
        c.comandi({c.bottone("b_ins"), c.bottone("b_mod"),
                   c.bottone("b_dup", QStringLiteral("Copia il fornitore in tutti gli stabili")),
                   c.bottone("b_srt", QStringLiteral("Rimette in ordine l'archivio dei fornitori"))},
                  {c.bottone("b_eli")}, {conferma, annulla, c.bottone("b_fine")});
    spegni_i_vani(c, static_cast<const Lumfor&>(s));
    c.finestra().invio_cammina_fino_a(QStringLiteral("b_conferma"));
    c.finestra().custodisce(
        {.uscite = {"b_annulla", "b_fine"}, .scelte = {"elenco", "b_copia"}, .durante = "b_conferma"});
    // As wide as the accounts read well, where the display has the room.
    auto* comodo = new QHBoxLayout;
    comodo->addSpacerItem(new QSpacerItem(c.finestra().fontMetrics().averageCharWidth() * kComodo, 0,
                                          QSizePolicy::Maximum, QSizePolicy::Minimum));
    return c.pagina({ricerca, eliminato, sedi, contabili, riordino, comodo, comandi}, 3);
}

}  // namespace ambra
