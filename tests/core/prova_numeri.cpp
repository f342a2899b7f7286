#include <gtest/gtest.h>

#include "core/numeri.h"

using namespace ambra;

namespace {

Cambio euro() {
    Cambio c;
    c[1] = "1";
    return c;
}

TEST(Numeri, FmtimportoPerTabella) {
    const struct {
        double x;
        const char* testo;
    } casi[] = {{0, ""},
                {-0.0, ""},
                {0.001, "0,00"},
                {1234.5, "1.234,50"},
                {1.005, "1,01"},
                {-1.5, "-1,50"},
                {999.999, "1.000,00"},
                {1e6, "1.000.000,00"},
                {0.1 + 0.2, "0,30"},
                {2.675, "2,68"},
                {123456789012.345, "123.456.789.012,35"}};
    for (const auto& c : casi) EXPECT_EQ(fmtimporto(euro(), c.x), c.testo) << c.x;
}

TEST(Numeri, ArrotondaColSuoScarto) {
    const struct {
        double x, y;
    } casi[] = {{2.5, 2.5},     {0.005, 0.01},   {0.0048, 0},    {0.0049, 0.01},
                {1.2349, 1.24}, {-1.235, -1.23}, {-1.236, -1.24}};
    for (const auto& c : casi) EXPECT_EQ(arrotonda(euro(), c.x), c.y) << c.x;
}

TEST(Numeri, Applicaperc) {
    EXPECT_EQ(applicaperc(euro(), 20, 100), 20);
    EXPECT_EQ(applicaperc(euro(), 21, 33.33), 7);
    EXPECT_EQ(applicaperc(euro(), 22, 333.33), 73.33);
}

TEST(Numeri, ValimportoCambiaIlTesto) {
    const struct {
        const char* s;
        double v;
        const char* dopo;
    } casi[] = {{"", 0, ""},
                {"  1.234 ", 1234, "1234"},
                {"12,5", 12.5, "12.5"},
                {"-1.000,25", -1000.25, "-1000.25"},
                {"parola", 0, "parola"},
                {"1..234", 1.234, "1.234"},
                {"1.,5", 1.5, "1.5"},
                {"1.234,50", 1234.5, "1234.50"}};
    for (const auto& c : casi) {
        std::string s = c.s;
        EXPECT_EQ(valimporto(s), c.v) << c.s;
        EXPECT_EQ(s, c.dopo);
    }
}

TEST(Numeri, TestoNumero) {
    const struct {
        double x;
        const char* s;
    } casi[] = {{0, "0"},
                {-0.0, "0"},
                {220, "220"},
                {73.33, "73.33"},
                {33.339999999999996, "33.34"},
                {0.5, "0.5"},
                {-0.05, "-0.05"},
                {1e15, "1000000000000000"},
                {123456789, "123456789"}};
    for (const auto& c : casi) EXPECT_EQ(testo_numero(c.x), c.s);
    EXPECT_EQ(testo_con_segno(5), " 5");
    EXPECT_EQ(testo_con_segno(-5), "-5");
}

TEST(Numeri, LetturaIndulgente) {
    const struct {
        const char* s;
        double v;
    } casi[] = {{"", 0},    {"  7 ", 7}, {".5", 0.5}, {"-.5", -0.5}, {"12abc", 12}, {"1.2.3", 1.2},
                {"abc", 0}, {"-", 0},    {".", 0},    {"1e300", 1},  {"+3", 3},     {"20,5", 20}};
    for (const auto& c : casi) EXPECT_EQ(leggi_numero(c.s), c.v) << c.s;
}

}  // namespace
