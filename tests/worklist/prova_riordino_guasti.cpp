// The reorganisation where something fails: every stage that can, and death at any moment.
#include <algorithm>
#include <map>
#include <random>

#include "tests/worklist/archivio_a_caso.h"

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

}  // namespace
