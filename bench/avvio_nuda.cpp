// The peer of the start: a bare window with a table of 30,000 rows over a model that is ready at once.
#include <QAbstractTableModel>
#include <QMainWindow>
#include <QTableView>

#include "bench/avvio_primo_disegno.h"

namespace {

class Pronto : public QAbstractTableModel {
  public:
    int rowCount(const QModelIndex& = {}) const override { return 30000; }
    int columnCount(const QModelIndex& = {}) const override { return 10; }
    QVariant data(const QModelIndex& i, int ruolo) const override {
        return ruolo == Qt::DisplayRole ? QVariant(QString::number(i.row() * i.column())) : QVariant();
    }
};

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setStyle("Fusion");
    QMainWindow f;
    Pronto modello;
    QTableView t;
    t.setModel(&modello);
    f.setCentralWidget(&t);
    f.resize(1340, 650);
    f.show();
    const ambra::PrimoDisegno fine(t.viewport());
    return QApplication::exec();
}
