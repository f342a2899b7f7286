// How each pass grows with the archive: lists, summaries, the sort, a registration with its posting, the
// check, the backup, at 1,000 to 32,000 documents. The exponent is that of the best line through the four: 1
// is linear, and none is above 1.1. Nothing is compared but the program with itself. usage: bench_crescita
// [--table]
#include <stdlib.h>
#include <sys/resource.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "ambra/archivio_compresso.h"
#include "ambra/batch.h"
#include "bench/cantiere.h"
#include "core/disco.h"
#include "ledger/lumstca.h"
#include "ledger/lumstcr.h"
#include "maintenance/verifica.h"
#include "qt/tutte.h"
#include "reports/lumstcd.h"
#include "reports/lumstcf.h"
#include "reports/lumstcs.h"
#include "reports/lumstct.h"
#include "reports/lumstcx.h"
#include "reports/lumstcy.h"
#include "tests/supporto/piattaforma_prova.h"
#include "worklist/vexoraf.h"

using namespace ambra;

namespace {

constexpr std::array kMisure = {1000, 4000, 16000, 32000};
constexpr int kGiri = 5, kCondomini = 30, kPerFornitore = 32;

double secondi() {
    rusage uso{};
    ::getrusage(RUSAGE_SELF, &uso);
    const auto s = [](const timeval& t) {
        return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_usec) / 1e6;
    };
    return s(uso.ru_utime) + s(uso.ru_stime);
}

// A building with so many documents, on the real disc.
struct Cantiere {
    int documenti;
    std::string casa;
    std::unique_ptr<Disco> disco;
    PiattaformaProva piattaforma;
    std::unique_ptr<Programma> prog;

    explicit Cantiere(int quanti) : documenti(quanti) {
        char modello[] = "/tmp/ambra-bench-XXXXXX";
        casa = ::mkdtemp(modello);
        std::filesystem::create_directories(casa + "/lumdir/lumora");
        disco = disco_vero(casa);
        cantiere::stabile(*disco, kCondomini);
        cantiere::acquisti(*disco, quanti / kPerFornitore, fatture());
        apri();
    }
    ~Cantiere() { std::filesystem::remove_all(casa); }

    void apri() {
        prog = std::make_unique<Programma>(*disco, piattaforma, "1");
        registra_tutte(prog->schermi);
        prog->schermi.apri("vexoraf");
    }
    std::vector<RecFattura> fatture() const {
        std::vector<RecFattura> tutte(static_cast<std::size_t>(documenti));
        for (int i = 0; i < documenti; ++i) {
            RecFattura& f = tutte[static_cast<std::size_t>(i)];
            const int giorno = i * 7919 % 3000;
            const std::string mese = con_zeri(giorno / 28 % 12 + 1, 2), g = con_zeri(giorno % 28 + 1, 2);
            const std::string anno = std::to_string(2015 + giorno / 336);
            f.numfor = i * 31 % (documenti / kPerFornitore) + 1;
            f.numdoc = std::to_string(i) + "/A";
            f.datareg = f.datadoc = anno + mese + g;
            f.dsca[0] = f.dscarit = f.dver[0] = f.dverrit = g + mese + anno;
            f.impon[0] = f.sca[0] = 100 + i % 997;
            f.ivai[0] = 22;
            f.rac[0] = 20;
            f.ver[0] = 1;
        }
        return tutte;
    }
};

template <class S>
void elenco(Cantiere& c, const char* nome) {
    auto& s = c.prog->schermi.carica<S>(nome);
    if (Controllo* p = s.trova("text1(0)")) static_cast<CampoData*>(p)->testo("01/01/2015");
    if (Controllo* p = s.trova("text1(1)")) static_cast<CampoData*>(p)->testo("31/12/2024");
    s.comandi.command3d2.premuto();
}

void riordino(Cantiere& c) {
    c.piattaforma.risposte = {Risposta::si};
    static_cast<Vexoraf&>(*c.prog->schermi.caricato("vexoraf")).riordino();
    if (c.piattaforma.messaggi.size() != 1) std::puts("the sort has failed");
    c.piattaforma.messaggi.clear();
}

void registrazione(Cantiere& c) {
    std::istringstream in(
        "click vexoraf.command3d2(2)\nclick lumftem.b_ins\ntype lumftea.Text2(0) 1/N\n"
        "type lumftea.text1(0) 03/05/2024\ntype lumftea.impon(0) 1234.56\n"
        "answer yes\nclick lumftea.command3d1(0)\nclick lumincx.b_fine(1)\n");
    std::ostringstream out;
    PiattaformaBatch piattaforma(in, out);
    Programma prog(*c.disco, piattaforma, "1");
    registra_tutte(prog.schermi);
    prog.schermi.apri("vexoraf");
    piattaforma.esegui(prog);
}

