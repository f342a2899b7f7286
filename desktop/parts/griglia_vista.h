// The list: a table straight over a grid of the logic, without a copy of its cells, and the strip of sort
// labels that stands over its columns.
//
// Columns start in the proportions of their twips, at a size that suits the font, and fill the width; the
// user can widen them. A click on a cell, or Enter or Space on it, picks it; a click on the heading picks
// row 0.
#pragma once

#include <QAbstractTableModel>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QWidget>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "screen/griglia.h"

class QMenu;

namespace ambra {

class Contesto;
class Finestra;
class PortaVia;

/// Role under which a cell tells whether its row is empty.
inline constexpr int kRigaVuota = Qt::UserRole;

/// The grid as Qt's views read it. Row 0 of the model is row 1 of the grid.
class ModelloGriglia : public QAbstractTableModel {
    Q_OBJECT
  public:
    ModelloGriglia(Griglia& g, const QFont& font, QObject* padre);
    int rowCount(const QModelIndex& padre = {}) const override { return padre.isValid() ? 0 : righe_; }
    int columnCount(const QModelIndex& padre = {}) const override { return padre.isValid() ? 0 : colonne_; }
    QVariant data(const QModelIndex& i, int ruolo) const override;
    QVariant headerData(int sezione, Qt::Orientation verso, int ruolo) const override;
    /// Shows only the rows with a key that pass; an empty function shows all.
    void filtra(std::function<bool(int riga)> passa);
    bool filtrato() const { return passa_ != nullptr; }
    /// The row of the grid that stands in a row of the model, and back; -1 for one that is not shown.
    int riga_griglia(int riga) const {
        return passa_ && riga < righe_ ? mostrate_[static_cast<std::size_t>(riga)] : riga + 1;
    }
    int riga_modello(int riga) const;
    /// For the window alone: what a cell of the grid shows in place of its own; invalid for nothing.
    std::function<QVariant(int riga, int colonna, int ruolo)> ritocco;
    /// Takes over what the grid has become; true if its columns are others than before.
    bool rileggi();
    void stacca() { g_ = nullptr; }

  private:
    bool vuota(int r) const;

    Griglia* g_;
    QFont cifre_;
    int righe_ = 0, colonne_ = 0;
    std::vector<Colonna> note_;
    std::function<bool(int)> passa_;
    std::vector<int> mostrate_;  // rows of the grid, while there is a filter
};

/// Paints a cell in its told colour with a text that reads on it.
class PittoreCelle : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* p, const QStyleOptionViewItem& o, const QModelIndex& i) const override;
    /// The whole text of a cell that is too narrow for it.
    bool helpEvent(QHelpEvent* e, QAbstractItemView* v, const QStyleOptionViewItem& o,
                   const QModelIndex& i) override;
};

class VistaGriglia : public QWidget {
    Q_OBJECT
  public:
    VistaGriglia(Contesto& c, Griglia& g);

    QTableView* tabella() const { return tabella_; }
    /// Puts the labels `base(0)`, `base(1)`, ... of the screen over the columns.
    void etichette(Contesto& c, std::string_view base);
    const std::vector<QWidget*>& etichette() const { return etichette_; }
    /// The grid is about to go; the table shows nothing from now on.
    void stacca();
    /// What Ctrl+E does.
    void esporta();
    /// How many rows the list asks room for.
    void righe_volute(int n);
    /// Column `colonna` is never narrower than this text, which stands in some of its cells.
    void posto_per(int colonna, const QString& testo);
    QSize sizeHint() const override;

    // ---- for the window alone ----
    ModelloGriglia& modello() { return *modello_; }
    /// Shows only these rows; the one in hand stays in hand if it is among them.
    void filtra(std::function<bool(int riga)> passa);
    bool filtrata() const { return modello_->filtrato(); }
    int righe_mostrate() const { return modello_->rowCount(); }
    int riga_mostrata(int i) const { return modello_->riga_griglia(i); }
    /// The row of the grid in hand, 0 for none.
    int riga_in_mano() const;
    void prendi_riga(int riga);
    /// Does what a click on the cell does.
    void clicca(int riga, int colonna) { scegli(riga, colonna); }
    /// Enter, a double click and F2 on a cell before column `colonna` click the one there.
    void apri_con(int colonna) { apre_ = colonna; }
    /// Columns by whose texts a row is known again when the list is made anew; all, unless set. Else it is
    /// known by its first one.
    void riconosci_da(std::vector<int> colonne) { riconosce_ = std::move(colonne); }
    /// Told by the list's owner: how often it was made. Without it a list is always the same.
    std::function<long()> volta;
    /// Runs after the list was made anew.
    std::function<void()> rifatta;
    /// Adds what the context menu of a row offers.
    std::vector<std::function<void(QMenu& menu, int riga)>> voci_di_menu;

  protected:
    bool eventFilter(QObject* o, QEvent* e) override;

  private:
    // The row in hand, as it can be found again.
    struct InMano {
        int riga = 0;
        long chiave = 0;
        std::string prima;  // text of the first column
        std::vector<std::string> testi;
        int scarto = 0;  // rows of the model above it in sight
    };
    std::vector<std::string> testi_di(int riga) const;
    void prendi_nota();
    int ritrova(bool anew) const;
    void torna_a(int riga, int scarto);
    void ordina_da(int colonna);
    void mostra_freccia();
    void menu(const QPoint& dove);
    void mostra();
    void misura_colonne();
    void disponi_colonne();
    std::vector<int> colonne_per(int spazio) const;
    int minima(int colonna) const;
    void disponi_etichette();
    QString nome_dei_ricordi() const;
    void ricorda_colonne() const;
    bool riprendi_colonne();
    void scegli(int riga, int colonna);
    bool tasto(QKeyEvent* e);

    Finestra& f_;
    Griglia& g_;
    ModelloGriglia* modello_;
    QTableView* tabella_;
    PortaVia* porta_via_;
    QWidget* striscia_ = nullptr;
    std::vector<QWidget*> etichette_;
    std::vector<int> naturali_;                    // widths in pixels as the twips ask for
    bool dell_utente_ = false;                     // the user has set a width: leave them alone
    bool trascina_ = false;                        // the mouse is down on the heading
    bool mia_ = false;                             // a scroll position is being set by this view
    std::vector<std::pair<int, QString>> parole_;  // columns that must have room for a text
    int righe_volute_ = 14;
    int prima_nota_ = 1;
    InMano in_mano_;
    std::vector<int> riconosce_;
    int apre_ = -1;
    int ordinata_ = -1;  // the heading with the arrow
    long volta_ = 0;     // the last one shown
};

}  // namespace ambra
