// A key in the search of the main window's list, DIR NNN, from the key to the painted rows: processor time of
// the slowest, of words typed letter by letter. Beside it the same words looked for in the same texts by the
// standard library alone, one key after the other.
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTableView>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <sstream>
#include <string>
#include <vector>

#include "desktop/aspetto.h"
#include "desktop/avvio.h"
#include "desktop/parts/griglia_vista.h"
#include "desktop/parts/righe_cercate.h"
#include "desktop/parts/testo_qt.h"
#include "worklist/vexoraf.h"

namespace {

using namespace ambra;

constexpr int kColonne = 7;
constexpr int kVolte = 7;
constexpr const char* kParole[] = {"rossi 2024", "1.2", "elett 22/01", "zzz"};

double ora_ms() {
    return 1e3 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

// The slowest key of all, typed into the window.
double nella_finestra(QLineEdit* campo, QTableView* tabella) {
    double peggio = 0;
    for (const char* parole : kParole) {
        campo->clear();
        QCoreApplication::processEvents();
        for (const char c : std::string(parole)) {
            const double da = ora_ms();
            QKeyEvent tasto(QEvent::KeyPress, 0, Qt::NoModifier, QString(QLatin1Char(c)));
            QCoreApplication::sendEvent(campo, &tasto);
            QCoreApplication::processEvents();
            tabella->viewport()->repaint();
            peggio = std::max(peggio, ora_ms() - da);
        }
    }
    campo->clear();
    return peggio;
}

volatile std::ptrdiff_t trovate;  // so that the search is made

// The slowest question to texts that are ready.
double nei_soli_testi(const std::vector<std::string>& testi) {
    double peggio = 0;
    for (const char* tutte : kParole)
        for (std::size_t n = 1; n <= std::string_view(tutte).size(); ++n) {
            const double da = ora_ms();
            std::istringstream flusso(std::string(tutte, n));
            std::vector<std::string> parole;
            for (std::string p; flusso >> p;) parole.push_back(p);
            const auto quante = std::count_if(testi.begin(), testi.end(), [&](const std::string& t) {
                return std::all_of(parole.begin(), parole.end(),
                                   [&](const std::string& p) { return t.find(p) != std::string::npos; });
            });
            trovate = quante;
            peggio = std::max(peggio, ora_ms() - da);
        }
    return peggio;
}

std::vector<std::string> testi_di(const Griglia& g) {
    std::vector<std::string> testi;
    for (int r = 1; r < g.righe(); ++r) {
        std::string t;
        for (int c = 0; c < kColonne; ++c) t += in_piano(g.vista(r, c)) + '\n';
        testi.push_back(std::move(t));
    }
    return testi;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) return 2;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    prepara_aspetto(app);
    const ProgrammaDesktop p(argv[1], argv[2]);
    const Finestra* f = p.finestre.finestra("vexoraf");
    QTableView* tabella = f->findChild<VistaGriglia*>("elenco")->tabella();
    auto* campo = f->findChild<QLineEdit*>("cerca");
    const auto& lista = static_cast<Vexoraf*>(f->schermo())->elenco;
    const std::vector<std::string> testi = testi_di(lista);
    QCoreApplication::processEvents();
    double nostra = 1e9, nuda = 1e9, prima = 0;
    for (int i = 0; i < kVolte; ++i) {
        const double questa = nella_finestra(campo, tabella);
        if (i == 0) prima = questa;
        nostra = std::min(nostra, questa);
        nuda = std::min(nuda, nei_soli_testi(testi));
    }
    std::printf("%zu rows: slowest key %.1f ms (%.1f the first time), texts alone %.1f ms\n", testi.size(),
                nostra, prima, nuda);
    std::printf("a key in the search takes %.2f times 50 ms, at most 1%s\n", prima / 50,
                prima > 50 ? ": OVER" : "");
    std::printf("a key in the search takes %.2f times the texts alone\n", nostra / nuda);
    return 0;
}
