#include "desktop/vexoraf_righe.h"

#include <QApplication>
#include <QIcon>
#include <QMenu>
#include <QPainter>
#include <QPainterPath>
#include <QShortcut>

#include "desktop/finestra.h"
#include "desktop/parts/colori.h"
#include "desktop/parts/contesto.h"
#include "desktop/parts/griglia_vista.h"
#include "worklist/vexoraf.h"

namespace ambra {

namespace {

enum Colonna { numero = 2, fornitore = 4, scoperto = 6, modifica = 7, elimina = 8, saldo = 9 };

// A paper clip in the colour of the text.
QIcon graffetta(const QColor& colore) {
    constexpr int kLato = 64;
    QPixmap m(kLato, kLato);
    m.fill(Qt::transparent);
    QPainter p(&m);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(colore, 5, Qt::SolidLine, Qt::RoundCap));
    QPainterPath v(QPointF(42, 18));
    v.lineTo(42, 44);
    v.arcTo(QRectF(22, 34, 20, 20), 0, -180);
    v.lineTo(22, 16);
    v.arcTo(QRectF(22, 8, 14, 14), 180, -180);
    v.lineTo(36, 42);
    v.arcTo(QRectF(28, 38, 8, 8), 0, -180);
    v.lineTo(28, 20);
    p.drawPath(v);
    return m;
}

QVariant ritocco(const Vexoraf& s, int riga, int colonna, int ruolo) {
    const bool di_pdf = colonna == fornitore && (ruolo == Qt::DecorationRole || ruolo == Qt::ToolTipRole);
    const bool di_scaduto = colonna == scoperto && (ruolo == Qt::ForegroundRole || ruolo == Qt::ToolTipRole);
    if (!di_pdf && !di_scaduto) return {};
    const VoceElenco* v = s.voce(riga);
    if (!v || v->eliminata) return {};
    if (di_pdf && v->pdf) {
        if (ruolo == Qt::ToolTipRole) return QStringLiteral("Un documento PDF è collegato");
        return graffetta(QApplication::palette().color(QPalette::Text));
    }
    if (di_scaduto && v->scaduto != 0)
        return ruolo == Qt::ToolTipRole ? QVariant(QStringLiteral("Scaduto")) : QVariant(QColor(0xC0, 0, 0));
    return {};
}

void menu_di_riga(Finestra& f, Vexoraf& s, VistaGriglia& elenco, QMenu& menu, int riga) {
    const auto doc = s.documento(riga);
    if (!s.voce(riga) || !doc) return;
    const auto clicca = [&elenco, riga](int colonna) {
        return [&elenco, riga, colonna] { elenco.clicca(riga, colonna); };
    };
    if (doc->cancellata == 1) {
        menu.addAction(QStringLiteral("Ripristina"), &f,
                       [&f, &s, riga] { f.agisce(s.elenco, [&] { s.ripristina(riga); }); });
        return;
    }
    if (s.voce(riga)->eliminata) return;
    menu.addAction(QStringLiteral("Modifica\tInvio"), &f, clicca(modifica));
    menu.addAction(
        s.elenco.testo(riga, saldo) == "azzera" ? QStringLiteral("Azzera il saldo") : QStringLiteral("Saldo"),
        &f, clicca(saldo));
    if (s.azzerata(riga))
        menu.addAction(QStringLiteral("Rimetti il saldo azzerato"), &f,
                       [&f, &s, riga] { f.agisce(s.elenco, [&] { s.rimetti_saldo(riga); }); });
    menu.addSeparator();
    menu.addAction(QStringLiteral("Elimina\tCanc"), &f, clicca(elimina));
}

// The key works on the row in hand while the hand is in the list.
void tasto_di_riga(VistaGriglia& elenco, Qt::Key tasto, int colonna) {
    auto* k = new QShortcut(QKeySequence(tasto), elenco.tabella());
    k->setContext(Qt::WidgetShortcut);
    QObject::connect(k, &QShortcut::activated, &elenco, [&elenco, colonna] {
        if (elenco.riga_in_mano() > 0) elenco.clicca(elenco.riga_in_mano(), colonna);
    });
}

// The last document; filler rows have no key.
int ultima(const Vexoraf& s) {
    int r = s.elenco.righe() - 1;
    while (r > 1 && !s.voce(r)) --r;
    return r;
}

}  // namespace

void lavora_sulle_righe(Contesto& c, Vexoraf& s, VistaGriglia& elenco) {
    Finestra& f = c.finestra();
    elenco.volta = [&s] { return s.volta(); };
    elenco.apri_con(modifica);
    elenco.riconosci_da({1, numero, 3, fornitore});
    elenco.modello().ritocco = [&s](int riga, int colonna, int ruolo) {
        return ritocco(s, riga, colonna, ruolo);
    };
    elenco.voci_di_menu.push_back([&](QMenu& m, int riga) { menu_di_riga(f, s, elenco, m, riga); });
    tasto_di_riga(elenco, Qt::Key_F2, modifica);
    tasto_di_riga(elenco, Qt::Key_Delete, elimina);
    auto* nuova = new QShortcut(QKeySequence(QStringLiteral("Ctrl+N")), &f);
    QObject::connect(nuova, &QShortcut::activated, &f,
                     [&f, &s] { f.utente([&s] { s.prog.schermi.apri_foglia("lumftem"); }); });
    // Once the window is there: the list knows how many rows are in sight.
    QMetaObject::invokeMethod(
        &elenco, [&elenco, &s] { elenco.prendi_riga(ultima(s)); }, Qt::QueuedConnection);
}

}  // namespace ambra
