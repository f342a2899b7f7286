// A list of 30,000 rows and 9 columns to a PDF file, beside a loop that draws the same texts with bare Qt (at
// most 0.65 times).
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

#include "bench/rapporti.h"
#include "core/testo.h"
#include "print/motore.h"
#include "print/registratore.h"
#include "qt/stampante_qt.h"

using namespace ambra;

namespace {

constexpr int kRighe = 30000, kColonne = 9;

void stampa_elenco(Printer& p) {
    std::array<RecStampa, 81> tab;
    tab[0].paginasx = tab[0].paginasu = 30;
    tab[0].paginadx = tab[0].paginagiu = 950;
    tab[0].testata = 2;
    tab[0].rigaalt = 340;
    for (auto& v : tab) {
        v.fontnome = "Arial";
        v.fontsize = 8;
    }
    tab[0].coltitolo = "Elenco";
    tab[0].colx = kColonne;
    tab[0].colall = 1;
    for (std::size_t i = 1; i <= kColonne; ++i) {
        tab[i].collarg = 11;
        tab[i].coltipo = i % 3 == 0 ? 1 : 0;
        tab[i].coltitolo = "Colonna " + std::to_string(i);
    }
    Cambio cambio;
    cambio[1] = "1";
    std::array<std::string, 21> intestazione;
    int rigacorr = 0, npagina = -1;
    ContestoStampa c{p, tab, cambio, intestazione, "Condominio", "15/03/2024", rigacorr, npagina};
    p.document_title = "Elenco";
    for (int r = 1; r <= kRighe; ++r) {
        for (std::size_t i = 1; i <= kColonne; ++i)
            tab[i].coltesto =
                i % 3 == 0 ? std::to_string(r * static_cast<int>(i)) + ",50" : "Testo " + std::to_string(r);
        xstampago(c, rigacorr);
    }
    if (rigacorr > 0) {
        rigacorr = xstampainit(c);
        p.new_page();
    }
    p.end_doc();
}

LavoroStampa registra() {
    RecordingPrinter r;
    LavoroStampa lavoro;
    r.finito = [&](LavoroStampa&& l) { lavoro = std::move(l); };
    stampa_elenco(r);
    return lavoro;
}

void elenco(benchmark::State& stato) {
    QTemporaryDir cartella;
    StampanteQt s;
    s.scelta.cartella_pdf = cartella.path();
    for (auto _ : stato) stampa_elenco(s);
}

// The texts alone, converted and placed beforehand: no lines, no widths, no breaking into pages.
void elenco_qt_nudo(benchmark::State& stato) {
    const LavoroStampa lavoro = registra();
    std::vector<std::vector<std::pair<QPointF, QString>>> testi;
    for (const auto& p : lavoro.pagine) {
        testi.emplace_back();
        for (const auto& o : p.operazioni)
            if (o.tipo == OperazioneStampa::Tipo::testo)
                testi.back().push_back({{o.x1, o.y1 + 150}, QString::fromStdString(a_utf8(o.testo))});
    }
    QTemporaryDir cartella;
    for (auto _ : stato) {
        QPdfWriter pdf(cartella.filePath("nudo.pdf"));
        pdf.setPageSize(QPageSize(QPageSize::A4));
        pdf.setPageMargins(QMarginsF());
        pdf.setResolution(1440);
        QPainter p(&pdf);
        p.setFont(QFont(QStringLiteral("Arial"), 8));
        for (std::size_t n = 0; n < testi.size(); ++n) {
            if (n > 0) pdf.newPage();
            for (const auto& [dove, testo] : testi[n]) p.drawText(dove, testo);
        }
        p.end();
    }
    stato.counters["pagine"] = static_cast<double>(testi.size());
}

BENCHMARK(elenco)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
BENCHMARK(elenco_qt_nudo)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    return misura(argc, argv, {{"elenco", "elenco_qt_nudo", 0.65}});
}
