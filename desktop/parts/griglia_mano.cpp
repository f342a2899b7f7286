// The row in hand: kept over a sort, a filter and a list made anew; its context menu; the arrow of the sort.
#include <QAbstractButton>
#include <QHeaderView>
#include <QMenu>
#include <QScrollBar>
#include <algorithm>

#include "desktop/finestra.h"
#include "desktop/parts/griglia_vista.h"

namespace ambra {

std::vector<std::string> VistaGriglia::testi_di(int riga) const {
    std::vector<std::string> testi;
    if (riconosce_.empty())
        for (int c = 0; c < g_.quante_colonne(); ++c) testi.push_back(g_.testo(riga, c));
    for (const int c : riconosce_) testi.push_back(g_.testo(riga, c));
    return testi;
}

void VistaGriglia::prendi_nota() {
    const QModelIndex i = tabella_->currentIndex();
    if (!i.isValid() || !f_.schermo()) return;
    const int riga = modello_->riga_griglia(i.row());
    in_mano_ = {riga, g_.chiave(riga), g_.testo(riga, 0), testi_di(riga), i.row() - tabella_->rowAt(0)};
}

// In the same filling by its key, else by its texts: the nearest to where it was, that of its own number
// first. A document that reads otherwise by now keeps its number.
int VistaGriglia::ritrova(bool nuova) const {
    if (in_mano_.riga < 1) return 0;
    if (!nuova && in_mano_.chiave == 0) return 0;
    if (!nuova && g_.chiave(in_mano_.riga) == in_mano_.chiave) return in_mano_.riga;
    int per_testi = 0, per_numero = 0;
    for (int r = 1; r < g_.righe(); ++r) {
        if (!nuova) {
            if (g_.chiave(r) == in_mano_.chiave) return r;
            continue;
        }
        const bool numero = in_mano_.chiave != 0 && g_.vista(r, 0) == in_mano_.prima;
        if (numero) per_numero = r;
        if (per_testi != 0 && !numero) continue;
        if (testi_di(r) != in_mano_.testi) continue;
        per_testi = r;
        if (numero) return r;
    }
    return per_testi ? per_testi : per_numero;
}

// The row stands where it stood on the display.
void VistaGriglia::torna_a(int riga, int scarto) {
    const int modello = modello_->riga_modello(riga);
    if (modello < 0) return;
    const int colonna = std::max(0, tabella_->currentIndex().column());
    mia_ = true;
    tabella_->doItemsLayout();
    tabella_->setCurrentIndex(modello_->index(modello, colonna));
    if (scarto >= 0) tabella_->verticalScrollBar()->setValue(modello - scarto);
    mia_ = false;
    prendi_nota();
    if (tabella_->rowAt(0) < 0) return;
    prima_nota_ = modello_->riga_griglia(tabella_->rowAt(0));
    g_.prima_visibile(prima_nota_);
}

int VistaGriglia::riga_in_mano() const {
    const QModelIndex i = tabella_->currentIndex();
    return i.isValid() ? modello_->riga_griglia(i.row()) : 0;
}

void VistaGriglia::prendi_riga(int riga) {
    const int modello = modello_->riga_modello(riga);
    if (modello < 0) return;
    tabella_->setCurrentIndex(modello_->index(modello, 0));
    tabella_->scrollTo(modello_->index(modello, 0));
}

void VistaGriglia::filtra(std::function<bool(int)> passa) {
    const InMano prima = in_mano_;
    mia_ = true;
    modello_->filtra(std::move(passa));
    mia_ = false;
    in_mano_ = prima;
    if (modello_->rowCount() == 0) return;
    if (prima.riga > 0 && modello_->riga_modello(prima.riga) >= 0) return torna_a(prima.riga, prima.scarto);
    mia_ = true;
    tabella_->setCurrentIndex(modello_->index(0, 0));
    tabella_->scrollToTop();
    mia_ = false;
}

// Where a label that sorts stands over the column, the heading does what it does.
void VistaGriglia::ordina_da(int colonna) {
    mostra_freccia();
    const auto c = static_cast<std::size_t>(colonna);
    auto* etichetta = c < etichette_.size() ? qobject_cast<QAbstractButton*>(etichette_[c]) : nullptr;
    if (etichetta && etichetta->isEnabled() && !etichetta->text().isEmpty()) {
        etichetta->click();
    } else {
        scegli(0, colonna);
    }
}

void VistaGriglia::mostra_freccia() {
    QHeaderView* testa = tabella_->horizontalHeader();
    const bool nota = volta && ordinata_ >= 0;  // of another list nobody tells when it lost its order
    testa->setSortIndicatorShown(nota);
    if (nota) testa->setSortIndicator(ordinata_, Qt::AscendingOrder);
}

void VistaGriglia::menu(const QPoint& dove) {
    const QModelIndex i = tabella_->indexAt(dove);
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("menu_riga"));
    for (const auto& voci : voci_di_menu) voci(menu, i.isValid() ? modello_->riga_griglia(i.row()) : 0);
    if (!menu.isEmpty()) menu.addSeparator();
    menu.addActions(tabella_->actions());
    menu.exec(tabella_->viewport()->mapToGlobal(dove));
}

}  // namespace ambra
