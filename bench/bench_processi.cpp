// Whole processes, each beside one that does the least: the start of `ambra` (at most 4 times an empty
// program), the worklist of a full building (at most 1.5 times a bare program that makes the same texts, a
// third of a database's), its rows told as events (at most 10 times the opening), its check (at most 6 times
// one pass over its files).
//
// What is measured is the processor time of the process and of what it waits for, not the clock on the wall.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <stdlib.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "bench/rapporti.h"

using namespace ambra;

namespace {

struct Corsa {
    double secondi = 0;
    double memoria_mb = 0;
    bool bene = false;
};

double secondi(const timeval& t) {
    return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_usec) / 1e6;
}

Corsa corri(std::vector<std::string> parole) {
    std::vector<char*> argv;
    for (std::string& p : parole) argv.push_back(p.data());
    argv.push_back(nullptr);
    posix_spawn_file_actions_t azioni;
    posix_spawn_file_actions_init(&azioni);
    posix_spawn_file_actions_addopen(&azioni, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t pid = 0;
    Corsa c;
    if (posix_spawn(&pid, argv[0], &azioni, nullptr, argv.data(), environ) != 0) return c;
    posix_spawn_file_actions_destroy(&azioni);
    int stato = 0;
    rusage uso{};
    ::wait4(pid, &stato, 0, &uso);
    c.secondi = secondi(uso.ru_utime) + secondi(uso.ru_stime);
    c.memoria_mb = static_cast<double>(uso.ru_maxrss) / 1024;
    c.bene = WIFEXITED(stato) && WEXITSTATUS(stato) == 0;
    return c;
}

struct Cantiere {
    std::string bin = std::filesystem::read_symlink("/proc/self/exe").parent_path(), casa;
    Cantiere() {
        char modello[] = "/tmp/ambra-bench-XXXXXX";
        casa = ::mkdtemp(modello);
        corri({bin + "/ambra", "demo", "--today", "15/03/2024", casa + "/piccolo"});
        corri({bin + "/ambra", "demo", "--today", "15/03/2024", "--full", casa + "/pieno"});
        std::ofstream(casa + "/mostra") << "show vexoraf.elenco\n";
        std::ofstream(casa + "/nulla");
        corri(nudo(true));
    }
    ~Cantiere() { std::filesystem::remove_all(casa); }

    std::vector<std::string> batch(const char* drive, const char* script) const {
        return {bin + "/ambra", "batch",      "--drive", casa + "/" + drive,
                "--today",      "15/03/2024", "1",       casa + "/" + script};
    }
    std::vector<std::string> nudo(bool database) const {
        std::vector<std::string> r{bin + "/quadro_nudo", casa + "/pieno/lumdir/lumora"};
        if (database) r.push_back(casa + "/archivio.db");
        return r;
    }
};

const Cantiere& cantiere() {
    static const Cantiere c;
    return c;
}

void misura_processo(benchmark::State& stato, const std::vector<std::string>& parole) {
    double memoria = 0;
    for (auto _ : stato) {
        const Corsa c = corri(parole);
        if (!c.bene) return stato.SkipWithError("the program has failed");
        stato.SetIterationTime(c.secondi);
        memoria = std::max(memoria, c.memoria_mb);
    }
    stato.counters["memoria_MB"] = memoria;
}

void vuota(benchmark::State& s) {
    misura_processo(s, {cantiere().bin + "/vuota"});
}
void avvio(benchmark::State& s) {
    misura_processo(s, cantiere().batch("piccolo", "nulla"));
}
void quadro(benchmark::State& s) {
    misura_processo(s, cantiere().batch("pieno", "nulla"));
}
void quadro_nudo(benchmark::State& s) {
    misura_processo(s, cantiere().nudo(false));
}
void quadro_sqlite(benchmark::State& s) {
    misura_processo(s, cantiere().nudo(true));
}
void quadro_sqlite_pronte(benchmark::State& s) {
    auto parole = cantiere().nudo(true);
    parole.push_back("pronte");
    misura_processo(s, parole);
}
void mostra(benchmark::State& s) {
    misura_processo(s, cantiere().batch("pieno", "mostra"));
}
void passata_nuda(benchmark::State& s) {
    std::vector<std::string> parole{cantiere().bin + "/passata_nuda"};
    for (const auto& f : std::filesystem::directory_iterator(cantiere().casa + "/pieno/lumdir/lumora"))
        if (f.path().stem() == "lum001") parole.push_back(f.path());
    misura_processo(s, parole);
}
void check(benchmark::State& s) {
    misura_processo(s, {cantiere().bin + "/ambra", "check", "--drive", cantiere().casa + "/pieno", "1"});
}

#define PROCESSO(nome) BENCHMARK(nome)->UseManualTime()->Iterations(40)->Unit(benchmark::kMillisecond)
PROCESSO(vuota);
PROCESSO(avvio);
PROCESSO(quadro);
PROCESSO(quadro_nudo);
PROCESSO(quadro_sqlite);
PROCESSO(quadro_sqlite_pronte);
PROCESSO(mostra);
PROCESSO(passata_nuda);
PROCESSO(check);

}  // namespace

int main(int argc, char** argv) {
    return misura(argc, argv,
                  {{"avvio", "vuota", 4},
                   {"quadro", "quadro_nudo", 1.5},
                   {"quadro", "quadro_sqlite", 0.33},
                   {"quadro", "quadro_sqlite_pronte"},
                   {"mostra", "quadro", 10},
                   {"check", "passata_nuda", 6}});
}
