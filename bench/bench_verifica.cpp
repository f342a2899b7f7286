// The check of a full-size building on the real disc: at most 10 times a plain read of its files.
#include <benchmark/benchmark.h>
#include <stdlib.h>
#include <sys/resource.h>

#include <filesystem>

#include "ambra/demo.h"
#include "bench/rapporti.h"
#include "core/disco.h"
#include "core/impostazioni.h"
#include "maintenance/verifica.h"

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

void lettura(benchmark::State& stato) {
    Cantiere c;
    std::vector<std::string> nomi;
    c.disco->elenca(kCartella, nomi);
    std::string buf(1 << 20, '\0');
    std::size_t byte = 0;
    for (auto _ : stato)
        for (const auto& n : nomi) {
            if (!n.starts_with("lum001")) continue;
            std::unique_ptr<FileAperto> f;
            c.disco->apri(kCartella + n, Apertura::lettura, f);
            std::size_t letti = 0;
            for (std::uint64_t posto = 0;; posto += letti) {
                f->leggi(posto, std::as_writable_bytes(std::span(buf)), letti);
                if (letti == 0) break;
                byte += letti;
            }
        }
    stato.SetBytesProcessed(static_cast<std::int64_t>(byte));
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

BENCHMARK(lettura)->Unit(benchmark::kMillisecond);
BENCHMARK(verifica)->Unit(benchmark::kMillisecond);
int main(int argc, char** argv) {
    return ambra::misura(argc, argv, {{"verifica", "lettura", 10}});
}
