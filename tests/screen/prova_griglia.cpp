#include <gtest/gtest.h>

#include <random>

#include "screen/griglia.h"

using namespace ambra;

namespace {

Griglia& tre_colonne(Griglia& g) {
    g.colonne({{"Uno", 1000}, {"Due", 500, Allineamento::destra}, {"Tre", kResto}}, 3000, 340);
    return g;
}

std::string colonna(const Griglia& g, int c) {
    std::string r;
    for (int i = 1; i < g.righe(); ++i) r += g.testo(i, c) + "|";
    return r;
}

TEST(Griglia, FormaEResto) {
    Griglia g;
    tre_colonne(g);
    EXPECT_EQ(g.righe(), 1);
    EXPECT_EQ(g.colonna(2).larghezza, 3000 - 340 - 1500);
    EXPECT_EQ(g.testo(0, 1), "Due");
    EXPECT_EQ(g.aggiungi({"a", "b"}), 1);
    EXPECT_EQ(g.testo(1, 2), "");
    g.righe(4);
    EXPECT_EQ(g.righe(), 4);
    EXPECT_EQ(g.testo(3, 0), "");
    g.righe(2);
    EXPECT_EQ(g.testo(1, 0), "a");
    g.righe(0);
    EXPECT_EQ(g.righe(), 1);
}

TEST(Griglia, FuoriDaiLimitiNonSuccedeNulla) {
    Griglia g;
    tre_colonne(g);
    g.scrivi(5, 0, "x");
    g.scrivi(1, 9, "x");
    g.scrivi(-1, -1, "x");
    g.colora(7, 7, 1);
    EXPECT_EQ(g.testo(5, 0), "");
    EXPECT_EQ(g.colore(7, 7), -1);
    g.ordina(9, Ordine::generico);
    g.ordina(-1, Ordine::numerico);
}

TEST(Griglia, OrdineGenerico) {
    Griglia g;
    tre_colonne(g);
    for (const char* s :
         {"ROSSI", "13", "12/B", "12/A", "10", "9", "", "-5", "  7", "abc", "zzzzzz99999999", "12"})
        g.aggiungi({s});
    g.ordina(0, Ordine::generico);
    EXPECT_EQ(colonna(g, 0), "-5|  7|9|10|12|12/A|12/B|13||ROSSI|abc|zzzzzz99999999|");
}

TEST(Griglia, OrdineNumericoEStabile) {
    Griglia g;
    tre_colonne(g);
    int i = 0;
    for (const char* s : {"10", "x", "2.5", "10", "-1", "y", "2.50"}) g.aggiungi({s, std::to_string(i++)});
    g.ordina(0, Ordine::numerico);
    EXPECT_EQ(colonna(g, 0), "-1|x|y|2.5|2.50|10|10|");
    EXPECT_EQ(colonna(g, 1), "4|1|5|2|6|0|3|");
}

TEST(Griglia, ColoriETestiSiMuovonoConLaRiga) {
    Griglia g;
    tre_colonne(g);
    for (const char* s : {"3", "1", "2"}) g.aggiungi({s});
    g.colora(1, 2, 0xFF);
    g.colora_testo_riga(2, 0xAA);
    g.ordina(0, Ordine::generico);
    EXPECT_EQ(g.colore(3, 2), 0xFF);
    EXPECT_EQ(g.colore(1, 2), -1);
    EXPECT_EQ(g.colore_testo_riga(1), 0xAA);
    g.inserisci(1);
    EXPECT_EQ(g.testo(1, 0), "");
    EXPECT_EQ(g.colore(4, 2), 0xFF);
    EXPECT_EQ(g.colore_testo_riga(2), 0xAA);
    g.righe(1);
    g.righe(5);
    EXPECT_EQ(g.colore(4, 2), -1);
}

TEST(Griglia, LaChiaveSiMuoveConLaRiga) {
    Griglia g;
    g.colonne({{"A", 100}});
    for (const char* t : {"3", "1", "2"}) g.chiave(g.aggiungi({t}), 10 + *t - '0');
    g.inserisci(1);
    EXPECT_EQ(g.chiave(1), 0);
    g.scrivi(1, 0, "0");
    g.ordina(0, Ordine::generico);
    for (int r = 1; r <= 4; ++r) EXPECT_EQ(g.chiave(r), r == 1 ? 0 : 9 + r);
    EXPECT_EQ(g.chiave(0), 0);
    EXPECT_EQ(g.chiave(5), 0);
    g.righe(1);
    g.aggiungi();
    EXPECT_EQ(g.chiave(1), 0);
}

TEST(Griglia, LeRigheSiScambianoConTuttoQuelCheHanno) {
    Griglia a, b;
    tre_colonne(a);
    tre_colonne(b);
    a.aggiungi({"x", "y", "z"});
    b.aggiungi({"1", "2", "3"});
    b.aggiungi({"4", "5", "6"});
    b.colora(2, 1, 0xFF);
    b.colora_testo_riga(1, 0xAA);
    b.chiave(2, 7);
    int avvisi = 0;
    a.osservatore = [&] { ++avvisi; };
    a.scambia_righe(b);
    EXPECT_EQ(avvisi, 1);
    ASSERT_EQ(a.righe(), 3);
    ASSERT_EQ(b.righe(), 2);
    EXPECT_EQ(a.testo(2, 2), "6");
    EXPECT_EQ(a.colore(2, 1), 0xFF);
    EXPECT_EQ(a.colore_testo_riga(1), 0xAA);
    EXPECT_EQ(a.chiave(2), 7);
    EXPECT_EQ(b.testo(1, 0), "x");
    EXPECT_EQ(b.chiave(1), 0);
}

TEST(Griglia, RiscrittureAMigliaiaControUnModello) {
    std::mt19937 caso(7);
    Griglia g;
    tre_colonne(g);
    std::vector<std::array<std::string, 3>> modello;
    for (int passo = 0; passo < 20000; ++passo) {
        const auto che = caso() % 10;
        if (modello.empty() || che == 0) {
            g.aggiungi();
            modello.push_back({});
        } else if (che == 1 && modello.size() > 200) {
            g.righe(101);
            modello.resize(100);
        } else {
            const auto r = caso() % modello.size();
            const auto c = caso() % 3;
            const std::string s(caso() % 60, static_cast<char>('a' + caso() % 26));
            g.scrivi(static_cast<int>(r) + 1, static_cast<int>(c), s);
            modello[r][c] = s;
        }
    }
    ASSERT_EQ(g.righe(), static_cast<int>(modello.size()) + 1);
    for (std::size_t r = 0; r < modello.size(); ++r)
        for (std::size_t c = 0; c < 3; ++c)
            ASSERT_EQ(g.testo(static_cast<int>(r) + 1, static_cast<int>(c)), modello[r][c]);
}

}  // namespace
