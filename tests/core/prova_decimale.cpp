#include <gtest/gtest.h>

#include "core/decimale.h"

using namespace ambra;

namespace {

Decimale d(const char* s) {
    return Decimale::leggi(s).value();
}

TEST(Decimale, LeggeEScrive) {
    const struct {
        const char *testo, *centesimi, *breve;
    } casi[] = {{"0", "0.00", "0"},
                {"-0.00", "0.00", "0"},
                {"22.00", "22.00", "22"},
                {" 5.50\n", "5.50", "5.5"},
                {"+1.00", "1.00", "1"},
                {"-12.5", "-12.50", "-12.5"},
                {".5", "0.50", "0.5"},
                {"5.", "5.00", "5"},
                {"000000000000001.10", "1.10", "1.1"},
                {"0.005", "0.01", "0.005"},
                {"-0.005", "-0.01", "-0.005"},
                {"0.00499999", "0.00", "0.00499999"},
                {"1.0050000000000000", "1.01", "1.005"},
                {"0.07", "0.07", "0.07"},
                {"999999999.99", "999999999.99", "999999999.99"}};
    for (const auto& c : casi) {
        const auto x = Decimale::leggi(c.testo);
        ASSERT_TRUE(x) << c.testo;
        EXPECT_EQ(x->testo(), c.centesimi) << c.testo;
        EXPECT_EQ(x->testo_breve(), c.breve) << c.testo;
    }
}

TEST(Decimale, ScriveComeSiLegge) {
    for (const auto& [testo, italiano] : {std::pair{"0", "0,00"},
                                          {"-0.5", "-0,50"},
                                          {"999.999", "1.000,00"},
                                          {"123", "123,00"},
                                          {"-123", "-123,00"},
                                          {"-1234.5", "-1.234,50"},
                                          {"123456789", "123.456.789,00"}})
        EXPECT_EQ(d(testo).testo_italiano(), italiano);
}

TEST(Decimale, RifiutaQuelCheNonEUnNumero) {
    const std::string novanta(90, '9');
    for (const char* s : {"",
                          " ",
                          "-",
                          "+",
                          ".",
                          "1e3",
                          "1,50",
                          "1.000.00",
                          "1 000",
                          "--1",
                          "+-1",
                          "0x10",
                          "NaN",
                          "inf",
                          "1000000000",
                          "1000000000.00",
                          "9999999999999999999",
                          "0.123456789",
                          "1.0a",
                          "\xE2\x82\xAC"
                          "5",
                          novanta.c_str(),
                          "1-"})
        EXPECT_FALSE(Decimale::leggi(s)) << s;
    EXPECT_FALSE(Decimale::leggi(std::string_view("1\0", 2)));
}

TEST(Decimale, SommeSenzaScarti) {
    Decimale s;
    for (int i = 0; i < 1000; ++i) s += d("0.1");
    EXPECT_EQ(s, d("100"));
    EXPECT_EQ(d("0.30") - d("0.10") - d("0.20"), Decimale());
    EXPECT_LT(d("-1"), d("0.00000001"));
    EXPECT_EQ(assoluto(d("-3.5")), d("3.5"));
    EXPECT_EQ(d("12.345").centesimi(), 1235);
    EXPECT_EQ(d("-12.345").centesimi(), -1235);
    EXPECT_EQ(Decimale::di_centesimi(-1235), d("-12.35"));
}

TEST(Decimale, PercentualiEProporzioni) {
    const struct {
        const char *a, *percento, *esito;
    } percentuali[] = {
        {"1000.00", "4.00", "40.00"}, {"333.33", "22", "73.33"}, {"0.25", "10", "0.03"},
        {"-0.25", "10", "-0.03"},     {"0.24", "10", "0.02"},    {"999999999.99", "100", "999999999.99"},
        {"137.77", "20", "27.55"},    {"0.125", "4.0", "0.01"},  {"0.1249", "4.0", "0.00"}};
    for (const auto& c : percentuali) EXPECT_EQ(percentuale(d(c.a), d(c.percento)).testo(), c.esito) << c.a;
    EXPECT_EQ(d("-137.77") * d("0.2"), d("-27.554"));
    EXPECT_EQ(d("0.00000001") * d("0.5"), Decimale());
    EXPECT_FALSE((d("100000") * d("10000")).in_misura());
    EXPECT_EQ(per_su(d("52.00"), d("100"), d("26")).testo(), "200.00");
    EXPECT_EQ(per_su(d("999999999.99"), d("999999999.99"), d("999999999.99")).testo(), "999999999.99");
    EXPECT_EQ(per_su(d("-10"), d("1"), d("-3")).testo(), "3.33");
    EXPECT_EQ(per_su(d("10"), d("-2"), d("3")).testo(), "-6.67");
    // A hair under half a cent is no half cent.
    EXPECT_EQ(per_su(d("0.01"), d("49999999.99"), d("100000000")).testo(), "0.00");
    EXPECT_EQ(per_su(d("0.01"), d("50000000"), d("100000000")).testo(), "0.01");
}

TEST(Decimale, FuoriMisuraRestaFuoriMisura) {
    const Decimale fuori = d("999999999") + d("1");
    EXPECT_FALSE(fuori.in_misura());
    EXPECT_FALSE((fuori - fuori).in_misura());
    EXPECT_FALSE((-fuori).in_misura());
    EXPECT_FALSE(percentuale(fuori, d("1")).in_misura());
    EXPECT_FALSE(per_su(d("1"), d("1"), d("0")).in_misura());
    EXPECT_FALSE(per_su(d("999999999"), d("999999999"), d("0.00000001")).in_misura());
    EXPECT_FALSE(Decimale::di_centesimi(100'000'000'000).in_misura());
    EXPECT_TRUE(Decimale::di_centesimi(99'999'999'999).in_misura());
    EXPECT_EQ(fuori.testo(), "");
    EXPECT_EQ(fuori.testo_breve(), "");
    EXPECT_EQ(fuori.centesimi(), 0);
}

}  // namespace
