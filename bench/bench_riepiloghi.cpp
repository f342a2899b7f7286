// Both purchase summaries from 30,000 documents and 1,000 suppliers on the real disc, from "Aggiorna lista"
// to the list in full: at most 1.5 times the floor.
//
// The floor reads each file once in blocks, takes the documents of the period, sums, and writes the same
// texts into a flat buffer.
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <filesystem>

#include "bench/cantiere.h"
#include "bench/rapporti.h"
#include "core/date.h"
#include "core/disco.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "qt/tutte.h"
#include "records/fattura.h"
#include "reports/lumstcx.h"
#include "reports/lumstcy.h"
#include "tests/supporto/piattaforma_prova.h"

using namespace ambra;

namespace {

constexpr int kFornitori = 1000, kDocumenti = 30000;

struct Cantiere {
    std::string casa;
    std::unique_ptr<Disco> disco;
    PiattaformaProva piattaforma;
    std::unique_ptr<Programma> prog;

    Cantiere() {
        char modello[] = "/tmp/ambra-bench-XXXXXX";
        casa = ::mkdtemp(modello);
        std::filesystem::create_directories(casa + "/lumdir/lumora");
        disco = disco_vero(casa);
        cantiere::acquisti(*disco, kFornitori, documenti());
        prog = std::make_unique<Programma>(*disco, piattaforma, "1");
        registra_tutte(prog->schermi);
        prog->apriarchivi();
        prog->caricatabelle();
    }
    ~Cantiere() { std::filesystem::remove_all(casa); }

    static std::vector<RecFattura> documenti() {
        std::vector<RecFattura> tutti(kDocumenti);
        for (int i = 0; i < kDocumenti; ++i) {
            RecFattura& f = tutti[static_cast<std::size_t>(i)];
            f.numfor = i * 7919 % kFornitori + 1;
            f.numdoc = std::to_string(i) + "/A";
            f.datareg = f.datadoc = "2024" + con_zeri(i % 12 + 1, 2) + con_zeri(i % 28 + 1, 2);
            f.impon[0] = 100 + i % 997 + 0.37;
            f.ivai[0] = 22 + i % 219 + 0.08;
            f.esent[2] = i % 5;
        }
        return tutti;
    }
};

// Reads a whole file a block at a time and hands each record out.
template <class R, class F>
void blocchi(FileRecord& file, long quanti, F f) {
    std::vector<R> blocco(256);
    for (long n = 1; n <= quanti; n += static_cast<long>(blocco.size())) {
        file.leggi_blocco(n, std::as_writable_bytes(std::span(blocco)));
        for (long i = 0; i < static_cast<long>(blocco.size()) && n + i <= quanti; ++i)
            f(blocco[static_cast<std::size_t>(i)]);
    }
}

template <class F>
void del_periodo(Cantiere& c, F f) {
    blocchi<RecFattura>(c.prog->arc.ftr, kDocumenti, [&](const RecFattura& r) {
        const std::string_view data = r.datareg.grezzo();
        if (r.cancellata == 0 && data >= "20240101" && data <= "20241231") f(r);
    });
}

// ---- the analytic summary ----

void analitico(benchmark::State& stato) {
    Cantiere c;
    auto& s = c.prog->schermi.carica<Lumstcy>("lumstcy");
    for (auto _ : stato) s.aggiornalista();
    stato.counters["righe"] = s.nrighe;
}

void analitico_pavimento(benchmark::State& stato) {
    Cantiere c;
    const std::string filetto(80, '-');
    std::size_t byte = 0;
    for (auto _ : stato) {
        std::string testi;
        std::vector<std::array<double, 3>> somme(kFornitori + 1);
        const auto importi3 = [&](const std::array<double, 3>& x) {
            for (const double v : x) testi += c.prog->fmtimporto(v);
        };
        del_periodo(c, [&](const RecFattura& f) {
            const double impon = somma(f.impon), ivai = somma(f.ivai);
            const std::array<double, 3> x = {impon + ivai + somma(f.esent), impon, ivai};
            testi += mostra_aaaammgg(f.datadoc.testo());
            testi += f.numdoc.testo();
            importi3(x);
            for (std::size_t g = 0; g < 3; ++g) somme[static_cast<std::size_t>(int(f.numfor))][g] += x[g];
        });
        int n = 0;
        blocchi<RecNome>(c.prog->arc.srf, kFornitori, [](const RecNome&) {});
        blocchi<RecFornitore>(c.prog->arc.fornitori, kFornitori, [&](const RecFornitore& f) {
            for (const auto& r : righe_identita(f)) testi += r;
            const std::string numero = testo_con_segno(++n);
            for (int i = 0; i < 4; ++i) testi += filetto;
            testi += "Totali";
            importi3(somme[static_cast<std::size_t>(n)]);
            // once more for the closing summary
            testi += f.inte1.rifilato() + " " + f.inte2.rifilato();
            importi3(somme[static_cast<std::size_t>(n)]);
            testi += numero + numero;
        });
        byte = testi.size();
        benchmark::DoNotOptimize(testi.data());
    }
    stato.counters["byte"] = static_cast<double>(byte);
}

// ---- the synthetic summary ----

void sintetico(benchmark::State& stato) {
    Cantiere c;
    auto& s = c.prog->schermi.carica<Lumstcx>("lumstcx");
    for (auto _ : stato) s.aggiornalista();
    stato.counters["righe"] = s.nrighe;
}

void sintetico_pavimento(benchmark::State& stato) {
    Cantiere c;
    for (auto _ : stato) {
        std::string testi;
        std::vector<std::array<double, 3>> somme(kFornitori + 1);
        del_periodo(c, [&](const RecFattura& f) {
            const double impon = somma(f.impon), ivai = somma(f.ivai);
            auto& x = somme[static_cast<std::size_t>(int(f.numfor))];
            x[0] += impon + ivai + somma(f.esent);
            x[1] += impon;
            x[2] += ivai;
        });
        int n = 0;
        blocchi<RecNome>(c.prog->arc.srf, kFornitori, [](const RecNome&) {});
        blocchi<RecFornitore>(c.prog->arc.fornitori, kFornitori, [&](const RecFornitore& f) {
            testi += f.inte1.testo();
            for (const double v : somme[static_cast<std::size_t>(++n)]) testi += c.prog->fmtimporto(v);
            testi += testo_con_segno(n);
        });
        benchmark::DoNotOptimize(testi.data());
    }
}

BENCHMARK(analitico)->Unit(benchmark::kMillisecond);
BENCHMARK(analitico_pavimento)->Unit(benchmark::kMillisecond);
BENCHMARK(sintetico)->Unit(benchmark::kMillisecond);
BENCHMARK(sintetico_pavimento)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    return ambra::misura(
        argc, argv, {{"analitico", "analitico_pavimento", 1.5}, {"sintetico", "sintetico_pavimento", 1.5}});
}