void check(Cantiere& c) {
    Verifica v(*c.disco, [](const Rilievo&) {});
    v.stabile("001");
}

void salvataggio(Cantiere& c) {
    std::vector<FileSalvato> file;
    if (const std::string male = raccogli(*c.disco, "001", file); !male.empty()) std::puts(male.c_str());
    if (const std::string male = scrivi_compresso(c.casa + "/copia.tar.gz", file); !male.empty())
        std::puts(male.c_str());
}

struct Passo {
    const char* nome;
    std::function<void(Cantiere&)> fai;
    bool rovina = false;  // the archive is another afterwards
    double parte = 1;     // of the documents: the sort takes 10,000 at most
};

const std::vector<Passo>& passi() {
    static const std::vector<Passo> kTutti = {
        {"vexoraf", [](Cantiere& c) { c.prog->schermi.carica<Vexoraf>("vexoraf").aggiornalista(); }},
        {"lumstct", [](Cantiere& c) { elenco<Lumstct>(c, "lumstct"); }},
        {"lumstcs", [](Cantiere& c) { elenco<Lumstcs>(c, "lumstcs"); }},
        {"lumstcf", [](Cantiere& c) { elenco<Lumstcf>(c, "lumstcf"); }},
        {"lumstcd", [](Cantiere& c) { elenco<Lumstcd>(c, "lumstcd"); }},
        {"lumstca", [](Cantiere& c) { elenco<Lumstca>(c, "lumstca"); }},
        {"lumstcr", [](Cantiere& c) { elenco<Lumstcr>(c, "lumstcr"); }},
        {"lumstcx", [](Cantiere& c) { c.prog->schermi.carica<Lumstcx>("lumstcx").aggiornalista(); }},
        {"lumstcy", [](Cantiere& c) { c.prog->schermi.carica<Lumstcy>("lumstcy").aggiornalista(); }},
        {"check", check},
        {"backup", salvataggio},
        {"riordino (312 - 10.000)", riordino, true, 10000.0 / kMisure.back()},
        {"registrazione e addebito", registrazione, true},
    };
    return kTutti;
}

// The best of some rounds.
double misura(const Passo& p, int documenti) {
    double meno = 1e9;
    std::unique_ptr<Cantiere> c;
    for (int giro = 0; giro < kGiri; ++giro) {
        if (!c || p.rovina) c = std::make_unique<Cantiere>(documenti);
        const double da = secondi();
        p.fai(*c);
        meno = std::min(meno, secondi() - da);
    }
    return meno;
}

// The slope of the best line through the logarithms.
double esponente(const std::array<double, kMisure.size()>& tempi) {
    double x = 0, y = 0, xx = 0, xy = 0;
    for (std::size_t i = 0; i < tempi.size(); ++i) {
        const double lx = std::log(kMisure[i]), ly = std::log(tempi[i]);
        x += lx;
        y += ly;
        xx += lx * lx;
        xy += lx * ly;
    }
    const auto n = static_cast<double>(tempi.size());
    return (n * xy - x * y) / (n * xx - x * x);
}

}  // namespace

int main(int argc, char** argv) {
    const bool tabella = argc > 1 && std::string_view(argv[1]) == "--table";
    std::printf(tabella
                    ? "| Passo | 1.000 | 4.000 | 16.000 | 32.000 | Esponente |\n|---|---|---|---|---|---|\n"
                    : "%-26s %9s %9s %9s %9s  exponent\n",
                "milliseconds", "1,000", "4,000", "16,000", "32,000");
    const std::string_view solo = argc > 1 ? argv[argc - 1] : "";
    for (const Passo& p : passi()) {
        if (solo != "" && solo != "--table" && !std::string_view(p.nome).starts_with(solo)) continue;
        std::array<double, kMisure.size()> t{};
        for (std::size_t i = 0; i < t.size(); ++i) t[i] = misura(p, static_cast<int>(kMisure[i] * p.parte));
        const double e = esponente(t);
        std::printf(tabella ? "| %s | %.2f | %.2f | %.2f | %.2f | %.2f%s |\n"
                            : "%-26s %9.2f %9.2f %9.2f %9.2f  %.2f%s\n",
                    p.nome, t[0] * 1e3, t[1] * 1e3, t[2] * 1e3, t[3] * 1e3, e, e > 1.1 ? " OVER 1.1" : "");
        std::fflush(stdout);
    }
}
