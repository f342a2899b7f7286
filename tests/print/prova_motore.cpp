// The print engine: whole recorded pages, branch by branch.
#include <gtest/gtest.h>

#include "tests/print/lavoro_motore.h"

namespace ambra {
namespace {

constexpr const char* kMobilia =
    "text 1050 1100 [Titolo] Uno 14 b #1\n"
    "text 1050 1500 [AURORA] Uno 9 b #1\n"
    "text 8350 1100 [Studio] Due 10 i #2\n"
    "text 8650 1300 [Via] Due 10 i #2\n"
    "text 8550 1500 [Roma] Due 10 i #2\n";

TEST(Motore, UnaPaginaIntera) {
    Lavoro l;
    l.riga({"primo", "1.234,50"});
    l.riga({"secondo", "0,00"});
    l.fine();
    ASSERT_EQ(l.pagine.size(), 1u);
    EXPECT_EQ(racconta(l.pagine[0]),
              "text 1050 2300 [primo] Quattro 10 #4\n"
              "text 8150 2300 [1.234,50] Quattro 10 #4\n"
              "text 1050 2500 [secondo] Quattro 10 #4\n"
              "box 1000 1000 9000 18000 #5\n"
              "box 1000 1800 9000 2200 #5\n"
              "line 4000 1800 4000 18000 #5\n"
              "text 1000 18040 [Lumeria per Windows - www.lumeria.example] Arial 5 #0\n"
              "text 7100 18040 [Stampato in data 15/03/2024 - Pagina 1] Arial 5 #0\n" +
                  std::string(kMobilia) +
                  "text 1050 1900 [Alfa] Tre 10 #3\n"
                  "text 8550 1900 [Beta] Tre 10 #3\n");
}

TEST(Motore, LaCorniceSecondoLaTestata) {
    struct Caso {
        int testata, colall, righe;
        double base;
    };
    // The band ends at 2200 with one line a record, at 2400 with two.
    const Caso casi[] = {
        {0, 1, 3, 2200}, {0, 2, 3, 2400},  {1, 1, 1, 2500},  {1, 1, 3, 2900},
        {1, 2, 1, 2800}, {1, 2, 3, 3600},  {2, 1, 1, 18000}, {2, 2, 1, 18000},
        {3, 1, 3, 2200}, {-1, 1, 3, 2200}, {9, 2, 3, 2400},
    };
    for (const Caso& k : casi) {
        Lavoro l;
        l.tab[0].testata = k.testata;
        l.colonne({{"A", 1, 0}, {"B", 1, 0}}, k.colall);
        for (int i = 0; i < k.righe; ++i) l.riga({"x", "y"});
        l.fine();
        ASSERT_EQ(l.pagine.size(), 1u);
        double base = 0, fascia = 0;
        int piedi = 0;
        for (const auto& o : l.pagine[0].operazioni) {
            if (o.tipo == OperazioneStampa::Tipo::riquadro) (o.y1 == 1000 ? base : fascia) = o.y2;
            if (o.tipo == OperazioneStampa::Tipo::testo && o.font.punti == 5) {
                EXPECT_EQ(o.y1, k.base + 40);
                ++piedi;
            }
        }
        EXPECT_EQ(base, k.base) << k.testata << ' ' << k.colall;
        EXPECT_EQ(fascia, k.colall == 1 ? 2200 : 2400);
        // Footer and stamp only above 0, and only then does the page number move.
        EXPECT_EQ(piedi, k.testata > 0 ? 2 : 0) << k.testata;
        EXPECT_EQ(l.npagina, k.testata > 0 ? 1 : -1);
    }
}

TEST(Motore, LaCorniceNonSaleSopraLaFasciaDeiTitoli) {
    Lavoro l;
    l.tab[0].testata = 1;
    l.tab[0].rigaalt = -500;
    l.riga({"x", "1"});
    l.fine();
    ASSERT_EQ(l.pagine.size(), 1u);
    const std::string tutto = racconta(l.pagine[0]);
    EXPECT_NE(tutto.find("box 1000 1000 9000 2200 #5\nbox 1000 1800 9000 2200 #5\n"), std::string::npos);
}

TEST(Motore, DueRigheARecord) {
    Lavoro l;
    l.colonne({{"Uno", 3, 0}, {"Due", 5, 1}, {"Tre", 3, 0}, {"Quattro", 4, 1}}, 2);
    l.riga({"a", "10", "b", "20"});
    l.riga({"Totale generale", "30", "c", "40"});
    l.riga({"TOTALE", "", "d", ""});
    l.fine();
    ASSERT_EQ(l.pagine.size(), 1u);
    // The second line keeps the column starts of the first and the widths of its own entries.
    EXPECT_EQ(racconta(l.pagine[0]),
              "text 1050 2450 [a] Quattro 10 #4\n"
              "text 8450 2450 [10,00] Quattro 10 #4\n"
              "text 1050 2600 [b] Quattro 10 #4\n"
              "text 7450 2600 [20,00] Quattro 10 #4\n"
              "dots 1000 2820 9000 2820 #5\n"
              "text 1050 2850 [Totale generale] Quattro 10 #4\n"
              "text 8450 2850 [30,00] Quattro 10 #4\n"
              "text 1050 3000 [c] Quattro 10 #4\n"
              "text 7450 3000 [40,00] Quattro 10 #4\n"
              "text 1050 3250 [TOTALE] Quattro 10 #4\n"
              "text 1050 3400 [d] Quattro 10 #4\n"
              "dots 1000 3620 9000 3620 #5\n"
              "box 1000 1000 9000 18000 #5\n"
              "box 1000 1800 9000 2400 #5\n"
              "line 4000 1800 4000 18000 #5\n"
              "text 1000 18040 [Lumeria per Windows - www.lumeria.example] Arial 5 #0\n"
              "text 7100 18040 [Stampato in data 15/03/2024 - Pagina 1] Arial 5 #0\n" +
                  std::string(kMobilia) +
                  "text 1050 1900 [Uno] Tre 10 #3\n"
                  "text 8650 1900 [Due] Tre 10 #3\n"
                  "text 1050 2150 [Tre] Tre 10 #3\n"
                  "text 7250 2150 [Quattro] Tre 10 #3\n");
}

TEST(Motore, LaFasciaStaSottoLeRigheDispari) {
    Lavoro l;
    l.tab[0].fascia = 12345;
    for (int i = 0; i < 4; ++i) l.riga({"x", "1"});
    l.fine();
    std::string fasce;
    for (const auto& o : l.pagine[0].operazioni)
        if (o.tipo == OperazioneStampa::Tipo::pieno) fasce += racconta(o);
    EXPECT_EQ(fasce, "fill 1000 2480 9000 2670 #12345\nfill 1000 2880 9000 3070 #12345\n");
    EXPECT_EQ(l.pagine[0].operazioni[2].tipo, OperazioneStampa::Tipo::pieno) << "drawn before its text";

    Lavoro due;  // two lines a record: the counter is never odd
    due.tab[0].fascia = 12345;
    due.colonne({{"A", 1, 0}, {"B", 1, 0}}, 2);
    for (int i = 0; i < 4; ++i) due.riga({"x", "y"});
    due.fine();
    for (const auto& o : due.pagine[0].operazioni) EXPECT_NE(o.tipo, OperazioneStampa::Tipo::pieno);
}

TEST(Motore, LaFasciaRicominciaAdOgniPagina) {
    Lavoro l;
    l.tab[0].fascia = 12345;
    for (int i = 0; i < 80; ++i) l.riga({"x", "1"});
    l.fine();
    ASSERT_EQ(l.pagine.size(), 2u);
    std::string fasce;
    for (const auto& o : l.pagine[1].operazioni)
        if (o.tipo == OperazioneStampa::Tipo::pieno) fasce += racconta(o);
    EXPECT_EQ(fasce, "fill 1000 2480 9000 2670 #12345\n");
}

TEST(Motore, LaPaginaSiRompeDopoLaRigaCheLaRiempie) {
    // Row r stands at 2300 + 200 r and leaves the pen 230 below; the limit is 18000 - 300 = 17700.
    // Row 75 leaves it at 17530, row 76 at 17730: a page holds 77.
    for (const int righe : {76, 77, 78, 154, 155}) {
        Lavoro l;
        for (int i = 0; i < righe; ++i) l.riga({std::to_string(i), "1"});
        EXPECT_EQ(l.rigacorr, righe % 77);
        l.fine();
        const auto attese = static_cast<std::size_t>((righe + 76) / 77);
        ASSERT_EQ(l.pagine.size(), attese) << righe;
        EXPECT_EQ(l.npagina, static_cast<int>(attese));
        for (std::size_t p = 0; p < attese; ++p) {
            const std::string tutto = racconta(l.pagine[p]);
            EXPECT_NE(tutto.find(" - Pagina " + std::to_string(p + 1) + "]"), std::string::npos);
            EXPECT_NE(tutto.find("[" + std::to_string(p * 77) + "] Quattro"), std::string::npos);
            EXPECT_EQ(tutto.find("[" + std::to_string((p + 1) * 77) + "] Quattro"), std::string::npos);
        }
    }
}

TEST(Motore, LUltimoRecordDiUnaPaginaNonHaIlPuntinato) {
    // Record r at 2450 + 400 r, its second line 150 below, the pen 230 more: 2830 + 400 r against
    // 18000 - 450 = 17550. Record 36 leaves 17230, record 37 17630.
    Lavoro l;
    l.colonne({{"A", 1, 0}, {"B", 1, 0}}, 2);
    for (int i = 0; i < 38; ++i) l.riga({"x", "y"});
    EXPECT_EQ(l.rigacorr, 0);
    l.fine();
    ASSERT_EQ(l.pagine.size(), 1u);
    int puntinati = 0;
    for (const auto& o : l.pagine[0].operazioni) puntinati += o.stile == 2 ? 1 : 0;
    EXPECT_EQ(puntinati, 37);
}

TEST(Motore, UnLavoroSenzaRigheNonStampaNulla) {
    Lavoro l;
    l.fine();
    EXPECT_TRUE(l.pagine.empty());
    EXPECT_EQ(l.stampante.operazioni, 0);
}

TEST(Motore, SenzaTimbroConNpaginaZero) {
    Lavoro l;
    l.npagina = 0;
    l.riga({"x", "1"});
    l.fine();
    const std::string tutto = racconta(l.pagine[0]);
    EXPECT_EQ(tutto.find("Stampato"), std::string::npos);
    EXPECT_NE(tutto.find("Lumeria per Windows - "), std::string::npos);
    EXPECT_EQ(l.npagina, 0);
}

TEST(Motore, UnaColonnaNonDescrittaMostraQuelCheLaTavolaTiene) {
    Lavoro l;
    l.tab[3].coltitolo = "Ieri";
    l.tab[3].collarg = 2;
    l.tab[3].coltipo = 1;
    l.tab[3].coltesto = "7,5";
    l.tab[0].colx = 3;
    l.riga({"x", "1"});
    l.riga({"y", "2"});
    l.fine();
    const std::string tutto = racconta(l.pagine[0]);
    EXPECT_NE(tutto.find("text 8550 2300 [7,50]"), std::string::npos);
    EXPECT_NE(tutto.find("text 8550 2500 [7,50]"), std::string::npos) << "printed text is read again";
    EXPECT_NE(tutto.find("text 8550 1900 [Ieri]"), std::string::npos);
}

}  // namespace
}  // namespace ambra
