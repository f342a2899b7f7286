// A document registered and posted, end to end through the batch on the real disc: picker, invoice screen,
// charge, posting screen, split among the condomini. At least 200 a second on a small machine.
//
// Beside it the floor: the records that such a document must read and write, and nothing else.
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <filesystem>
#include <sstream>

#include "ambra/batch.h"
#include "bench/cantiere.h"
#include "bench/rapporti.h"
#include "core/disco.h"
#include "qt/tutte.h"
#include "records/fattura.h"
#include "records/movimento.h"

using namespace ambra;

namespace {

constexpr int kDocumenti = 200;

struct Drive {
    std::string casa;
    explicit Drive(int condomini) {
        char modello[] = "/tmp/ambra-bench-XXXXXX";
        casa = ::mkdtemp(modello);
        std::filesystem::create_directories(casa + "/lumdir/lumora");
        const auto vero = disco_vero(casa);
        Disco& disco = *vero;
        cantiere::stabile(disco, condomini);
    }
    ~Drive() { std::filesystem::remove_all(casa); }
};

std::string script(bool addebita) {
    std::string s;
    for (int i = 0; i < kDocumenti; ++i) {
        s +=
            "click vexoraf.command3d2(2)\nclick lumftem.b_ins\ntype lumftea.Text2(0) " + std::to_string(i) +
            "\ntype lumftea.text1(0) 03/05/2024\ntype lumftea.impon(0) 1234.56\ntype lumftea.esent(1) 12.5\n";
        s += addebita ? "answer yes\nclick lumftea.command3d1(0)\nclick lumincx.b_fine(1)\n"
                      : "answer no\nclick lumftea.command3d1(0)\n";
    }
    return s;
}

void corri(benchmark::State& stato, bool addebita) {
    const std::string righe = script(addebita);
    for (auto _ : stato) {
        stato.PauseTiming();
        auto drive = std::make_unique<Drive>(static_cast<int>(stato.range(0)));
        stato.ResumeTiming();
        std::istringstream in(righe);
        std::ostringstream out;
        const auto vero = disco_vero(drive->casa);
        Disco& disco = *vero;
        PiattaformaBatch piattaforma(in, out);
        Programma prog(disco, piattaforma, "1");
        registra_tutte(prog.schermi);
        prog.schermi.apri("vexoraf");
        piattaforma.esegui(prog);
        stato.PauseTiming();
        if (std::filesystem::file_size(drive->casa + "/lumdir/lumora/lum001.ftr") != kDocumenti * 522)
            stato.SkipWithError("not every document was registered");
        drive.reset();
        stato.ResumeTiming();
    }
    stato.SetItemsProcessed(stato.iterations() * kDocumenti);
}

void RegistrataEAddebitata(benchmark::State& stato) {
    corri(stato, true);
}
BENCHMARK(RegistrataEAddebitata)
    ->Arg(0)
    ->Arg(30)
    ->Arg(100)
    ->Arg(300)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

void RegistrataSoltanto(benchmark::State& stato) {
    corri(stato, false);
}
BENCHMARK(RegistrataSoltanto)->Arg(100)->Unit(benchmark::kMillisecond)->UseRealTime();

// The same records read in blocks where blocks do, each changed one written by itself.
void Pavimento(benchmark::State& stato) {
    const int condomini = static_cast<int>(stato.range(0));
    Drive drive(condomini);
    const auto vero = disco_vero(drive.casa);
    Disco& disco = *vero;
    Errore err;
    Archivio arc(err);
    RecStabile s1;
    RecStabile2 s2;
    apriarchivi(disco, arc, "001", s1, s2);
    std::vector<RecConto> piano(kConti);
    std::vector<RecCondomino> cnd(static_cast<std::size_t>(condomini));
    std::vector<RecCondomino2> cn2(cnd.size());
    RecFornitore fornitore;
    RecTotali contatori;
    RecTotaliLedger ledger;
    RecFattura fattura{};
    RecMovimento movimento{};
    long n = 0;
    for (auto _ : stato) {
        ++n;
        leggi(arc.fornitori, 1, fornitore);
        leggi(arc.tot, 1, ledger);
        scrivi(arc.mov, n, movimento);
        scrivi(arc.tot, 1, ledger);
        arc.pia.leggi_blocco(1, std::as_writable_bytes(std::span(piano)));
        scrivi(arc.pia, 1, piano[0]);
        scrivi(arc.pia, kBaseContropartite + 1, piano[kBaseContropartite]);
        if (condomini > 0) {
            arc.cnd.leggi_blocco(1, std::as_writable_bytes(std::span(cnd)));
            arc.cn2.leggi_blocco(1, std::as_writable_bytes(std::span(cn2)));
        }
        for (std::size_t c = 0; c < cnd.size(); ++c) scrivi(arc.cnd, static_cast<long>(c) + 1, cnd[c]);
        leggi(arc.tfr, 2, contatori);
        scrivi(arc.ftr, n, fattura);
        scrivi(arc.tfr, 2, contatori);
    }
    stato.SetItemsProcessed(stato.iterations());
}
BENCHMARK(Pavimento)->Arg(0)->Arg(100)->Arg(300)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

int main(int argc, char** argv) {
    return ambra::misura(argc, argv,
                         {{"RegistrataEAddebitata/0", "Pavimento/0"},
                          {"RegistrataEAddebitata/100", "Pavimento/100"},
                          {"RegistrataEAddebitata/300", "Pavimento/300"}});
}
