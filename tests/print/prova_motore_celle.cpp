// The print engine: what becomes of one cell or heading, its number, its cut, its place.
#include <gtest/gtest.h>

#include <random>

#include "tests/print/lavoro_motore.h"

namespace ambra {
namespace {

TEST(MotoreCelle, IlTitoloTagliatoRestaTagliato) {
    Lavoro l;
    l.colonne({{"Intestazione", 1, 0}, {"Mezza riga", 15, 1}, {"AB CD", 1, 1}});
    // 8000 twips over 17: a narrow column is 470 wide, four characters.
    for (int i = 0; i < 78; ++i) l.riga({"x", "1", "2"});
    EXPECT_EQ(l.tab[1].coltitolo, "Inte");
    l.fine();
    EXPECT_EQ(l.tab[2].coltitolo, "Mezza riga");
    EXPECT_EQ(l.tab[3].coltitolo, "AB C");
    ASSERT_EQ(l.pagine.size(), 2u);
    for (const auto& p : l.pagine) EXPECT_NE(racconta(p).find("text 1050 1900 [Inte]"), std::string::npos);
}

TEST(MotoreCelle, IlTitoloTagliatoTieneIBianchi) {
    // A heading keeps the blanks before the dropped character, and its right edge counts them.
    Lavoro l;
    l.tab[0].paginadx = 250;
    l.colonne({{"AB  CD", 4, 1}, {"", 16, 0}});
    l.riga({"", ""});
    l.fine();
    EXPECT_EQ(l.tab[1].coltitolo, "AB  ");
    EXPECT_NE(racconta(l.pagine[0]).find("text 850 1900 [AB  ]"), std::string::npos);
}

TEST(MotoreCelle, LaCellaTagliataPerdeAncheIBianchi) {
    Lavoro l;
    EXPECT_EQ(l.cella("AB  CD", 0, 300), "AB");
    EXPECT_EQ(l.cella("ABCD  ", 0, 400), "ABCD  ") << "what fits when trimmed stays as it stands";
    EXPECT_EQ(l.cella("  ABCDE", 0, 400), "ABCD");
    EXPECT_EQ(l.cella("ABCDE", 0, 50), "");
    EXPECT_EQ(l.cella("", 0, 50), "");
}

TEST(MotoreCelle, LeCelleNumeriche) {
    struct Caso {
        const char* testo;
        int tipo;
        const char* stampato;
    };
    const Caso casi[] = {
        {"1.234,50", 1, "1.234,50"},
        {"1234,5", 1, "1.234,50"},
        {"-1.000,25", 1, "-1.000,25"},
        {"0,00", 1, ""},
        {"0", 1, ""},
        {"", 1, ""},
        {"Totale", 1, ""},
        {"12 mele", 1, "12,00"},
        {"  7,1  ", 1, "7,10"},
        {"1,005", 1, "1,01"},
        {"(1.000,00)", 1, "(1.000,00)"},
        {"1.000 (", 3, "1.000 ("},
        {"1.234,50", 2, "1.234,50"},
        {"1,2345", 3, "1,235"},
        {"1.234,50", 3, "1.234,500"},
        {"0", 3, ""},
        {"1.234,50", 4, "1.235"},
        {"0,4", 4, ""},
        {" 12", 4, "12"},
        {"1.234,50", 5, "1234.50"},
        {"a.b,c", 5, "ab.c"},
        {"1..5", 5, "1.5"},
        {"0,00", 5, "0.00"},
        {"1.234,50", 0, "1.234,50"},
        {"0,00", 0, "0,00"},
        {"1.234,50", -1, "1.234,50"},
        {"---", 1, "---"},
        {"===abc", 2, "===abc"},
        {"  ---", 1, "---"},
        {"--", 1, ""},
        {"--- 1.5,", 1, "--- 15."},
    };
    for (const Caso& k : casi) {
        Lavoro l;
        EXPECT_EQ(l.cella(k.testo, k.tipo), k.stampato) << k.testo << " type " << k.tipo;
    }
}

TEST(MotoreCelle, InLireSiArrotondaAllUnita) {
    Lavoro l;
    l.cambio[1] = "0";
    EXPECT_EQ(l.cella("1.234,50", 1), "1.235");
    EXPECT_EQ(l.cella("1.234,50", 2), "1.234,50");
    EXPECT_EQ(l.cella("0,40", 1), "0");
    l.cambio[1] = "abc";
    EXPECT_EQ(l.cella("1.234,50", 1), "1.235");
    l.cambio[1] = "2";
    EXPECT_EQ(l.cella("1.234,50", 1), "1.234,50");
}

TEST(MotoreCelle, UnaCorsaDiTrattiniELargaQuantoLaColonna) {
    for (const int tipo : {0, 1, 3, 5}) {
        Lavoro l;
        EXPECT_EQ(l.cella(std::string(200, '-'), tipo, 4000), std::string(40, '-')) << tipo;
        EXPECT_EQ(l.cella(std::string(200, '='), tipo, 4050), std::string(40, '=')) << tipo;
    }
}

TEST(MotoreCelle, UnImportoLargoQuantoLaColonnaEsceASinistra) {
    Lavoro l;
    l.cella("12345,67", 5, 800);
    l.fine();
    EXPECT_NE(racconta(l.pagine[0]).find("text 950 2300 [12345.67] Quattro"), std::string::npos);
    EXPECT_EQ(l.cella("912345,67", 5, 800), "912345.6") << "the last digit goes without a sign";
}

TEST(MotoreCelle, UnTipoNegativoNonSiPosiziona) {
    Lavoro l;
    l.colonne({{"A", 1, 0}, {"B", 1, -1}});
    l.riga({"x", "y"});
    l.fine();
    const std::string tutto = racconta(l.pagine[0]);
    EXPECT_NE(tutto.find("text 0 2300 [y]"), std::string::npos);
    EXPECT_NE(tutto.find("text 8850 1900 [B]"), std::string::npos) << "its heading stands right";
}

// ---- the cut, against the plain loop ----

std::string taglio_semplice(std::string testo, double larghezza, bool cella) {
    for (;;) {
        const std::string t(rifila(testo));
        if (static_cast<double>(t.size()) * 100 <= larghezza) return testo;
        testo = t.empty() ? "" : t.substr(0, t.size() - 1);
        if (cella) testo = std::string(rifila(testo));
        if (t.size() < 2) return testo;
    }
}

TEST(MotoreCelle, IlTaglioSveltoDaQuelloPassoPasso) {
    constexpr unsigned kSeme = 20240315;
    std::mt19937 caso(kSeme);
    const auto tra = [&](int a, int b) { return std::uniform_int_distribution<int>(a, b)(caso); };
    for (int giro = 0; giro < 3000; ++giro) {
        std::string testo;
        const int n = giro % 100 == 0 ? tra(2000, 10000) : tra(0, 300);
        const int bianchi = tra(0, 9);
        for (int i = 0; i < n; ++i) testo += tra(0, 9) < bianchi ? ' ' : static_cast<char>('a' + tra(0, 25));
        const int larghezza = tra(0, 4) == 0 ? tra(1, 20) * 10 : tra(1, 800) * 10;
        Lavoro l;
        ASSERT_EQ(l.cella(testo, 0, larghezza), taglio_semplice(testo, larghezza, true))
            << "round " << giro << " of seed " << kSeme;
        l.tab[1].coltitolo = testo;
        l.fine();
        ASSERT_EQ(l.tab[1].coltitolo, taglio_semplice(testo, larghezza, false))
            << "heading of round " << giro << " of seed " << kSeme;
    }
}

TEST(MotoreCelle, CelleDiDiecimilaCaratteri) {
    for (const int tipo : {0, 1, 2, 3, 4, 5}) {
        Lavoro l;
        EXPECT_EQ(l.cella(std::string(10000, 'x'), tipo).size(), tipo == 0 || tipo == 5 ? 80u : 0u);
        EXPECT_LE(l.cella(std::string(10000, '9'), tipo).size(), 80u);
        EXPECT_LE(l.cella(std::string(10000, '.'), tipo).size(), 80u);
        EXPECT_LE(l.cella(std::string(10000, ','), tipo).size(), 80u);
        EXPECT_EQ(rifila(l.cella(std::string(10000, ' '), tipo)), "");
        l.tab[1].coltitolo = std::string(10000, 'w');
        l.fine();
        EXPECT_EQ(l.tab[1].coltitolo.size(), 80u);
    }
}

}  // namespace
}  // namespace ambra
