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
#include <string_view>
#include <vector>

#include "screen/griglia.h"

namespace ambra {

class Contesto;
class Finestra;

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
    /// Takes over what the grid has become; true if its columns are others than before.
    bool rileggi();
    void stacca() { g_ = nullptr; }

  private:
    bool vuota(int r) const;

    Griglia* g_;
    QFont cifre_;
    int righe_ = 0, colonne_ = 0;
    std::vector<Colonna> note_;
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
    void stacca() { modello_->stacca(); }
    /// How many rows the list asks room for.
    void righe_volute(int n);
    /// Column `colonna` is never narrower than this text, which stands in some of its cells.
    void posto_per(int colonna, const QString& testo);
    QSize sizeHint() const override;

  protected:
    bool eventFilter(QObject* o, QEvent* e) override;

  private:
    void mostra();
    void misura_colonne();
    void disponi_colonne();
    void disponi_etichette();
    void scegli(int riga, int colonna);
    bool tasto(QKeyEvent* e);

    Finestra& f_;
    Griglia& g_;
    ModelloGriglia* modello_;
    QTableView* tabella_;
    QWidget* striscia_ = nullptr;
    std::vector<QWidget*> etichette_;
    std::vector<int> naturali_;                    // widths in pixels as the twips ask for
    bool dell_utente_ = false;                     // the user has set a width: leave them alone
    bool trascina_ = false;                        // the mouse is down on the heading
    bool mia_ = false;                             // a scroll position is being set by this view
    std::vector<std::pair<int, QString>> parole_;  // columns that must have room for a text
    int righe_volute_ = 14;
    int prima_nota_ = 1;
};

}  // namespace ambra
