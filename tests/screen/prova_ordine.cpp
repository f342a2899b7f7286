// The generic order of the grid, every pair of a list of awkward texts.
#include "screen/griglia.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace ambra {
namespace {

std::vector<std::string> colonna(const Griglia& g, int c) {
    std::vector<std::string> r;
    for (int i = 1; i < g.righe(); ++i) r.push_back(g.testo(i, c));
    return r;
}

Griglia& riempi(Griglia& g, const std::vector<std::string>& testi) {
    g.colonne({{"A", 100}, {"B", 100}});
    int n = 0;
    for (const auto& t : testi) g.aggiungi({t, std::to_string(++n)});
    return g;
}

TEST(OrdineGenerico, OgniCoppia) {
    // Numbers by value, then what follows them; other texts after, by character code.
    const std::vector<std::string> in_ordine = {
        "-5",      "-0.5", "0",   ".5", "1", "1.5", "9", "10",    "12",    "12 ", "12/A",   "12B",
        "13",      "",     " ",   "!x", "-", ".",   "A", "ROSSI", "Rossi", "a",   "zzzzzz", "zzzzzz99999999",
        "zzzzzzz", "\xC0", "\xFF"};
    for (std::size_t a = 0; a < in_ordine.size(); ++a) {
        for (std::size_t b = 0; b < in_ordine.size(); ++b) {
            const int c = confronta_generico(in_ordine[a], in_ordine[b]);
            EXPECT_EQ(c < 0, a < b) << '[' << in_ordine[a] << "] [" << in_ordine[b] << ']';
            EXPECT_EQ(c == 0, a == b) << '[' << in_ordine[a] << "] [" << in_ordine[b] << ']';
        }
    }
    std::vector<std::string> mescolato = in_ordine;
    std::mt19937 caso(7);
    std::shuffle(mescolato.begin(), mescolato.end(), caso);
    Griglia g;
    riempi(g, mescolato).ordina(0, Ordine::generico);
    EXPECT_EQ(colonna(g, 0), in_ordine);
}

// A total and what fills the list stay behind the data, whatever they hold.
TEST(Griglia, LaCodaRestaInFondo) {
    Griglia g;
    riempi(g, {"5", "z", "a", "0"});
    const long chiavi[] = {-1, 7, 8, 0};
    for (int r = 1; r <= 4; ++r) g.chiave(r, chiavi[r - 1]);
    g.ordina_dati(0, Ordine::generico);
    EXPECT_EQ(colonna(g, 0), (std::vector<std::string>{"a", "z", "5", "0"}));
    g.ordina(0, Ordine::generico);
    EXPECT_EQ(colonna(g, 0), (std::vector<std::string>{"0", "5", "a", "z"}));
}

}  // namespace
}  // namespace ambra
