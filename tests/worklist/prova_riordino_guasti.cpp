// The reorganisation where something fails: every stage that can, and death at any moment.
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <map>
#include <random>

#include "core/disco.h"
#include "tests/supporto/seme.h"
#include "tests/worklist/banco_riordino.h"

using namespace ambra;

namespace {

struct CasoGuasto {
    Operazione operazione;
    const char* file;
    int numero;
    const std::string& coda;
    int contatore;  // what .tfr holds after
};

TEST(RiordinoGuasti, OgniStadioChePuoFallire) {
    const CasoGuasto casi[] = {
        {Operazione::leggi, "tfr", 57, kCaricamento, 2},  {Operazione::leggi, "ftr", 57, kCaricamento, 3},
        {Operazione::scrivi, "tfr", 61, kCaricamento, 3}, {Operazione::copia, "ftr", 61, kDuplicazione, 2},
        {Operazione::copia, "ftr", 70, kDuplicazione, 2}, {Operazione::apri, "ftr", 55, kDuplicazione, 2},
        {Operazione::apri, "$$$", 70, kApertura, 2},      {Operazione::leggi, "$$$", 57, kSalvataggio, 2},
        {Operazione::scrivi, "ftr", 61, kSalvataggio, 2},
    };
    for (const auto& c : casi) {
        SCOPED_TRACE(&c - casi);
        BancoRiordino b;
        b.fatture({documento("B", "20240202"), documento("X", "20240101", true), documento("A", "20240101")});
        b.avvia();
        const std::string prima = b.file("ftr");
        const std::string mio = nome_file("001", c.file);
        b.disco.guasto = [&](Operazione op, std::string_view percorso) {
            return op == c.operazione && percorso == mio ? c.numero : 0;
        };
        b.riordina();
        b.disco.guasto = nullptr;
        EXPECT_EQ(b.guasto(), errore_n(c.numero) + c.coda);
        EXPECT_EQ(contatore(b), c.contatore);
        EXPECT_EQ(b.piattaforma.puntatore, Puntatore::normale);
        const bool scritto = c.coda == kSalvataggio && c.operazione == Operazione::leggi;
        if (!scritto) {
            EXPECT_EQ(b.file("ftr"), prima);
        }
        if (c.coda == kSalvataggio) {
            EXPECT_EQ(b.file("$$$"), prima);
        }
        // Only a reopening that fails leaves the file closed.
        const bool chiuso = c.operazione == Operazione::apri && c.coda == kDuplicazione;
        EXPECT_EQ(b.prog.arc.ftr.aperto(), !chiuso);
    }
}

TEST(RiordinoGuasti, DopoUnGuastoAltroveNonFallisce) {
    BancoRiordino b;
    b.fatture({documento("B", "20240202"), documento("A", "20240101")});
    b.avvia();
    b.prog.err.numero = 53;
    b.riordina();
    EXPECT_EQ(b.guasto(), "");
    EXPECT_EQ(numeri(b.file("ftr")), (std::vector<std::string>{"A", "B"}));
}

// What the display lets happen in between is looked at after the sort.
struct PiattaformaDistratta : PiattaformaProva {
    Programma* prog = nullptr;
    void refresh() override {
        if (prog) prog->err.numero = 5;
    }
};

TEST(RiordinoGuasti, ErroreMentreSiOrdina) {
    Banco dati;
    dati.fatture({documento("B", "20240202"), documento("A", "20240101")});
    const std::string prima = dati.file("ftr");
    PiattaformaDistratta piattaforma;
    Programma prog(dati.disco, piattaforma, "1");
    registra_tutte(prog.schermi);
    prog.schermi.apri("vexoraf");
    piattaforma.prog = &prog;
    piattaforma.risposte = {Risposta::si};
    static_cast<Vexoraf&>(*prog.schermi.caricato("vexoraf")).riordino();
    EXPECT_EQ(a_utf8(piattaforma.messaggi.back().testo), errore_n(5) + kRiordino);
    EXPECT_EQ(dati.file("ftr"), prima);
}

TEST(RiordinoGuasti, UnPostoGuastoCostaSoloSe) {
    BancoRiordino b;
    b.fatture({documento("3", "20240303"), documento("2", "20240202"), documento("1", "20240101")});
    b.avvia();
    int volte = 0;  // the whole block, then the record in the middle
    b.disco.guasto = [&](Operazione op, std::string_view percorso) {
        if (op != Operazione::scrivi || !percorso.ends_with("ftr")) return 0;
        ++volte;
        return volte == 1 || volte == 3 ? 57 : 0;
    };
    b.riordina();
    EXPECT_EQ(b.guasto(), errore_n(57) + kSalvataggio);
    EXPECT_EQ(numeri(b.file("ftr")), (std::vector<std::string>{"1", "2", "3"}))
        << "record 2 was refused and stood right by chance of its place";
}

// ---- death ----

std::map<std::string, int> conta(const std::string& file) {
    std::map<std::string, int> r;
    for (std::size_t i = 0; i + sizeof(RecFattura) <= file.size(); i += sizeof(RecFattura))
        ++r[file.substr(i, sizeof(RecFattura))];
    return r;
}

bool tiene_tutto(const std::string& file, const std::map<std::string, int>& vivi) {
    auto ora = conta(file);
    return std::all_of(vivi.begin(), vivi.end(), [&](const auto& v) { return ora[v.first] >= v.second; });
}

std::vector<RecFattura> archivio_a_caso(std::mt19937& caso, int quante) {
    std::vector<RecFattura> r;
    for (int i = 0; i < quante; ++i) {
        const int giorno = std::uniform_int_distribution<>(1, 28)(caso);
        const int mese = std::uniform_int_distribution<>(1, 12)(caso);
        r.push_back(documento(std::to_string(i), "2023" + con_zeri(mese, 2) + con_zeri(giorno, 2),
                              std::uniform_int_distribution<>(0, 9)(caso) == 0));
    }
    return r;
}

std::map<std::string, int> vivi_di(const std::vector<RecFattura>& tutte) {
    std::map<std::string, int> r;
    for (const auto& f : tutte)
        if (f.cancellata != 1) ++r[byte_di(f)];
    return r;
}

TEST(RiordinoGuasti, FermoDopoOgniOperazione) {
    std::mt19937 caso(8);
    const auto tutte = archivio_a_caso(caso, 1200);
    const auto vivi = vivi_di(tutte);
    int fermate = 0;
    for (int fermo = 0;; ++fermo) {
        BancoRiordino b;
        b.fatture(tutte);
        b.avvia();
        int fatte = 0;
        bool morto = false;
        b.disco.guasto = [&](Operazione, std::string_view) {
            morto = morto || fatte++ >= fermo;
            return morto ? 57 : 0;
        };
        b.riordina();
        ASSERT_TRUE(tiene_tutto(b.file("ftr"), vivi) || tiene_tutto(b.file("$$$"), vivi))
            << "dead after operation " << fermo;
        if (!morto) break;
        ++fermate;
    }
    EXPECT_GT(fermate, 20);
}

// The real thing: a process on the real disc, killed without warning.
TEST(RiordinoGuasti, UccisoInCentoMomenti) {
    namespace fs = std::filesystem;
    char modello[] = "/tmp/riordino-XXXXXX";
    const fs::path radice = ::mkdtemp(modello);
    const fs::path dove = radice / "lumdir" / "lumora";
    fs::create_directories(dove);
    const auto seme = seme_di_prova();
    std::mt19937 caso(seme);
    int interrotti = 0;
    const auto tutte = archivio_a_caso(caso, 3000);
    const auto vivi = vivi_di(tutte);
    std::string dati;
    for (const auto& f : tutte) dati += byte_di(f);
    RecTotali t{};
    t.parola[0] = 3000;
    const std::string tfr = std::string(28, '\0') + byte_di(t) + std::string(3 * 28, '\0');
    const auto vero = disco_vero(radice.string());
    Disco& disco = *vero;
    for (int giro = 0; giro < 100; ++giro) {
        ASSERT_EQ(disco.scrivi_tutto("\\lumdir\\lumora\\lum001.ftr", dati), 0);
        ASSERT_EQ(disco.scrivi_tutto("\\lumdir\\lumora\\lum001.tfr", tfr), 0);
        fs::remove(dove / "lum001.$$$");

        int pronto[2];
        ASSERT_EQ(::pipe(pronto), 0);
        const pid_t figlio = ::fork();
        if (figlio == 0) {
            PiattaformaProva piattaforma;
            piattaforma.risposte = {Risposta::si};
            Programma prog(disco, piattaforma, "1");
            registra_tutte(prog.schermi);
            prog.schermi.apri("vexoraf");
            (void)!::write(pronto[1], "x", 1);
            static_cast<Vexoraf&>(*prog.schermi.caricato("vexoraf")).riordino();
            ::_exit(0);
        }
        char c;
        (void)!::read(pronto[0], &c, 1);
        ::usleep(std::uniform_int_distribution<unsigned>(0, 9000)(caso));
        ::kill(figlio, SIGKILL);
        int stato = 0;
        ::waitpid(figlio, &stato, 0);
        ::close(pronto[0]);
        ::close(pronto[1]);
        if (WIFSIGNALED(stato)) ++interrotti;

        std::string ftr, copia;
        ASSERT_EQ(disco.leggi_tutto("\\lumdir\\lumora\\lum001.ftr", ftr), 0);
        disco.leggi_tutto("\\lumdir\\lumora\\lum001.$$$", copia);
        ASSERT_TRUE(tiene_tutto(ftr, vivi) || tiene_tutto(copia, vivi))
            << "giro " << giro << " seme " << seme;
    }
    EXPECT_GT(interrotti, 0);
    fs::remove_all(radice);
}

}  // namespace
