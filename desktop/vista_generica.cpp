#include <QFormLayout>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

#include "desktop/parts/griglia_vista.h"
#include "desktop/parts/legame.h"
#include "desktop/viste.h"

namespace ambra {

namespace {

// "impon(3)" and "impon(7)" share the base "impon".
QString base_di(const std::string& nome) {
    return QString::fromStdString(nome.substr(0, nome.find('(')));
}

bool e_campo(Genere g) {
    return g == Genere::text || g == Genere::date || g == Genere::list || g == Genere::scroll ||
           g == Genere::progress;
}

}  // namespace

QWidget* vista_generica(Contesto& c, Schermo& s) {
    auto* dentro = new QWidget;
    auto* colonne = new QHBoxLayout(dentro);
    QFormLayout* modulo = nullptr;
    int righe = 0;
    const auto rigo = [&](const QString& testo, QWidget* w) {
        if (!modulo || ++righe > 14) {
            modulo = new QFormLayout;
            colonne->addLayout(modulo);
            righe = 1;
        }
        c.riga(modulo, testo, {w});
    };
    QList<QWidget*> griglie;
    auto* comandi = new QGridLayout;
    int n = 0;
    for (const Controllo* x : s.controlli()) {
        if (x->genere() == Genere::grid) {
            griglie += c.griglia(x->nome());
        } else if (x->genere() == Genere::button) {
            QWidget* b = c.pezzo(x->nome());
            comandi->addWidget(b, n / 8, n % 8);
            ++n;
        } else if (e_campo(x->genere())) {
            rigo(base_di(x->nome()), c.pezzo(x->nome()));
        } else {
            rigo({}, c.pezzo(x->nome()));
        }
    }
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(dentro);
    auto* p = new QWidget(&c.finestra());
    auto* v = new QVBoxLayout(p);
    v->setContentsMargins(0, 0, 0, 0);
    if (righe) v->addWidget(area, griglie.isEmpty() ? 1 : 0);
    for (QWidget* g : griglie) v->addWidget(g, 1);
    v->addLayout(comandi);
    return p;
}

QWidget* costruisci_vista(Finestra& f, Schermo& s) {
    Contesto c(f, s);
    const Vista v = vista_di(s.nome());
    return v ? v(c, s) : vista_generica(c, s);
}

}  // namespace ambra
