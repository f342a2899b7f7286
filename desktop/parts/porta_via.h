// What takes the rows of a list away: into a spreadsheet (Ctrl+E), onto the clipboard (Ctrl+C; after Ctrl+A
// all of them). The same commands stand in the context menu of the table.
#pragma once

#include <QObject>
#include <functional>

class QTableView;

namespace ambra {

class Griglia;
struct Foglio;

class PortaVia : public QObject {
    Q_OBJECT
  public:
    /// `tabella` shows rows of `g` in their order; `riga_griglia` tells which one stands in a row of it.
    PortaVia(QTableView* tabella, const Griglia& g, std::function<int(int riga)> riga_griglia);
    /// The grid is about to go; nothing is taken away from now on.
    void stacca() { g_ = nullptr; }

    /// Asks for a file and writes the list there.
    void esporta();
    /// Writes the list into a file: CSV if its name ends so, else a workbook. Says so if it cannot.
    void esporta_in(const QString& percorso);
    /// The chosen row, or all with their headings when all are chosen.
    void copia();

  protected:
    bool eventFilter(QObject* o, QEvent* e) override;

  private:
    Foglio in_vista() const;
    void tutte(bool si);

    QTableView* tabella_;
    const Griglia* g_;
    std::function<int(int)> riga_griglia_;
    bool tutte_ = false;
};

}  // namespace ambra
