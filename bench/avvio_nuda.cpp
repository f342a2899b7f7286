// The peer of the start: a bare window with a table of 30,000 rows over a model that is ready at once.
#include <QMainWindow>
#include <QTableView>

#include "bench/finestre_comuni.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setStyle("Fusion");
    QMainWindow f;
    ambra::TabellaPronta modello;
    QTableView t;
    t.setModel(&modello);
    f.setCentralWidget(&t);
    f.resize(1340, 650);
    f.show();
    const ambra::PrimoDisegno fine(t.viewport());
    return QApplication::exec();
}
