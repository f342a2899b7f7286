// The ministerial form for 1,000 suppliers to a PDF file, on the built-in positions and on the user's: under
// twice a loop that draws the same texts with bare Qt.
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <QApplication>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <filesystem>

#include "bench/cantiere.h"
#include "bench/rapporti.h"
#include "core/testo.h"
#include "qt/stampante_qt.h"
#include "reports/quadroac.h"
#include "tests/supporto/disco_memoria.h"
#include "tests/supporto/piattaforma_prova.h"

using namespace ambra;

namespace {

constexpr int kFornitori = 1000;

struct PiattaformaPdf : PiattaformaProva {
    StampanteQt pdf;
    Printer* usata = &pdf;
    Printer& printer() override { return *usata; }
};

struct Cantiere {
    std::string casa;
    DiscoMemoria disco;
    PiattaformaPdf piattaforma;
    Programma prog{disco, piattaforma, "1"};
    DatiQuadro dati;
    std::vector<RigaQuadro> righe;

    Cantiere() {
        char modello[] = "/tmp/ambra-bench-XXXXXX";
        casa = ::mkdtemp(modello);
        std::vector<RecFornitore> fornitori(kFornitori);
        for (int i = 0; i < kFornitori; ++i) {
            RecFornitore& f = fornitori[static_cast<std::size_t>(i)] = cantiere::fornitore(i);
            f.prov = "TO";
            f.provnas = "AT";
            f.sesso = "M";
            righe.push_back({i + 1, "1.234,50"});
        }
        disco.contenuto(nome_file("001", "for")) = cantiere::byte_di(fornitori);
        prog.apriarchivi();
        dati = carica_quadro(prog);
        dati.stabile.nome = "Condominio Rossi";
        dati.studio[9] = "VRDLGI60A01L219Y";
        for (std::size_t i = 1; i <= 26; ++i)
            dati.coordinate.campo[i].posizione =
                con_zeri(static_cast<long>(10 + i * 6), 3) + con_zeri(static_cast<long>(10 + i), 3);
        dati.coordinate.campo[99].posizione = "040";
        piattaforma.pdf.scelta.cartella_pdf = QString::fromStdString(casa);
    }
    ~Cantiere() { std::filesystem::remove_all(casa); }

    void stampa(bool proprie) {
        if (proprie)
            stampamod(prog, dati, righe);
        else
            stampamin(prog, dati, righe, 0, 0);
    }
    /// The same job as a list of operations, for the bare loop.
    LavoroStampa registra(bool proprie) {
        piattaforma.usata = &piattaforma.stampante;
        stampa(proprie);
        piattaforma.usata = &piattaforma.pdf;
        LavoroStampa l = std::move(piattaforma.lavori.back());
        piattaforma.lavori.clear();
        return l;
    }
    void svuota() {
        for (const auto& f : std::filesystem::directory_iterator(casa)) std::filesystem::remove(f);
    }
};

void modulo(benchmark::State& stato) {
    Cantiere c;
    double byte = 0;
    for (auto _ : stato) {
        c.stampa(stato.range(0) == 1);
        stato.PauseTiming();
        for (const auto& f : std::filesystem::directory_iterator(c.casa))
            byte = static_cast<double>(f.file_size());
        c.svuota();
        stato.ResumeTiming();
    }
    stato.counters["byte"] = byte;
}

void qt_nudo(benchmark::State& stato) {
    Cantiere c;
    const LavoroStampa lavoro = c.registra(stato.range(0) == 1);
    std::vector<std::vector<QString>> testi;
    for (const auto& p : lavoro.pagine) {
        testi.emplace_back();
        for (const auto& o : p.operazioni) testi.back().push_back(QString::fromStdString(a_utf8(o.testo)));
    }
    const QString file = QString::fromStdString(c.casa + "/nudo.pdf");
    for (auto _ : stato) {
        QPdfWriter pdf(file);
        pdf.setPageSize(QPageSize(QPageSize::A4));
        pdf.setPageMargins(QMarginsF());
        pdf.setResolution(600);
        QPainter p(&pdf);
        const double punti_mm = 600 / 25.4;
        QFont font(QStringLiteral("arial"));
        double corpo = 0, salita = 0;
        for (std::size_t n = 0; n < lavoro.pagine.size(); ++n) {
            if (n > 0) pdf.newPage();
            const auto& ops = lavoro.pagine[n].operazioni;
            for (std::size_t i = 0; i < ops.size(); ++i) {
                if (ops[i].font.punti != corpo) {
                    corpo = ops[i].font.punti;
                    font.setPointSizeF(corpo);
                    p.setFont(font);
                    salita = p.fontMetrics().ascent();
                }
                p.drawText(QPointF(ops[i].x1 * punti_mm, ops[i].y1 * punti_mm + salita), testi[n][i]);
            }
        }
        p.end();
    }
    stato.counters["byte"] = static_cast<double>(std::filesystem::file_size(c.casa + "/nudo.pdf"));
}

BENCHMARK(modulo)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(qt_nudo)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    return misura(argc, argv, {{"modulo/0", "qt_nudo/0", 2}, {"modulo/1", "qt_nudo/1", 2}});
}
