// A list of 30,000 rows and 10 columns, as the worklist's, to a spreadsheet: at most 2 times the library
// alone writing the same cells, made ready beforehand. And to CSV, told for itself.
#include <benchmark/benchmark.h>
#include <xlsxwriter.h>

#include <QTemporaryDir>

#include "bench/rapporti.h"
#include "core/testo.h"
#include "parti/parti.h"
#include "screen/foglio.h"

using namespace ambra;

namespace {

constexpr int kRighe = 30000;

void riempi(Griglia& g) {
    using enum Allineamento;
    g.colonne({{"Registr.", 800, destra},
               {"Data", 1000},
               {"Fattura", 1200},
               {"Data", 1000},
               {"Fornitore", kResto},
               {"Importo", 1200, destra},
               {"Scoperto", 1200, destra},
               {"Modifica", 800, centro},
               {"Elimina", 800, centro},
               {"Saldo", 800, centro}});
    for (int i = 1; i <= kRighe; ++i) {
        const std::string data = unisci(con_zeri(i % 28 + 1, 2), "/", con_zeri(i % 12 + 1, 2), "/2026");
        const std::string importo = unisci(std::to_string(1 + i % 97), ".", con_zeri(i % 1000, 3), ",50");
        g.aggiungi({std::to_string(i), data, unisci(std::to_string(i), "/A"), data,
                    unisci("FORNITORE ", con_zeri(i * 7919 % 1000, 4), " S.R.L."), importo,
                    i % 3 ? "" : importo, "clic qui", "clic qui", i % 2 ? "clic qui" : "azzera"});
    }
}

void foglio_xlsx(benchmark::State& stato) {
    Griglia g;
    riempi(g);
    const QTemporaryDir dove;
    const std::string file = dove.filePath("lista.xlsx").toStdString();
    for (auto _ : stato)
        if (!scrivi_xlsx(foglio_di(g), file).empty()) stato.SkipWithError("not written");
}

void foglio_csv(benchmark::State& stato) {
    Griglia g;
    riempi(g);
    for (auto _ : stato) {
        const std::string csv = csv_di(foglio_di(g));
        benchmark::DoNotOptimize(csv.data());
    }
}

void libreria_nuda(benchmark::State& stato) {
    Griglia g;
    riempi(g);
    const Foglio f = foglio_di(g);
    std::vector<std::string> testi;
    std::vector<lxw_datetime> date;
    for (const CellaFoglio& c : f.celle) {
        testi.push_back(a_utf8(c.testo));
        date.push_back({c.data.anno, c.data.mese, c.data.giorno, 0, 0, 0});
    }
    const QTemporaryDir dove;
    QByteArray cartella = dove.path().toUtf8();
    const QByteArray file = dove.filePath("nuda.xlsx").toUtf8();
    for (auto _ : stato) {
        lxw_workbook_options o{};
        o.tmpdir = cartella.data();
        lxw_workbook* libro = workbook_new_opt(file.constData(), &o);
        lxw_worksheet* foglio = workbook_add_worksheet(libro, nullptr);
        lxw_format *giorno = workbook_add_format(libro), *importo = workbook_add_format(libro);
        format_set_num_format(giorno, "dd/mm/yyyy");
        format_set_num_format(importo, "#,##0.00");
        for (std::size_t i = 0; i < f.celle.size(); ++i) {
            const auto riga = static_cast<lxw_row_t>(i / f.colonne.size());
            const auto colonna = static_cast<lxw_col_t>(i % f.colonne.size());
            const CellaFoglio& c = f.celle[i];
            if (c.tipo == CellaFoglio::Tipo::importo)
                worksheet_write_number(foglio, riga, colonna, c.valore, importo);
            else if (c.tipo == CellaFoglio::Tipo::data)
                worksheet_write_datetime(foglio, riga, colonna, &date[i], giorno);
            else if (!c.testo.empty())
                worksheet_write_string(foglio, riga, colonna, testi[i].c_str(), nullptr);
        }
        if (workbook_close(libro) != LXW_NO_ERROR) stato.SkipWithError("not written");
    }
}

BENCHMARK(foglio_xlsx)->Unit(benchmark::kMillisecond);
BENCHMARK(libreria_nuda)->Unit(benchmark::kMillisecond);
BENCHMARK(foglio_csv)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    return ambra::misura(argc, argv,
                         {{"foglio_xlsx", "libreria_nuda", 2}, {"foglio_csv", "libreria_nuda", 0}});
}
