// What passes by itself is tried again, what was refused is counted and told.
#include <gtest/gtest.h>

#include "core/disco_attento.h"
#include "core/errori.h"
#include "core/filerecord.h"
#include "tests/supporto/disco_guasto.h"
#include "tests/supporto/disco_memoria.h"

using namespace ambra;
using namespace std::chrono_literals;

namespace {

// The disc under test on one that fails, with a clock that only its own pauses move.
struct Prova {
    DiscoMemoria memoria;
    DiscoGuasto dietro{memoria};
    std::chrono::milliseconds dormito{0};
    DiscoAttento disco{dietro,
                       {[this] { return std::chrono::steady_clock::time_point(dormito); },
                        [this](std::chrono::milliseconds quanto) { dormito += quanto; }}};
    std::vector<std::string> detti;

    Prova() {
        memoria.contenuto("f") = "contenuto";
        disco.avviso = [this](const Guasto& g) {
            detti.push_back(g.percorso + " " + std::to_string(g.errore));
        };
    }
    /// From now on this operation fails until so much time has passed.
    void guasta(Operazione quale, int numero, std::chrono::milliseconds fino) {
        dietro.guasto = [=, this](Operazione op, std::string_view) {
            return op == quale && dormito < fino ? numero : 0;
        };
    }
    int leggi() {
        std::unique_ptr<FileAperto> f;
        if (const int e = disco.apri("f", Apertura::lettura, f)) return e;
        std::byte b;
        std::size_t letti = 0;
        return f->leggi(0, std::span(&b, 1), letti);
    }
    int leggi_tutto() {
        std::string s;
        return disco.leggi_tutto("f", s);
    }
};

TEST(DiscoAttento, CioChePassaDaSeSiRiprovaPerDueSecondi) {
    for (const auto op : {Operazione::apri, Operazione::leggi})
        for (const int numero : {errore::gia_aperto, errore::troppi_file, errore::disco_non_pronto}) {
            Prova p;
            p.guasta(op, numero, 1s);
            EXPECT_EQ(p.leggi(), 0) << numero;
            EXPECT_EQ(p.dormito, 1s) << "it opens a second later";
            p.guasta(op, numero, 100s);
            p.dormito = 0ms;
            EXPECT_EQ(p.leggi(), numero == 55 ? 70 : numero) << "what is busy for good is refused";
            EXPECT_EQ(p.dormito, 2s);
            EXPECT_EQ(p.disco.guasti(), 0) << "openings and reads are no writes";
        }
    Prova p;
    p.guasta(Operazione::leggi_tutto, errore::gia_aperto, 1s);
    EXPECT_EQ(p.leggi_tutto(), 0);
}

TEST(DiscoAttento, OgniAltroErroreVieneSubito) {
    for (const int numero : {52, 53, 54, 57, 61, 62, 63, 70, 75, 76}) {
        Prova p;
        for (const auto op : {Operazione::apri, Operazione::leggi, Operazione::leggi_tutto}) {
            p.guasta(op, numero, 100s);
            EXPECT_EQ(op == Operazione::leggi_tutto ? p.leggi_tutto() : p.leggi(), numero);
        }
        EXPECT_EQ(p.dormito, 0ms) << numero;
    }
}

TEST(DiscoAttento, OgniScritturaRifiutataSiContaESiDiceUnaVolta) {
    Prova p;
    std::unique_ptr<FileAperto> f;
    ASSERT_EQ(p.disco.apri("f", Apertura::scambio, f), 0);
    EXPECT_EQ(f->scrivi(0, std::as_bytes(std::span("x", 1))), 0);
    EXPECT_EQ(p.disco.guasti(), 0);

    p.dietro.guasto = [](Operazione, std::string_view) { return errore::disco_pieno; };
    EXPECT_EQ(f->scrivi(0, std::as_bytes(std::span("x", 1))), 61);
    EXPECT_EQ(f->consolida(), 61);
    EXPECT_EQ(p.disco.scrivi_tutto("testo", "x"), 61);
    EXPECT_EQ(p.disco.copia("f", "copia"), 61);
    EXPECT_EQ(p.disco.rinomina("f", "nuovo"), 61);
    const std::vector<std::string> voluti = {"f 61", "f 61", "testo 61", "copia 61", "nuovo 61"};
    EXPECT_EQ(p.detti, voluti);
    EXPECT_EQ(p.disco.guasti(), 5);

    std::vector<std::string> nomi;
    std::string s;
    EXPECT_EQ(p.disco.elimina("f"), 61);
    EXPECT_EQ(p.disco.crea_cartella("c"), 61);
    EXPECT_EQ(p.disco.elenca("c", nomi), 61);
    EXPECT_EQ(p.disco.leggi_tutto("f", s), 61);
    EXPECT_EQ(p.leggi(), 61);
    EXPECT_EQ(p.disco.guasti(), 5) << "deletions, openings and reads do not count";
}

TEST(DiscoAttento, UnaScritturaOccupataNonSiRipeteESiDiceRifiutata) {
    Prova p;
    std::unique_ptr<FileAperto> f;
    ASSERT_EQ(p.disco.apri("f", Apertura::scambio, f), 0);
    p.guasta(Operazione::scrivi, errore::gia_aperto, 100s);
    EXPECT_EQ(f->scrivi(0, std::as_bytes(std::span("x", 1))), 70);
    EXPECT_EQ(p.dormito, 0ms);
    EXPECT_EQ(p.detti, std::vector<std::string>{"f 70"});
}

TEST(DiscoAttento, UnFileMaiApertoRifiutaOgniScrittura) {
    Prova p;
    Errore err;
    FileRecord f(err, 24, 10);
    p.dietro.guasto = [](Operazione op, std::string_view) { return op == Operazione::apri ? 76 : 0; };
    EXPECT_FALSE(f.apri(p.disco, "lum001.ftr"));
    EXPECT_EQ(p.disco.guasti(), 0);
    EXPECT_FALSE(f.scrivi_byte(1, std::as_bytes(std::span("0123456789", 10))));
    EXPECT_EQ(p.detti, std::vector<std::string>{"lum001.ftr 52"});
}

TEST(DiscoAttento, IBlocchiPassanoComeSono) {
    Prova p;
    DiscoMemoria altro = p.memoria.altro_programma();
    EXPECT_EQ(altro.blocca("f", 1, 0ms), 0);
    EXPECT_EQ(p.disco.blocca("f", 1, 30s), 70);
    altro.sblocca("f", 1);
    EXPECT_EQ(p.disco.blocca("f", 1, 30s), 0);
    EXPECT_EQ(altro.blocca("f", 1, 0ms), 70);
    p.disco.sblocca("f", 1);
    EXPECT_EQ(altro.blocca("f", 1, 0ms), 0);
    EXPECT_EQ(p.disco.guasti(), 0);
}

}  // namespace
