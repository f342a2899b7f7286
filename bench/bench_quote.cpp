// The shares of 300 condomini, files included, beside their floor: the same records read in blocks and each
// changed one written by itself, nothing worked out. On the real disk, under the temporary folder.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "bench/cantiere.h"
#include "bench/rapporti.h"
#include "core/disco.h"
#include "ledger/quote.h"
#include "screen/programma.h"
#include "tests/supporto/piattaforma_prova.h"

using namespace ambra;

namespace {

constexpr int kCondomini = 300;

struct Studio {
    std::filesystem::path dove = std::filesystem::temp_directory_path() / "ambra-bench-quote";
    std::unique_ptr<Disco> vero = disco_vero(cartella());
    Disco& disco = *vero;
    PiattaformaProva piattaforma;
    Programma prog{disco, piattaforma, "1"};
    TabellaVoci voci;

    Studio() {
        cantiere::stabile(disco, kCondomini);
        prog.apriarchivi();
        prog.caricatabelle();
        carica_voci(disco, prog.err, "001", voci);
        // every share changes at every run
        for (int n = 1; n <= 40; ++n) {
            RecConto c{};
            c.csaldo = n * 1234.56;
            scrivi(prog.arc.pia, idconto(n, 1), c);
        }
    }
    ~Studio() { std::filesystem::remove_all(dove); }
    std::string cartella() const {
        std::filesystem::remove_all(dove);
        std::filesystem::create_directories(dove / "lumdir" / "lumora");
        return dove.string();
    }
};

void quote(benchmark::State& stato) {
    Studio s;
    BufferLedger b;
    for (auto _ : stato) calcquote(s.prog.arc, s.prog.imp.cambio, s.voci, b, {});
    stato.SetItemsProcessed(stato.iterations() * kCondomini);
}
BENCHMARK(quote)->Unit(benchmark::kMicrosecond);

void pavimento(benchmark::State& stato) {
    Studio s;
    for (auto _ : stato) {
        Passata<RecConto> piano(s.prog.arc.pia);
        Passata<RecCondomino> condomini(s.prog.arc.cnd);
        Passata<RecCondomino2> seconde(s.prog.arc.cn2);
        double saldi = 0;
        for (int n = 1; n <= kVociSpesa * kContiPerVoce; ++n) saldi += piano.vista(n)->csaldo;
        for (int c = 1; c <= kCondomini; ++c) {
            RecCondomino r = *condomini.vista(c);
            r.dquota = saldi + int(seconde.vista(c)->dgiorni);
            scrivi(s.prog.arc.cnd, c, r);
        }
    }
    stato.SetItemsProcessed(stato.iterations() * kCondomini);
}
BENCHMARK(pavimento)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
    return ambra::misura(argc, argv, {{"quote", "pavimento", 1.5}});
}
