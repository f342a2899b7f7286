#include "desktop/vexoraf_menu.h"

#include <QLayout>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>

#include "desktop/copie.h"
#include "desktop/finestra.h"
#include "desktop/finestre.h"
#include "desktop/manuale.h"
#include "desktop/parts/contesto.h"
#include "desktop/parts/testo_qt.h"

namespace ambra {

namespace {

constexpr const char* kTasti[][2] = {
    {"Invio, doppio clic, F2", "apre il documento in mano"},
    {"Canc", "elimina il documento in mano, dopo una domanda"},
    {"Ctrl+N", "nuova fattura"},
    {"Ctrl+S", "Conferma, Memorizza, Continua"},
    {"Ctrl+F", "cerca nell'elenco; Esc toglie la ricerca"},
    {"F5", "aggiorna lista"},
    {"Ctrl+E", "esporta una lista in un foglio di calcolo"},
    {"Ctrl+C", "copia la riga in mano; dopo Ctrl+A tutte"},
    {"Ctrl+P", "stampa"},
    {"Esc", "torna indietro di un livello, chiude una finestra"},
    {"Alt + lettera", "il comando o il campo con quella lettera sottolineata"},
    {"F1", "il manuale, al capitolo della finestra"},
};

// Stays open beside the work.
void mostra(QWidget* padre, const QString& titolo, const QString& testo) {
    auto* m = new QMessageBox(QMessageBox::NoIcon, titolo, testo, QMessageBox::Ok, padre);
    m->setAttribute(Qt::WA_DeleteOnClose);
    m->setTextFormat(Qt::RichText);
    m->setModal(false);
    m->show();
}

void tasti(QWidget* padre) {
    QString t = QStringLiteral("<table cellpadding='3'>");
    for (const auto& [tasto, che] : kTasti)
        t += QStringLiteral("<tr><td><b>%1</b></td><td>%2</td></tr>")
                 .arg(QString::fromUtf8(tasto), QString::fromUtf8(che));
    mostra(padre, QStringLiteral("Tasti"), t + QStringLiteral("</table>"));
}

void informazioni(QWidget* padre) {
    mostra(padre, QStringLiteral("Informazioni"),
           QStringLiteral("<p><b>Kit Ambra e acquisti per condominio</b></p><p>Versione %1</p>"
                          "<p>Licenza MIT: si può usare, copiare e modificare; senza garanzia.</p>")
               .arg(QStringLiteral(AMBRA_VERSIONE)));
}

}  // namespace

QMenuBar* barra_dei_menu(Contesto& c) {
    Finestra& f = c.finestra();
    auto* barra = new QMenuBar(&f);
    // No letters: Alt belongs to the commands of the tree.
    QMenu* strumenti = barra->addMenu(QStringLiteral("Strumenti"));
    strumenti->setObjectName(QStringLiteral("strumenti"));
    for (const Registro::Strumento& s : c.schermo().prog.schermi.strumenti())
        strumenti->addAction(qs(s.caption), &f, [&f, nome = s.schermo] {
            f.utente([&] { f.schermo()->prog.schermi.apri_foglia(nome); });
        });
    strumenti->addSeparator();
    strumenti->addAction(QStringLiteral("Rimetti una copia datata..."), &f, [&f] {
        if (f.insieme() && !f.insieme()->lascia_il_programma()) return;
        f.utente([&] { ripristina_copia(&f, f.schermo()->prog); });
    });
    QMenu* aiuto = barra->addMenu(QStringLiteral("Aiuto"));
    aiuto->setObjectName(QStringLiteral("aiuto"));
    aiuto->addAction(QStringLiteral("Manuale\tF1"), &f, [] { apri_manuale("vexoraf"); });
    aiuto->addAction(QStringLiteral("Tasti"), &f, [&f] { tasti(&f); });
    aiuto->addAction(QStringLiteral("Informazioni"), &f, [&f] { informazioni(&f); });
    if (f.layout()) f.layout()->setMenuBar(barra);
    return barra;
}

}  // namespace ambra
