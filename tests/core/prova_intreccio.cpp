// The test bench itself: two programs in memory, and a disc that fails at the n-th operation.
#include <gtest/gtest.h>

#include <stdexcept>

#include "core/errori.h"
#include "tests/supporto/disco_guasto.h"
#include "tests/supporto/intreccio.h"

using namespace ambra;
using namespace std::chrono_literals;

namespace {

// Two programs that add one to a counter of one digit: read, then write what follows.
struct Contatore {
    DiscoMemoria uno;
    DiscoMemoria due = uno.altro_programma();
    int rifiutati = 0;

    Contatore() { uno.contenuto("c") = "0"; }
    void aggiungi(DiscoMemoria& d, bool blocco) {
        if (blocco && d.blocca("c", 1, 30s) != 0) {
            ++rifiutati;
            return;
        }
        std::unique_ptr<FileAperto> f;
        EXPECT_EQ(d.apri("c", Apertura::scambio, f), 0);
        char c = 0;
        std::size_t letti = 0;
        EXPECT_EQ(f->leggi(0, std::as_writable_bytes(std::span(&c, 1)), letti), 0);
        ++c;
        EXPECT_EQ(f->scrivi(0, std::as_bytes(std::span(&c, 1))), 0);
        if (blocco) d.sblocca("c", 1);
    }
    Corsa corri(bool blocco, long k, SeOccupato se = SeOccupato::aspetta, long j = 0) {
        return intreccia(
            uno, [=, this] { aggiungi(uno, blocco); }, due, [=, this] { aggiungi(due, blocco); }, k, se, j);
    }
    int valore() { return uno.contenuto("c")[0] - '0'; }
};

TEST(Intreccio, SenzaBlocchiSiPerdeUnPasso) {
    std::vector<int> valori;
    const long passi = per_ogni_passo([&](long k) {
        Contatore c;
        const Corsa corsa = c.corri(false, k);
        valori.push_back(c.valore());
        return corsa;
    });
    EXPECT_EQ(passi, 3);  // open, read, write
    EXPECT_EQ(valori, (std::vector<int>{2, 2, 1, 2})) << "lost only between the read and the write";
}

TEST(Intreccio, ConIBlocchiMai) {
    int attese = 0;
    for (long j = 0; j <= 6; ++j) {
        const long passi = per_ogni_passo([&](long k) {
            Contatore c;
            const Corsa corsa = c.corri(true, k, SeOccupato::aspetta, j);
            EXPECT_EQ(c.valore(), 2) << k << " " << j;
            EXPECT_EQ(c.rifiutati, 0) << k << " " << j;
            EXPECT_FALSE(c.uno.bloccato("c"));
            attese += corsa.occupato;
            return corsa;
        });
        EXPECT_EQ(passi, 5);  // lock, open, read, write, unlock
    }
    EXPECT_GT(attese, 0);
}

TEST(Intreccio, ChiRinunciaNonScrive) {
    per_ogni_passo([&](long k) {
        Contatore c;
        const Corsa corsa = c.corri(true, k, SeOccupato::rinuncia);
        EXPECT_EQ(c.rifiutati, corsa.occupato ? 1 : 0) << k;
        EXPECT_EQ(c.valore(), 2 - c.rifiutati) << k;
        EXPECT_EQ(corsa.occupato, k > 1 && corsa.in_mezzo) << k;
        return corsa;
    });
}

// Each holds what the other wants: somebody must be refused, and nobody waits for ever.
TEST(Intreccio, UnAbbraccioMortaleSiScioglie) {
    per_ogni_passo([](long k) {
        DiscoMemoria uno;
        DiscoMemoria due = uno.altro_programma();
        uno.contenuto("c");
        int prese = 0;
        const auto azione = [&prese](DiscoMemoria& d, int prima, int poi) {
            if (d.blocca("c", prima, 30s) == 0) {
                ++prese;
                if (d.blocca("c", poi, 30s) == 0) {
                    ++prese;
                    d.sblocca("c", poi);
                }
                d.sblocca("c", prima);
            }
        };
        const Corsa c = intreccia(
            uno, [&] { azione(uno, 1, 2); }, due, [&] { azione(due, 2, 1); }, k);
        EXPECT_GE(prese, 3) << k;
        EXPECT_FALSE(uno.bloccato("c"));
        return c;
    });
}

TEST(Intreccio, UnaProvaCheCadeEsceDopoCheEntrambiHannoFinito) {
    Contatore c;
    const auto cade = [] { throw std::runtime_error("giù"); };
    EXPECT_THROW(intreccia(
                     c.uno, cade, c.due, [&] { c.aggiungi(c.due, true); }, 1),
                 std::runtime_error);
    EXPECT_EQ(c.valore(), 1);
    EXPECT_THROW(intreccia(
                     c.uno, [&] { c.aggiungi(c.uno, true); }, c.due, cade, 2),
                 std::runtime_error);
    EXPECT_EQ(c.valore(), 2);
}

TEST(DiscoMemoria, UnProgrammaCheFinisceLasciaISuoiBlocchi) {
    DiscoMemoria uno;
    uno.contenuto("c");
    {
        DiscoMemoria due = uno.altro_programma();
        EXPECT_EQ(due.blocca("C", 1, 0ms), 0);
        EXPECT_EQ(uno.blocca("c", 1, 30s), 70);
    }
    EXPECT_EQ(uno.blocca("c", 1, 0ms), 0);
    EXPECT_EQ(uno.blocca("manca", 1, 0ms), 0);
    EXPECT_FALSE(uno.esiste("manca"));
}

TEST(DiscoGuasto, SiRompeAllaNEsimaOperazioneEUnaVoltaSola) {
    DiscoMemoria memoria;
    for (long n = 1; n <= 4; ++n) {
        DiscoGuasto d(memoria);
        memoria.contenuto("f") = "xx";
        d.rompi(n, errore::disco_pieno);
        d.parte = 1;
        std::string s;
        const int esiti[] = {d.leggi_tutto("f", s), d.copia("f", "g"), d.elimina("g"), d.leggi_tutto("f", s)};
        for (long i = 1; i <= 4; ++i) EXPECT_EQ(esiti[i - 1], i == n ? 61 : 0) << n << " " << i;
        EXPECT_EQ(d.operazioni(), 4);
    }
}

TEST(DiscoGuasto, UnaScritturaRifiutataPuoArrivareInParte) {
    DiscoMemoria memoria;
    DiscoGuasto d(memoria);
    std::unique_ptr<FileAperto> f;
    ASSERT_EQ(d.apri("f", Apertura::scambio, f), 0);
    d.guasto = [](Operazione op, std::string_view) {
        return op == Operazione::scrivi || op == Operazione::copia ? errore::dispositivo : 0;
    };
    EXPECT_EQ(f->scrivi(0, std::as_bytes(std::span("abc", 3))), 57);
    EXPECT_EQ(memoria.contenuto("f"), "");
    d.parte = 2;
    EXPECT_EQ(f->scrivi(0, std::as_bytes(std::span("abc", 3))), 57);
    EXPECT_EQ(memoria.contenuto("f"), "ab");
    memoria.contenuto("da") = "12345";
    EXPECT_EQ(d.copia("da", "a"), 57);
    EXPECT_EQ(memoria.contenuto("a"), "12");
}

}  // namespace
