// The terms of withheld tax of 30,000 documents, from "Aggiorna lista" to the list in full: at most 3 times
// one pass over the file. Those of an archive where nothing was ever paid over are told for themselves.
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <filesystem>

#include "bench/cantiere.h"
#include "bench/rapporti.h"
#include "core/disco.h"
#include "core/testo.h"
#include "ledger/documenti.h"
#include "ledger/mrvcal.h"
#include "qt/tutte.h"
#include "reports/mrvanz.h"
#include "tests/supporto/piattaforma_prova.h"

using namespace ambra;

namespace {

constexpr int kFornitori = 1000, kDocumenti = 30000;

// Ten years of documents: half withheld 4 %, a quarter 20 %, a quarter nothing; one in eight paid in two
// parts, one in sixteen without a date; all but the last year's paid over, as a studio leaves them.
std::vector<RecFattura> documenti() {
    std::vector<RecFattura> tutti(kDocumenti);
    for (int i = 0; i < kDocumenti; ++i) {
        RecFattura& f = tutti[static_cast<std::size_t>(i)];
        const std::string mese = con_zeri(i % 12 + 1, 2), giorno = con_zeri(i % 28 + 1, 2);
        const std::string anno = std::to_string(2017 + i * 10 / kDocumenti);
        f.numfor = i * 7919 % kFornitori + 1;
        f.numdoc = std::to_string(i) + "/A";
        f.datareg = f.datadoc = anno + mese + giorno;
        f.impon[0] = 100 + i % 997;
        f.ivai[0] = 22;
        f.rac[0] = f.impon[0] * (i % 4 == 3 ? 0 : i % 4 == 2 ? 0.2 : 0.04);
        const double netto = f.impon[0] + f.ivai[0] - f.rac[0];
        const bool in_due = i % 8 == 0;
        f.sca[0] = f.ver[0] = in_due ? netto / 2 : netto;
        f.sca[1] = f.ver[1] = in_due ? netto / 2 : 0;
        f.dsca[0] = f.dsca[1] = f.dver[0] = f.dver[1] = giorno + mese + anno;
        if (i % 16 == 5) f.dver[0] = "";
        if (i % 5 == 0) f.ver[0] = 0;
        f.dverrit = anno == "2026" ? "" : "16" + mese + anno;
    }
    return tutti;
}

struct Cantiere {
    std::string casa;
    std::unique_ptr<Disco> disco;
    PiattaformaProva piattaforma;
    std::unique_ptr<Programma> prog;

    /// `versate` false: nothing was ever paid over, and every document is in a term.
    explicit Cantiere(bool versate = true) {
        char modello[] = "/tmp/ambra-bench-XXXXXX";
        casa = ::mkdtemp(modello);
        std::filesystem::create_directories(casa + "/lumdir/lumora");
        disco = disco_vero(casa);
        std::vector<RecFattura> tutti = documenti();
        if (!versate)
            for (RecFattura& f : tutti) f.dverrit = "";
        cantiere::acquisti(*disco, kFornitori, tutti);
        prog = std::make_unique<Programma>(*disco, piattaforma, "1");
        registra_tutte(prog->schermi);
        prog->schermi.apri("vexoraf");
    }
    ~Cantiere() { std::filesystem::remove_all(casa); }
};

template <class S>
void misura_schermo(benchmark::State& stato, const char* nome, bool versate) {
    Cantiere c(versate);
    c.prog->schermi.apri(nome);
    auto& s = c.prog->schermi.carica<S>(nome);
    for (auto _ : stato) s.comandi.command3d2.premuto();
    stato.counters["righe"] = s.elenco.righe();
}

void scadenze(benchmark::State& s) {
    misura_schermo<Mrvcal>(s, "mrvcal", true);
}
void scadenze_mai_versate(benchmark::State& s) {
    misura_schermo<Mrvcal>(s, "mrvcal", false);
}
void anzianita(benchmark::State& s) {
    misura_schermo<Mrvanz>(s, "mrvanz", true);
}

// Every document handed out once with its supplier, as the lists read them, and its amounts added up.
void una_passata(benchmark::State& stato) {
    Cantiere c;
    for (auto _ : stato) {
        double totale = 0;
        per_documento(c.prog->arc, kDocumenti,
                      [&](int, const RecFattura& f, const RecFornitore&) { totale += importi(f).totale(); });
        benchmark::DoNotOptimize(totale);
    }
}

BENCHMARK(scadenze)->Unit(benchmark::kMillisecond);
BENCHMARK(scadenze_mai_versate)->Unit(benchmark::kMillisecond);
BENCHMARK(anzianita)->Unit(benchmark::kMillisecond);
BENCHMARK(una_passata)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    return ambra::misura(argc, argv,
                         {{"scadenze", "una_passata", 3},
                          {"scadenze_mai_versate", "una_passata"},
                          {"anzianita", "una_passata", 3}});
}
