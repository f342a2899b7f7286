// The reorganisation of 10,000 documents on the real disc: at most 5 times a plain copy of the file and a
// std::stable_sort of the keys. The list that is built afterwards is measured apart.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>

#include "archivio/riordino.h"
#include "bench/cantiere.h"
#include "bench/rapporti.h"
#include "core/disco.h"
#include "core/testo.h"
#include "qt/tutte.h"
#include "records/fattura.h"
#include "tests/supporto/piattaforma_prova.h"
#include "worklist/vexoraf.h"

using namespace ambra;

namespace {

constexpr int kDocumenti = 10000;

struct Cantiere {
    std::string casa;
    std::unique_ptr<Disco> disco;
    PiattaformaProva piattaforma;
    std::unique_ptr<Programma> prog;
    std::string ftr, tfr;

    Cantiere() {
        char modello[] = "/tmp/ambra-bench-XXXXXX";
        casa = ::mkdtemp(modello);
        std::filesystem::create_directories(casa + "/lumdir/lumora");
        disco = disco_vero(casa);
        std::vector<RecFattura> documenti(kDocumenti);
        for (int i = 0; i < kDocumenti; ++i) {
            RecFattura& f = documenti[static_cast<std::size_t>(i)];
            const int giorno = i * 7919 % 3000;
            f.datareg = f.datadoc = std::to_string(2015 + giorno / 336) + con_zeri(giorno / 28 % 12 + 1, 2) +
                                    con_zeri(giorno % 28 + 1, 2);
            f.impon[0] = f.sca[0] = 100 + i;
            f.cancellata = i % 20 == 0;
        }
        std::vector<RecTotali> contatori(5);
        contatori[1].parola[0] = kDocumenti;
        ftr = cantiere::byte_di(documenti);
        tfr = cantiere::byte_di(contatori);
        rimetti();
        prog = std::make_unique<Programma>(*disco, piattaforma, "1");
        registra_tutte(prog->schermi);
        prog->schermi.apri("vexoraf");
    }
    ~Cantiere() { std::filesystem::remove_all(casa); }

    // In place: the files stay open.
    void rimetti() {
        for (const auto& [estensione, byte] : {std::pair("ftr", &ftr), std::pair("tfr", &tfr)}) {
            std::unique_ptr<FileAperto> f;
            if (disco->apri(nome_file("001", estensione), Apertura::scambio, f) != 0 ||
                f->scrivi(0, std::as_bytes(std::span(*byte))) != 0)
                std::abort();
        }
    }
    Vexoraf& schermo() { return static_cast<Vexoraf&>(*prog->schermi.caricato("vexoraf")); }
};

void riordino(benchmark::State& stato) {
    Cantiere c;
    for (auto _ : stato) {
        stato.PauseTiming();
        c.rimetti();
        c.piattaforma.risposte = {Risposta::si};
        stato.ResumeTiming();
        c.schermo().riordino();
        if (c.piattaforma.messaggi.size() != 1) stato.SkipWithError("the reorganisation failed");
        c.piattaforma.messaggi.clear();
    }
}

void lista(benchmark::State& stato) {
    Cantiere c;
    for (auto _ : stato) c.schermo().aggiornalista();
}

// A plain copy with a buffer of a mebibyte, and the sort of the keys of the records in memory.
void copia_e_ordina(benchmark::State& stato) {
    Cantiere c;
    const std::string da = c.disco->reale(nome_file("001", "ftr"));
    const std::string a = c.disco->reale(nome_file("001", "$$$"));
    std::vector<VoceRiordino> voci;
    std::string buf(1 << 20, '\0');
    for (auto _ : stato) {
        const int in = ::open(da.c_str(), O_RDONLY),
                  out = ::open(a.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
        for (ssize_t n; (n = ::read(in, buf.data(), buf.size())) > 0;)
            if (::write(out, buf.data(), static_cast<std::size_t>(n)) != n) stato.SkipWithError("no copy");
        ::close(in);
        ::close(out);
        voci.clear();
        for (int i = 0; i < kDocumenti; ++i)
            voci.push_back({i + 1, chiave_riordino(std::string_view(c.ftr).substr(
                                       static_cast<std::size_t>(i) * sizeof(RecFattura) + 14, 8))});
        std::stable_sort(voci.begin(), voci.end(),
                         [](const auto& x, const auto& y) { return x.chiave < y.chiave; });
        benchmark::DoNotOptimize(voci.data());
    }
}

}  // namespace

BENCHMARK(copia_e_ordina)->Unit(benchmark::kMillisecond);
BENCHMARK(riordino)->Unit(benchmark::kMillisecond);
BENCHMARK(lista)->Unit(benchmark::kMillisecond);
int main(int argc, char** argv) {
    return ambra::misura(argc, argv, {{"riordino", "copia_e_ordina", 5}});
}
