// The check of a full-size building on the real disc, without the start of the program: at most 10 times one
// pass over its files.
#include <benchmark/benchmark.h>
#include <stdlib.h>
#include <sys/resource.h>

#include <filesystem>

#include "ambra/demo.h"
#include "archivio/archivio.h"
#include "bench/rapporti.h"
#include "core/disco.h"
#include "core/filerecord.h"
#include "core/impostazioni.h"
#include "maintenance/verifica.h"
#include "records/condomino.h"
#include "records/conto.h"
#include "records/fattura.h"
#include "records/fornitore.h"
#include "records/movimento.h"
#include "records/nome.h"
#include "records/totali.h"

using namespace ambra;

namespace {

struct Cantiere {
    std::string casa;
    std::unique_ptr<Disco> disco;
    Cantiere() {
        char modello[] = "/tmp/ambra-bench-XXXXXX";
        casa = ::mkdtemp(modello);
        disco = disco_vero(casa);
        demo::crea(*disco, {{15, 3, 2024}, true});
    }
    ~Cantiere() { std::filesystem::remove_all(casa); }
};

template <class R>
void passa(Disco& disco, const char* estensione, std::size_t& somma) {
    Errore err;
    FileDi<R> f(err, 1);
    if (!f.apri(disco, nome_file("001", estensione), Apertura::lettura)) std::abort();
    Passata<R> passata(f);
    for (long n = 1, quanti = f.quanti(); n <= quanti; ++n)
        for (const std::byte b : std::as_bytes(std::span(passata.vista(n), 1)))
            somma += static_cast<std::size_t>(b);
}

// What any check has to do: each file once, record by record, every byte looked at.
void passata(benchmark::State& stato) {
    Cantiere c;
    for (auto _ : stato) {
        std::size_t somma = 0;
        passa<RecConto>(*c.disco, "pia", somma);
        passa<RecMovimento>(*c.disco, "mov", somma);
        passa<RecTotaliLedger>(*c.disco, "tot", somma);
        passa<RecCondomino>(*c.disco, "cnd", somma);
        passa<RecCondomino2>(*c.disco, "cn2", somma);
        passa<RecNome>(*c.disco, "cns", somma);
        passa<RecTotali>(*c.disco, "tfr", somma);
        passa<RecFornitore>(*c.disco, "for", somma);
        passa<RecNome>(*c.disco, "srf", somma);
        passa<RecFattura>(*c.disco, "ftr", somma);
        benchmark::DoNotOptimize(somma);
    }
}

void verifica(benchmark::State& stato) {
    Cantiere c;
    for (auto _ : stato) {
        Verifica v(*c.disco, [](const Rilievo&) {});
        v.stabile("001");
        if (v.stato() != 0) stato.SkipWithError("findings on the demo archive");
    }
    rusage uso{};
    ::getrusage(RUSAGE_SELF, &uso);
    stato.counters["memoria_MB"] = static_cast<double>(uso.ru_maxrss) / 1024;
}

}  // namespace

BENCHMARK(passata)->Unit(benchmark::kMillisecond);
BENCHMARK(verifica)->Unit(benchmark::kMillisecond);
int main(int argc, char** argv) {
    return ambra::misura(argc, argv, {{"verifica", "passata", 10}});
}
