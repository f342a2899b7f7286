// A table of a rich-text document as a table of the window library.
//
// Each row has cell edges of its own. The edges of all rows together make the columns of the grid, and a
// cell that spans several of them is merged.
#pragma once

#include <QTextCursor>
#include <QTextTable>
#include <vector>

#include "print/rtf.h"
#include "qt/ricco_bordi.h"

namespace ambra {

class TabellaComposta {
  public:
    /// Inserts a table for rows `prima` to `ultima` where the cursor stands.
    TabellaComposta(QTextCursor& cursore, const rtf::Documento& d, int prima, int ultima);
    /// Stands in the first block of a cell.
    QTextCursor cella(int riga, int cella) const;
    /// Spacing above the first paragraph of a cell, and above the one that follows the table: the library
    /// lays none there.
    void spazio_sopra(int riga, int cella, double twip) const;
    void spazio_sotto(double twip) const;
    /// Stands after the table.
    QTextCursor dopo() const;
    TabellaPosata posata() const { return {tabella_, prima_, static_cast<double>(bordi_.front())}; }

  private:
    void trova_colonne();
    int colonna_di(int bordo) const;
    QTextTableCell cella_di(int riga, int cella) const;
    void unisci_celle();
    void unisci_in_verticale(int r, int colonna, int destra);
    void formato_cella(int r, int c, int colonna);

    const rtf::Documento& d_;
    int prima_, righe_;
    std::vector<int> bordi_;  // left edges of the columns and the right edge of the last
    QTextTable* tabella_ = nullptr;
};

}  // namespace ambra
