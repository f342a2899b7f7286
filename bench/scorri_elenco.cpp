// Pages through the main window's list from end to end, DIR NNN, and the same through a bare table: median
// and worst time to paint a page.
#include <QElapsedTimer>
#include <QScrollBar>
#include <QTableView>
#include <algorithm>
#include <cstdio>
#include <vector>

#include "bench/finestre_comuni.h"
#include "desktop/aspetto.h"
#include "desktop/avvio.h"
#include "desktop/parts/griglia_vista.h"

namespace {

constexpr int kPagine = 400;

void scorri(const char* nome, QTableView* t) {
    std::vector<double> ms;
    QScrollBar* barra = t->verticalScrollBar();
    for (int i = 0; i < kPagine; ++i) {
        QElapsedTimer orologio;
        orologio.start();
        barra->setValue(static_cast<int>(static_cast<long long>(barra->maximum()) * i / kPagine));
        QCoreApplication::processEvents();
        t->viewport()->repaint();
        ms.push_back(static_cast<double>(orologio.nsecsElapsed()) / 1e6);
    }
    std::sort(ms.begin(), ms.end());
    std::printf("%-8s %d rows: median %.2f ms, worst %.2f ms a page\n", nome, t->model()->rowCount(),
                ms[ms.size() / 2], ms.back());
}

}  // namespace

int main(int argc, char** argv) {
    using namespace ambra;
    if (argc < 3) return 2;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    prepara_aspetto(app);
    const ProgrammaDesktop p(argv[1], argv[2]);
    QTableView* nostra = p.finestre.finestra("vexoraf")->findChild<VistaGriglia*>("elenco")->tabella();
    TabellaPronta modello;
    QTableView nuda;
    nuda.setModel(&modello);
    nuda.resize(1340, 600);
    nuda.show();
    QCoreApplication::processEvents();
    scorri("bare", &nuda);
    scorri("vexoraf", nostra);
    return 0;
}
