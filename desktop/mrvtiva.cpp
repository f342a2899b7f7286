// The table of VAT codes, as a table: a code a row, rate, shares and exemption in their columns.
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "desktop/parts/testo_qt.h"
#include "desktop/viste.h"
#include "screen/schermo.h"

namespace ambra {

QWidget* vista_mrvtiva(Contesto& c, Schermo& s) {
    const auto caption = [&s](const std::string& nome) { return qs(s.trova(nome)->caption()); };
    auto* t = new QGridLayout;
    const auto testata = [&](int colonna, const std::string& di) {
        auto* l = new QLabel(caption(di));
        l->setAlignment(Qt::AlignCenter);
        t->addWidget(l, 0, colonna);
    };
    testata(2, "Text1(1)");
    testata(3, "Text1(2)");
    for (int i = 0; i < 8; ++i) {
        const auto nome = [i](int k) { return "Text1(" + std::to_string(i * 4 + k) + ")"; };
        for (int k = 0; k < 4; ++k) {
            const QString detto =
                k == 1 || k == 2 ? caption(nome(0)) + ' ' + caption(nome(k)) : caption(nome(k));
            QLineEdit* campo = k == 3 ? c.testo(nome(k), 40, detto) : c.numero(nome(k), 7, detto);
            if (k == 0) t->addWidget(c.accanto(detto, campo), i + 1, 0);
            if (k == 3) t->addWidget(c.accanto(detto, campo), i + 1, 4);
            t->addWidget(campo, i + 1, k == 3 ? 5 : k + 1);
        }
    }
    t->setColumnStretch(5, 1);
    QWidget* gruppo = c.gruppo(caption("frame"), t);
    c.finestra().custodisce({.uscite = {"indice(1)"}, .scelte = {}, .durante = {}});
    return c.pagina({gruppo, c.comandi({}, {}, {c.bottone("indice(0)"), c.bottone("indice(1)")})}, -1);
}

}  // namespace ambra
