// What durability and the locks cost: documents registered and charged through the batch on the real disc,
// each durable at its end, beside the same records written bare into the same files with one sync of each,
// and beside the same program without locks.
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <filesystem>
#include <sstream>

#include "ambra/batch.h"
#include "bench/cantiere.h"
#include "bench/rapporti.h"
#include "core/disco.h"
#include "qt/tutte.h"
#include "records/movimento.h"

using namespace ambra;

namespace {

constexpr int kDocumenti = 100, kCondomini = 30;

struct Drive {
    std::string casa;
    Drive() {
        char modello[] = "/tmp/ambra-bench-XXXXXX";
        casa = ::mkdtemp(modello);
        std::filesystem::create_directories(casa + "/lumdir/lumora");
        cantiere::stabile(*disco_vero(casa), kCondomini);
    }
    ~Drive() { std::filesystem::remove_all(casa); }
};

// Hands everything on, and says of what it was told not to do that it was done.
class Spoglio : public Disco {
  public:
    Spoglio(Disco& dietro, bool blocchi, bool durevole)
        : d_(dietro), blocchi_(blocchi), durevole_(durevole) {}
    int apri(std::string_view p, Apertura come, std::unique_ptr<FileAperto>& f) override {
        std::unique_ptr<FileAperto> vero;
        if (const int e = d_.apri(p, come, vero)) return e;
        f = std::make_unique<File>(std::move(vero), durevole_);
        return 0;
    }
    int leggi_tutto(std::string_view p, std::string& c) override { return d_.leggi_tutto(p, c); }
    int scrivi_tutto(std::string_view p, std::string_view c) override { return d_.scrivi_tutto(p, c); }
    int scrivi_nuovo(std::string_view p, std::string_view c) override { return d_.scrivi_nuovo(p, c); }
    int cosa_c_e(std::string_view p, Cosa& che) override { return d_.cosa_c_e(p, che); }
    int copia(std::string_view da, std::string_view a) override { return d_.copia(da, a); }
    int rinomina(std::string_view da, std::string_view a) override { return d_.rinomina(da, a); }
    int sposta(std::string_view da, std::string_view a) override { return d_.sposta(da, a); }
    int elimina(std::string_view p) override { return d_.elimina(p); }
    int crea_cartella(std::string_view p) override { return d_.crea_cartella(p); }
    int elenca(std::string_view c, std::vector<std::string>& n) override { return d_.elenca(c, n); }
    int blocca(std::string_view p, int s, std::chrono::milliseconds quanto) override {
        return blocchi_ ? d_.blocca(p, s, quanto) : 0;
    }
    void sblocca(std::string_view p, int s) override {
        if (blocchi_) d_.sblocca(p, s);
    }
    int consolida_cartella(std::string_view p) override { return d_.consolida_cartella(p); }

  private:
    struct File : FileAperto {
        File(std::unique_ptr<FileAperto> f, bool durevole) : f_(std::move(f)), durevole_(durevole) {}
        int leggi(std::uint64_t n, std::span<std::byte> b, std::size_t& l) override {
            return f_->leggi(n, b, l);
        }
        int scrivi(std::uint64_t n, std::span<const std::byte> b) override { return f_->scrivi(n, b); }
        std::uint64_t lunghezza() override { return f_->lunghezza(); }
        int consolida() override { return durevole_ ? f_->consolida() : 0; }
        std::unique_ptr<FileAperto> f_;
        bool durevole_;
    };
    Disco& d_;
    bool blocchi_, durevole_;
};

std::string script() {
    std::string s;
    for (int i = 0; i < kDocumenti; ++i)
        s += "click vexoraf.command3d2(2)\nclick lumftem.b_ins\ntype lumftea.Text2(0) " + std::to_string(i) +
             "\ntype lumftea.text1(0) 03/05/2024\ntype lumftea.impon(0) 1234.56\nanswer yes\n"
             "click lumftea.command3d1(0)\nclick lumincx.b_fine(1)\n";
    return s;
}

void corri(benchmark::State& stato, bool blocchi, bool durevole) {
    const std::string righe = script();
    for (auto _ : stato) {
        stato.PauseTiming();
        auto drive = std::make_unique<Drive>();
        stato.ResumeTiming();
        std::istringstream in(righe);
        std::ostringstream out;
        const auto vero = disco_vero(drive->casa);
        Spoglio disco(*vero, blocchi, durevole);
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

void Durevole(benchmark::State& stato) {
    corri(stato, true, true);
}
BENCHMARK(Durevole)->Unit(benchmark::kMillisecond)->UseRealTime();

void SenzaDurata(benchmark::State& stato) {
    corri(stato, true, false);
}
BENCHMARK(SenzaDurata)->Unit(benchmark::kMillisecond)->UseRealTime();

void SenzaBlocchi(benchmark::State& stato) {
    corri(stato, false, false);
}
BENCHMARK(SenzaBlocchi)->Unit(benchmark::kMillisecond)->UseRealTime();

// The records of such a document into their files, each file made durable once.
void Nuda(benchmark::State& stato) {
    const Drive drive;
    const auto disco = disco_vero(drive.casa);
    Errore err;
    Archivio arc(err);
    RecStabile s1;
    RecStabile2 s2;
    apriarchivi(*disco, arc, "001", s1, s2);
    long n = 0;
    for (auto _ : stato) {
        ++n;
        scrivi(arc.mov, n, {});
        scrivi(arc.tot, 1, {});
        scrivi(arc.pia, 1, {});
        scrivi(arc.pia, kBaseContropartite + 1, {});
        for (long c = 1; c <= kCondomini; ++c) scrivi(arc.cnd, c, {});
        scrivi(arc.ftr, n, {});
        scrivi(arc.tfr, 2, {});
        arc.consolida();
    }
    stato.SetItemsProcessed(stato.iterations());
}
BENCHMARK(Nuda)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

int main(int argc, char** argv) {
    return ambra::misura(argc, argv, {{"Durevole", "Nuda", 3}, {"SenzaDurata", "SenzaBlocchi", 1.1}});
}
