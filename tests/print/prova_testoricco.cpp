// The holder of a letter: what is picked, replaced, put in keeps its format.
#include <gtest/gtest.h>

#include "tests/print/documento_rtf.h"

namespace ambra::rtf {
namespace {

TEST(TestoRicco, Selezione) {
    TestoRicco t;
    t.carica("{\\rtf1 uno {\\b due} tre}");
    t.sel_start(4);
    t.sel_length(3);
    EXPECT_EQ(t.sel_text(), "due");
    t.sel_text("quattro");
    EXPECT_EQ(t.text(), "uno quattro tre");
    EXPECT_TRUE(formato(t.documento(), 4).grassetto && formato(t.documento(), 10).grassetto);
    EXPECT_FALSE(formato(t.documento(), 11).grassetto);
    EXPECT_EQ(t.sel_start(), 11u);
    EXPECT_EQ(t.sel_length(), 0u);
    t.sel_start(1000);
    t.sel_length(1000);
    t.sel_text("!");
    EXPECT_EQ(t.text(), "uno quattro tre!");
    coerente(t.documento());
}

TEST(TestoRicco, MarcheSpezzateTengonoIlFormato) {
    TestoRicco t;
    t.carica("{\\rtf1 $${\\b $25}{\\i 1$$$}x}");
    EXPECT_EQ(t.sostituisci("$$$251$$$", "ROSSI"), 1u);
    EXPECT_EQ(t.text(), "ROSSIx");
    EXPECT_FALSE(formato(t.documento(), 0).grassetto || formato(t.documento(), 4).corsivo);
    coerente(t.documento());
    t.carica("{\\rtf1 {\\b $$$251$$$}x}");
    t.sostituisci("$$$251$$$", "ROSSI");
    EXPECT_TRUE(formato(t.documento(), 4).grassetto);
    EXPECT_FALSE(formato(t.documento(), 5).grassetto);
}

TEST(TestoRicco, Sostituzioni) {
    struct Caso {
        const char *testo, *nuovo, *atteso;
        std::size_t quante;
    };
    const Caso casi[] = {
        {"$$$251$$$", "$$$251$$$", "$$$251$$$", 1},
        {"$$$251$$$$$$251$$$", "a", "aa", 2},
        {"$$$251$$$251$$$", "a", "a251$$$", 1},
        {"$$$$251$$$$", "a", "$a$", 1},
        {"$$$2$$$251$$$51$$$", "", "", 2},  // an empty value brings two halves together
        {"$$$2$$$251$$$51$$$", "x", "$$$2x51$$$", 1},
        {"$$$251$$", "a", "$$$251$$", 0},
        {"", "a", "", 0},
    };
    for (const auto& c : casi) {
        TestoRicco t;
        t.carica(std::string("{\\rtf1 ") + c.testo + "}");
        EXPECT_EQ(t.sostituisci("$$$251$$$", c.nuovo), c.quante) << c.testo;
        EXPECT_EQ(t.text(), c.atteso) << c.testo;
        coerente(t.documento());
    }
}

TEST(TestoRicco, VuotoPrendeTesto) {
    TestoRicco t;
    t.carica("");
    t.sel_text("x");
    EXPECT_EQ(t.text(), "x");
    ASSERT_EQ(t.documento().tratti.size(), 1U);
    EXPECT_EQ(t.documento().tratti[0].n, 1U);
    ASSERT_EQ(t.documento().paragrafi.size(), 1U);
    EXPECT_EQ(t.documento().paragrafi[0].n, 1U);
}

}  // namespace
}  // namespace ambra::rtf
