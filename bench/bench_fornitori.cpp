// The supplier archive at full size, each beside its floor: the sort of the index beside std::sort of the
// same records in memory, the list beside one block pass over both files, the duplication to 249 buildings
// beside a plain block read of their cards and one durable record to each of their files. On the real disk,
// under the temporary folder.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <random>

#include "bench/cantiere.h"
#include "bench/rapporti.h"
#include "core/disco.h"
#include "core/testo.h"
#include "ledger/documenti.h"
#include "qt/tutte.h"
#include "suppliers/duplica.h"
#include "suppliers/mrvsel.h"
#include "suppliers/ordinamento.h"
#include "tests/supporto/piattaforma_prova.h"

using namespace ambra;

namespace {

struct Cartella {
    std::filesystem::path dove = std::filesystem::temp_directory_path() / "ambra-bench-fornitori";
    Cartella() {
        std::filesystem::remove_all(dove);
        std::filesystem::create_directories(dove / "lumdir" / "lumora");
    }
    ~Cartella() { std::filesystem::remove_all(dove); }
};

std::string nome_casuale(std::mt19937& caso) {
    std::string s;
    for (int i = 0; i < 12; ++i) s += static_cast<char>('A' + caso() % 26);
    return s;
}

std::vector<RecNome> nomi(int quanti) {
    std::mt19937 caso(7);
    std::vector<RecNome> r(static_cast<std::size_t>(quanti));
    for (int i = 0; i < quanti; ++i) {
        auto& n = r[static_cast<std::size_t>(i)];
        n.nome = nome_casuale(caso);
        n.numero = i + 1;
    }
    return r;
}

std::vector<RecFornitore> fornitori(int quanti) {
    std::vector<RecFornitore> r(static_cast<std::size_t>(quanti));
    for (int i = 0; i < quanti; ++i) {
        auto& f = r[static_cast<std::size_t>(i)];
        f.inte1 = "FORNITORE " + con_zeri(i, 5);
        f.inte2 = "seconda riga";
        f.indir = "Via Roma, 12";
        f.citta = "Milano";
        f.codfis = "C" + con_zeri(i, 10);
    }
    return r;
}

std::string contatori(int quanti) {
    std::vector<RecTotali> t(5);
    t[0].parola[0] = quanti;
    return cantiere::byte_di(t);
}

// ---- sorting 30,000 names ----

constexpr int kNomi = 30000;

void OrdinaStdSort(benchmark::State& stato) {
    const auto tutti = nomi(kNomi);
    for (auto _ : stato) {
        stato.PauseTiming();
        auto copia = tutti;
        stato.ResumeTiming();
        std::sort(copia.begin(), copia.end(),
                  [](const RecNome& a, const RecNome& b) { return std::memcmp(a.nome.b, b.nome.b, 40) < 0; });
        benchmark::DoNotOptimize(copia.data());
    }
}
BENCHMARK(OrdinaStdSort)->Unit(benchmark::kMillisecond);

void OrdinaIndiceSuDisco(benchmark::State& stato) {
    const Cartella c;
    const auto vero = disco_vero(c.dove.string());
    Disco& disco = *vero;
    const std::string dati = cantiere::byte_di(nomi(kNomi));
    Errore err;
    int passate_viste = 0;
    for (auto _ : stato) {
        stato.PauseTiming();
        disco.scrivi_tutto(nome_file("001", "srf"), dati);
        FileDi<RecNome> srf(err, 23);
        srf.apri(disco, nome_file("001", "srf"));
        stato.ResumeTiming();
        ordina_indice(srf, kNomi, [&](int) { ++passate_viste; });
    }
    if (err || passate_viste == 0) stato.SkipWithError("the index was not sorted");
}
BENCHMARK(OrdinaIndiceSuDisco)->Unit(benchmark::kMillisecond);

// ---- the list of 1,000 suppliers ----

constexpr int kFornitori = 1000;

struct Studio {
    Cartella c;
    std::unique_ptr<Disco> vero = disco_vero(c.dove.string());
    Disco& disco = *vero;
    PiattaformaProva piattaforma;
    Studio() {
        const auto tutti = fornitori(kFornitori);
        std::vector<RecNome> indice(tutti.size());
        for (std::size_t i = 0; i < tutti.size(); ++i) {
            const std::size_t quale = i * 7 % tutti.size();
            indice[i].nome = tutti[quale].inte1.grezzo();
            indice[i].numero = static_cast<int>(quale) + 1;
        }
        metti("001", tutti, indice);
    }
    void metti(const std::string& nnn, const std::vector<RecFornitore>& f, const std::vector<RecNome>& i) {
        disco.scrivi_tutto(nome_file(nnn, "for"), cantiere::byte_di(f));
        disco.scrivi_tutto(nome_file(nnn, "srf"), cantiere::byte_di(i));
        disco.scrivi_tutto(nome_file(nnn, "tfr"), contatori(static_cast<int>(f.size())));
    }
};

// Both files in one read each, the same texts put together, nothing kept.
void ListaPavimento(benchmark::State& stato) {
    Studio s;
    Errore err;
    FileDi<RecNome> srf(err, 23);
    FileDi<RecFornitore> schede(err, 22);
    srf.apri(s.disco, nome_file("001", "srf"));
    schede.apri(s.disco, nome_file("001", "for"));
    for (auto _ : stato) {
        std::vector<RecNome> indice(kFornitori);
        std::vector<RecFornitore> tutti(kFornitori);
        srf.leggi_blocco(1, std::as_writable_bytes(std::span(indice)));
        schede.leggi_blocco(1, std::as_writable_bytes(std::span(tutti)));
        std::vector<std::string> testi;
        testi.reserve(5 * kFornitori);
        for (const auto& n : indice) {
            const RecFornitore& f = tutti[static_cast<std::size_t>(n.numero - 1)];
            for (const auto* t : {&f.inte1, &f.inte2, &f.indir, &f.citta}) testi.push_back(t->testo());
            testi.push_back(std::to_string(int(n.numero)));
        }
        benchmark::DoNotOptimize(testi.data());
    }
}
BENCHMARK(ListaPavimento)->Unit(benchmark::kMicrosecond);

void ListaMrvsel(benchmark::State& stato) {
    Studio s;
    Programma prog(s.disco, s.piattaforma, "1");
    registra_tutte(prog.schermi);
    prog.schermi.apri("vexoraf");
    prog.schermi.apri("mrvsel");
    auto& m = prog.schermi.carica<Mrvsel>("mrvsel");
    for (auto _ : stato) m.attivata(Attivazione::aperta);
    if (m.elenco.righe() != kFornitori + 1) stato.SkipWithError("rows are missing");
}
BENCHMARK(ListaMrvsel)->Unit(benchmark::kMicrosecond);

// ---- duplication to 249 buildings of 1,000 suppliers each ----

struct Stabili : Studio {
    Stabili() {
        const auto tutti = fornitori(kFornitori);
        const std::vector<RecNome> indice(tutti.size());
        for (int b = 2; b <= 250; ++b) metti(con_zeri(b, 3), tutti, indice);
    }
};

void DuplicaPavimento(benchmark::State& stato) {
    Stabili s;
    Errore err;
    std::vector<RecFornitore> tutti(kFornitori);
    for (auto _ : stato)
        for (int b = 2; b <= 250; ++b) {
            const std::string nnn = con_zeri(b, 3);
            FileDi<RecTotali> tfr(err, 21);
            FileDi<RecFornitore> schede(err, 22);
            FileDi<RecNome> srf(err, 23);
            tfr.apri(s.disco, nome_file(nnn, "tfr"));
            schede.apri(s.disco, nome_file(nnn, "for"));
            srf.apri(s.disco, nome_file(nnn, "srf"));
            schede.leggi_blocco(1, std::as_writable_bytes(std::span(tutti)));
            RecTotali totali{};
            RecNome nome{};
            if (!leggi(tfr, 1, totali) || !leggi(srf, 1, nome))
                return stato.SkipWithError("no building to read");
            scrivi(schede, 1, tutti[0]);
            scrivi(srf, 1, nome);
            scrivi(tfr, 1, totali);
            schede.consolida();
            srf.consolida();
            tfr.consolida();
        }
}
BENCHMARK(DuplicaPavimento)->Unit(benchmark::kMillisecond);

// The first run of each iteration adds the supplier everywhere: a code of its own each time.
void Duplica249(benchmark::State& stato) {
    Stabili s;
    Programma prog(s.disco, s.piattaforma, "1");
    registra_tutte(prog.schermi);
    prog.schermi.apri("vexoraf");
    RecFornitore nuovo = fornitori(1)[0];
    int giro = 0, stabili = 0;
    for (auto _ : stato) {
        nuovo.codfis = "NUOVO" + std::to_string(++giro);
        duplica(prog, nuovo, [&](const std::string&) { ++stabili; });
    }
    if (stabili != 249 * giro) stato.SkipWithError("buildings were left out");
}
BENCHMARK(Duplica249)->Unit(benchmark::kMillisecond)->Iterations(5);

}  // namespace

int main(int argc, char** argv) {
    return ambra::misura(argc, argv,
                         {{"OrdinaIndiceSuDisco", "OrdinaStdSort", 4},
                          {"ListaMrvsel", "ListaPavimento", 3},
                          {"Duplica249", "DuplicaPavimento", 3}});
}
