// "Etichette fornitori".
#include "forms/lumstce.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "desktop/parts/elenco.h"
#include "desktop/parts/testo_qt.h"
#include "desktop/viste.h"

namespace ambra {

namespace {

void riga_text1(Contesto& c, QFormLayout* dove, std::size_t quale, int caratteri) {
    const QString nome = qs(Lumstce::didascalie()[quale]);
    const std::string campo = "text1(" + std::to_string(quale) + ")";
    const bool cifre = quale == Lumstce::kInizio || quale == Lumstce::kCopie;
    QLabel* l = c.riga(dove, nome, {cifre ? c.numero(campo, caratteri) : c.testo(campo, caratteri)});
    l->setMinimumWidth(c.finestra().fontMetrics().horizontalAdvance(nome + QLatin1Char('m')));
}

}  // namespace

QWidget* vista_lumstce(Contesto& c, Schermo&) {
    auto* nomi = filtro_nomi(c);
    riga_text1(c, nomi, Lumstce::kIndirizzo, 30);
    auto* luogo = new QFormLayout;
    riga_text1(c, luogo, Lumstce::kCap, 8);
    riga_text1(c, luogo, Lumstce::kCitta, 24);
    riga_text1(c, luogo, Lumstce::kTelefono, 16);
    auto* foglio = new QFormLayout;
    riga_text1(c, foglio, Lumstce::kInizio, 5);
    riga_text1(c, foglio, Lumstce::kCopie, 5);
    foglio->addRow(c.casella("traccia"));
    QLayout* sopra = filtri(c, {nomi, luogo, foglio});

    QWidget* elenco = elenco_con(c, {}, QStringLiteral("Fornitori e copie delle etichette"));
    QPushButton* tutti = c.bottone("command3d5", QStringLiteral("Le copie indicate per tutta la lista"));
    QPushButton* nessuno = c.bottone("command3d6", QStringLiteral("Nessuna etichetta"));
    QPushButton* imposta = c.bottone("command3d1", QStringLiteral("Stampante, orientamento e carta"));
    QPushButton* aggiorna = c.bottone("command3d2", QStringLiteral("Rifà la lista con i filtri (F5)"));
    QPushButton* stampa = c.bottone("stampante", QStringLiteral("Stampa le etichette (Ctrl+P)"));
    c.tasto("F5", aggiorna);
    c.tasto("Ctrl+P", stampa);
    QLayout* comandi = c.comandi({tutti, nessuno, imposta, aggiorna, stampa}, {}, {c.bottone("indice")});
    return c.pagina({sopra, elenco, comandi}, 1);
}

}  // namespace ambra
