// The peers of the start: a bare window with a table over a model that is ready at once or, given DIR NNN,
// over the worklist of that building, read and made into rows before.
#include <QMainWindow>
#include <QTableView>

#include <optional>

#include "bench/finestre_comuni.h"
#include "core/disco.h"
#include "desktop/parts/testo_qt.h"
#include "qt/tutte.h"
#include "tests/supporto/piattaforma_prova.h"
#include "worklist/vexoraf.h"

namespace {

using namespace ambra;

// The grid's texts and nothing else.
class TabellaNuda : public QAbstractTableModel {
  public:
    explicit TabellaNuda(const Griglia& g) : g_(g) {}
    int rowCount(const QModelIndex& = {}) const override { return g_.righe() - 1; }
    int columnCount(const QModelIndex& = {}) const override { return g_.quante_colonne(); }
    QVariant data(const QModelIndex& i, int ruolo) const override {
        return ruolo == Qt::DisplayRole ? QVariant(qs(g_.vista(i.row() + 1, i.column()))) : QVariant();
    }

  private:
    const Griglia& g_;
};

// The program without a window.
struct Senza {
    std::unique_ptr<Disco> disco;
    PiattaformaProva piattaforma;
    Programma prog;
    TabellaNuda modello;

    Senza(const char* dove, const char* nnn)
        : disco(disco_vero(dove)), prog(*disco, piattaforma, nnn), modello(lista()) {}
    const Griglia& lista() {
        registra_tutte(prog.schermi);
        return prog.schermi.carica<Vexoraf>("vexoraf").elenco;
    }
};

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setStyle("Fusion");
    std::optional<Senza> programma;
    if (argc > 2) programma.emplace(argv[1], argv[2]);
    QMainWindow f;
    TabellaPronta pronta;
    QTableView t;
    if (programma) {
        t.setModel(&programma->modello);
    } else {
        t.setModel(&pronta);
    }
    f.setCentralWidget(&t);
    f.resize(1340, 650);
    f.show();
    const PrimoDisegno fine(t.viewport());
    return QApplication::exec();
}
