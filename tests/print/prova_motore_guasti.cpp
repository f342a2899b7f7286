// The print engine on a table full of rubbish and on a printer that fails.
#include <gtest/gtest.h>

#include "tests/print/lavoro_motore.h"

namespace ambra {
namespace {

// ---- rubbish in the print table ----

TEST(MotoreGuasti, OltreLaTavolaNullaSiStampa) {
    struct Caso {
        int colx, colall;
    };
    for (const Caso k : {Caso{81, 1}, {32767, 1}, {0, 1}, {-5, 1}, {0, 2}}) {
        Lavoro l;
        l.tab[0].colx = k.colx;
        l.tab[0].colall = k.colall;
        l.riga({"x"});
        EXPECT_EQ(l.rigacorr, 0) << k.colx;
        EXPECT_EQ(xstampainit(l.c), 0);
        l.fine();
        EXPECT_TRUE(l.pagine.empty());
    }
    Lavoro l;  // the second lines reach past entry 80: what fails is abandoned there
    l.tab[0].colx = 41;
    l.tab[0].colall = 2;
    l.riga({"x"});
    EXPECT_EQ(l.rigacorr, 0);
}

TEST(MotoreGuasti, UnColoreFuoriMisuraFermaLaChiamata) {
    Lavoro l;
    for (const double colore : {1e300, -1e300, 2147483648.0}) {
        l.tab[4].fontcolore = colore;
        l.riga({"x", "1"});
        EXPECT_EQ(l.rigacorr, 0);
    }
    l.tab[4].fontcolore = 2.5;  // half to even
    l.riga({"x", "1"});
    l.fine();
    EXPECT_NE(racconta(l.pagine[0]).find("[x] Quattro 10 #2\n"), std::string::npos);
}

TEST(MotoreGuasti, GeometrieAssurdeNonFannoDanni) {
    const int valori[] = {0, 1, -1, 30, 950, 1000, 32767, -32768};
    const auto prova = [](auto imposta) {
        Lavoro l;
        imposta(l.tab);
        for (int i = 0; i < 60; ++i) {
            l.riga({"testo piuttosto lungo", "1.234,50"});
            ASSERT_GE(l.rigacorr, 0);
            ASSERT_LE(l.rigacorr, 60);
        }
        l.fine();
        ASSERT_LE(l.pagine.size(), 61u);
    };
    for (const int a : valori) {
        for (const int b : valori) {
            prova([&](auto& t) { t[0].paginasx = a, t[0].paginadx = b; });
            prova([&](auto& t) { t[0].paginasu = a, t[0].paginagiu = b; });
            prova([&](auto& t) { t[0].rigaalt = a, t[4].fontsize = b; });
            prova([&](auto& t) { t[0].testata = a, t[3].fontsize = b; });
            prova([&](auto& t) { t[1].collarg = a, t[2].collarg = b; });
            prova([&](auto& t) { t[1].coltipo = a, t[0].colx = b; });
        }
    }
    prova([](auto& t) {
        for (std::size_t i = 1; i <= 5; ++i) t[i].fontnome = "";
    });
}

TEST(MotoreGuasti, UnaPaginaSenzaAltezzaTieneUnaRiga) {
    Lavoro l;
    l.tab[0].paginagiu = 50;
    for (int i = 0; i < 3; ++i) l.riga({"x", "1"});
    l.fine();
    EXPECT_EQ(l.pagine.size(), 3u);
    EXPECT_EQ(l.npagina, 3);
}

// ---- a printer that fails in the middle ----

void lavora(Lavoro& l) {
    l.tab[0].fascia = 255;
    l.colonne({{"Uno", 3, 0}, {"Due", 5, 1}, {"Tre", 3, 0}, {"Quattro", 4, 1}}, 2);
    for (int i = 0; i < 80; ++i) l.riga({"a", "10", "b", "20"});
    try {
        l.fine();
    } catch (const PrinterFault&) {
        l.stampante.end_doc();
    }
}

TEST(MotoreGuasti, UnaStampanteCheCadeNonFermaIlLavoro) {
    Lavoro intero;
    lavora(intero);
    const int tutte = intero.stampante.operazioni;
    ASSERT_GT(tutte, 500);
    for (int n = 0; n < tutte; ++n) {
        Lavoro l;
        l.stampante.guasto_a = n;
        lavora(l);
        // One fault abandons one call; all the others still reach the paper.
        ASSERT_GE(l.pagine.size() + 1, intero.pagine.size()) << n;
        ASSERT_GT(l.stampante.operazioni, tutte * 9 / 10) << n;
    }
}

TEST(MotoreGuasti, IlGuastoNellaFineDiPaginaAbbandonaLaChiamata) {
    // Row 76 fills the page, and its furniture fails: no new page, the counter goes on, and the next row
    // finishes the page.
    Lavoro l;
    for (int i = 0; i < 76; ++i) l.riga({"x", "1"});
    l.stampante.guasto_a = l.stampante.operazioni + 5;  // the first box
    l.riga({"x", "1"});
    EXPECT_EQ(l.stampante.operazioni, l.stampante.guasto_a + 1);
    EXPECT_EQ(l.rigacorr, 77);
    EXPECT_EQ(l.npagina, -1);
    l.riga({"x", "1"});
    EXPECT_EQ(l.rigacorr, 0);
    EXPECT_EQ(l.npagina, 1);
    l.fine();
    EXPECT_EQ(l.pagine.size(), 1u);
}

}  // namespace
}  // namespace ambra
