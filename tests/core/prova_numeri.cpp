#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

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

// A random amount as decimal text with `decimali` decimals, and its digits as one integer.
struct Caso {
    std::string testo;
    long long intero;
};
Caso caso_a_caso(std::mt19937_64& r, int decimali) {
    long long tetto = 10;
    for (auto n = r() % 10; n > 0; --n) tetto *= 10;
    const auto x = static_cast<long long>(r() % static_cast<unsigned long long>(tetto));
    std::string s = std::to_string(x);
    if (s.size() <= static_cast<std::size_t>(decimali))
        s.insert(0, static_cast<std::size_t>(decimali) + 1 - s.size(), '0');
    s.insert(s.size() - static_cast<std::size_t>(decimali), ".");
    return r() % 3 == 0 ? Caso{"-" + s, -x} : Caso{s, x};
}

std::string con_punti(long long cent) {
    const bool meno = cent < 0;
    std::string s = std::to_string(meno ? -cent : cent);
    if (s.size() < 3) s.insert(0, 3 - s.size(), '0');
    std::string r = "," + s.substr(s.size() - 2);
    s.resize(s.size() - 2);
    while (s.size() > 3) {
        r = "." + s.substr(s.size() - 3) + r;
        s.resize(s.size() - 3);
    }
    return (meno ? "-" : "") + s + r;
}

TEST(Numeri, ImportiACasoControLAritmeticaDegliInteri) {
    std::mt19937_64 r(20240315);
    for (int i = 0; i < 20000; ++i) {
        // Half away from zero on the decimal text: three decimals to two.
        const Caso c = caso_a_caso(r, 3);
        const double x = std::strtod(c.testo.c_str(), nullptr);
        const long long modulo = c.intero < 0 ? -c.intero : c.intero;
        const long long cent = (modulo + 5) / 10 * (c.intero < 0 ? -1 : 1);
        std::string voluto = x == 0 ? "" : con_punti(cent);
        if (x < 0 && cent == 0) voluto = "-0,00";
        EXPECT_EQ(fmtimporto(euro(), x), voluto) << c.testo;
        // What is shown reads back as the amount that was shown.
        if (x != 0) {
            EXPECT_EQ(valimporto_di(voluto), std::strtod((std::to_string(cent) + "e-2").c_str(), nullptr));
        }
    }
}

TEST(Numeri, TestoNumeroRileggeIlDouble) {
    std::mt19937_64 r(7);
    for (int i = 0; i < 20000; ++i) {
        const Caso c = caso_a_caso(r, static_cast<int>(r() % 5));
        const double x = std::strtod(c.testo.c_str(), nullptr);
        EXPECT_EQ(leggi_numero(testo_numero(x)), x) << c.testo;
    }
}

TEST(Numeri, ArrotondaEPercentualeACaso) {
    std::mt19937_64 r(11);
    for (int i = 0; i < 20000; ++i) {
        // Amounts of four decimals: floor((x + 0.51 cents)) told in ten-thousandths.
        const Caso c = caso_a_caso(r, 4);
        if (std::llabs(c.intero) > 100000000000LL || ((c.intero % 100) + 100) % 100 == 49) continue;
        const double x = std::strtod(c.testo.c_str(), nullptr);
        const long long base = c.intero + 51;
        const long long cent = base >= 0 ? base / 100 : -((-base + 99) / 100);
        EXPECT_NEAR(arrotonda(euro(), x) * 100, static_cast<double>(cent), 1e-4) << c.testo;
    }
}

// On both sides of the place where the quick road ends.
TEST(Numeri, AlLimiteDellaViaSvelta) {
    const struct {
        double x;
        const char* testo;
    } casi[] = {{9999999.98, "9.999.999,98"},
                {9999999.99, "9.999.999,99"},
                {9999999.994, "9.999.999,99"},
                {9999999.995, "10.000.000,00"},
                {10000000, "10.000.000,00"},
                {10000000.01, "10.000.000,01"},
                {-9999999.99, "-9.999.999,99"},
                {-10000000, "-10.000.000,00"},
                {42949672.96, "42.949.672,96"},
                {1234567890.12, "1.234.567.890,12"},
                {1.005, "1,01"},
                {0.005, "0,01"}};
    for (const auto& c : casi) EXPECT_EQ(formatta(c.x, Formato::due_decimali), c.testo) << c.x;
}

// Lire are those of a line that is "0" and nothing else.
TEST(Numeri, SiArrotondaALireSoloConLoZeroScritto) {
    Cambio c = euro();
    for (const auto& [riga, arrotondato] :
         {std::pair{"0", 2.0}, {"00", 1.5}, {"", 1.5}, {" 0", 1.5}, {"1", 1.5}}) {
        c[1] = riga;
        EXPECT_EQ(arrotonda(c, 1.5), arrotondato) << riga;
    }
}

TEST(Numeri, NumeriAssurdi) {
    EXPECT_EQ(fmtimporto(euro(), 1e300).substr(0, 5), "1.000");
    EXPECT_EQ(testo_numero(1e300).size(), 301u);
    EXPECT_EQ(leggi_numero(std::string(400, '9')), 0);
    EXPECT_EQ(leggi_numero("12345678901234567890"), 12345678901234567890.0);
    EXPECT_EQ(leggi_numero("nan"), 0);
    EXPECT_EQ(leggi_numero("inf"), 0);
    EXPECT_EQ(formatta(0.4, Formato::intero_o_nulla), "");
    EXPECT_EQ(formatta(1234567.5, Formato::intero), "1.234.568");
    EXPECT_EQ(formatta(-2.0005, Formato::tre_decimali), "-2,001");
    Errore err;
    EXPECT_EQ(leggi_intero("40000", err, 7), 7);
    EXPECT_EQ(err.numero, 6);
}

}  // namespace
