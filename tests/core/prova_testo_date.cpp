#include <gtest/gtest.h>

#include "core/date.h"
#include "core/testo.h"

using namespace ambra;

namespace {

TEST(Testo, OgniByteVaEViene) {
    for (int b = 0; b < 256; ++b) {
        const std::string s(1, static_cast<char>(b));
        EXPECT_EQ(da_utf8(a_utf8(s)), s) << b;
    }
}

TEST(Testo, FuoriDaWindows1252DiventaPuntoInterrogativo) {
    EXPECT_EQ(da_utf8("Ω"), "?");
    EXPECT_EQ(da_utf8("a😀b"), "a?b");
    EXPECT_EQ(da_utf8("€"), "\x80");
    EXPECT_EQ(da_utf8("\xC3"), "?");       // cut off
    EXPECT_EQ(da_utf8("\xFF\xFE"), "??");  // no UTF-8 at all
    EXPECT_EQ("Città è già"_it, "Citt\xE0 \xE8 gi\xE0");
}

TEST(Testo, MaiuscoloMaNonIl255) {
    EXPECT_EQ(maiuscolo("caff\xE8 \x9A\x9C\x9E \xF7\xDF\xFF"), "CAFF\xC8 \x8A\x8C\x8E \xF7\xDF\xFF");
}

TEST(Testo, RifilaSoloIBianchi) {
    EXPECT_EQ(rifila("  a b  "), "a b");
    EXPECT_EQ(rifila("\ta "), "\ta");
    EXPECT_EQ(rifila("    "), "");
}

TEST(Testo, Puliscitesto) {
    EXPECT_EQ(puliscitesto("a\x01\x1F\xFF\xFE b\x7F"), "a\xFE b\x7F");
}

TEST(Testo, ParteDiTesto) {
    EXPECT_EQ(medio("abcdef", 3, 2), "cd");
    EXPECT_EQ(medio("abc", 3, 9), "c");
    EXPECT_EQ(medio("abc", 4), "");
    EXPECT_EQ(destra("abc", 2), "bc");
    EXPECT_EQ(destra("abc", 9), "abc");
    EXPECT_EQ(con_zeri(1000, 3), "000");
    EXPECT_EQ(con_zeri(7, 3), "007");
    EXPECT_EQ(riempi("abc", 2), "ab");
}

TEST(Date, ProvaDiData) {
    for (const char* s : {"29/02/2024", "1/1/2012", "01-02-2012", "31.12.1999", " 05/06/2020 "})
        EXPECT_TRUE(data_valida(s)) << s;
    for (const char* s :
         {"", "29/02/2023", "29/02/2100", "31/04/2024", "00/01/2024", "1/13/2024", "1/1/24", "01/01/20244",
          "01 01 2024", "01012024", "aa/bb/cccc", "1//2024", "01/01/2024x", "  /  /    "})
        EXPECT_FALSE(data_valida(s)) << s;
}

TEST(Date, Conversioni) {
    EXPECT_EQ(mostra_aaaammgg("20120331"), "31/03/2012");
    EXPECT_EQ(mostra_ggmmaaaa("31032012"), "31/03/2012");
    EXPECT_EQ(in_aaaammgg("31/03/2012"), "20120331");
    EXPECT_EQ(in_ggmmaaaa("31/03/2012"), "31032012");
    EXPECT_EQ(da_ggmmaaaa_a_aaaammgg("31032012"), "20120331");
    EXPECT_EQ(mostra_aaaammgg("        "), "  /  /    ");
    EXPECT_EQ(in_ggmmaaaa(""), "");
    EXPECT_EQ(mostra_aaaammgg("201"), "//201");
}

TEST(Date, DataIso) {
    for (const char* d : {"2024-02-29", "1999-12-31"}) {
        ASSERT_TRUE(data_iso(d)) << d;
        EXPECT_EQ(testo_iso(*data_iso(d)), d);
    }
    for (const char* d : {"", "2023-02-29", "2024-2-29", "29-02-2024", "2024/02/29", "2024-02- 1",
                          "2024-13-01", "2024-02-29T", "0000-01-01"})
        EXPECT_FALSE(data_iso(d)) << d;
}

TEST(Date, PiuGiorni) {
    EXPECT_EQ(piu_giorni({28, 2, 2024}, 1), (Data{29, 2, 2024}));
    EXPECT_EQ(piu_giorni({31, 12, 2023}, 366), (Data{31, 12, 2024}));
    EXPECT_EQ(piu_giorni({5, 1, 2024}, 0), (Data{5, 1, 2024}));
}

TEST(Date, GiornoDellaSettimana) {
    EXPECT_EQ(giorno_settimana({14, 3, 2024}), 4);
    EXPECT_EQ(giorno_settimana({16, 6, 2024}), 0);
    EXPECT_EQ(giorno_settimana({1, 1, 2000}), 6);
    EXPECT_EQ(giorno_settimana({29, 2, 2024}), 4);
}

}  // namespace
