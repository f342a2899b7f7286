// The arithmetic of a document, in tables and against rules stated independently of the code.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <random>

#include "core/testo.h"
#include "tests/invoices/testi_calcolo.h"
#include "tests/supporto/seme.h"

using namespace ambra;

namespace {

Cambio cambio(const char* riga1 = "1") {
    Cambio c;
    c[1] = riga1;
    return c;
}

// ---- the row of VAT ----

TEST(RigaIva, PerTabella) {
    const struct {
        double aliquota, ritenuta, imponibile;
        const char *iva, *rac;
    } casi[] = {
        {22, 0, 333.33, "73.33", "-"},  // 7333.26 + 0.51 is 7333.77
        {22, 0, 100, "22", "-"},
        {22, 20, 100, "22", "20"},
        {0, 0, 100, "0", "-"},  // a rate of 0 writes 0
        {22, 20, 0, "0", "0"},
        {10, 4, 33.33, "3.33", "1.33"},
        {4, 0, 0.12, "0", "-"},     // 0.48 stays below
        {7, 0, 0.07, "0.01", "-"},  // 0.49 is over
        {22, -4, 100, "22", "-"},   // a rate below 0 is no withholding
        {22, 0.5, 100, "22", "0.5"},
        {22, 20, -100, "-22", "-20"},
        {22, 20, -0.03, "-0.01", "-0.01"},
        {21, 0, 33.33, "7", "-"},
    };
    for (const auto& c : casi) {
        const RigaIva r = riga_iva(cambio(), c.aliquota, c.ritenuta, c.imponibile);
        EXPECT_EQ(testo_numero(r.iva), c.iva) << c.aliquota << " on " << c.imponibile;
        EXPECT_EQ(testo(r.ritenuta), c.rac) << c.ritenuta << " on " << c.imponibile;
    }
}

TEST(RigaIva, InLireArrotondaInAlto) {
    const RigaIva r = riga_iva(cambio("0"), 20, 4, 1001);
    EXPECT_EQ(testo_numero(r.iva), "201");  // 200.2 + 0.99
    EXPECT_EQ(testo(r.ritenuta), "41");     // 40.04 + 0.99
}

// In cents and hundredths of a per cent, with integers alone.
TEST(RigaIva, ControGliInteri) {
    std::mt19937 caso(seme_di_prova());
    std::uniform_int_distribution<long> centesimi(0, 100'000'000), aliquote(0, 40);
    for (int i = 0; i < 20000; ++i) {
        const long cent = centesimi(caso), p = aliquote(caso);
        const double iva = riga_iva(cambio(), double(p), 0, double(cent) / 100).iva;
        // x * p is in cents: its whole part, and one more from .49 of a cent on
        const long prodotto = cent * p;
        const long attesi = prodotto / 100 + (prodotto % 100 >= 49 ? 1 : 0);
        if (prodotto % 100 == 49) {  // the border itself may fall to either side of a binary fraction
            ASSERT_LE(std::labs(std::lround(iva * 100) - attesi), 1);
        } else {
            ASSERT_EQ(std::lround(iva * 100), attesi) << cent << " cents at " << p;
        }
    }
}

// ---- the sums ----

TEST(Calctot, SommaSenzaArrotondare) {
    Dettaglio d;
    d.impon = {100, 200.505, 0, 0, 0, 0, 0, 0.001};
    d.ivai = {22, 20.05};
    d.esent = {0, 0, 7.5};
    d.rac = {20};
    const Somme s = calctot(d);
    EXPECT_DOUBLE_EQ(s.impon, 300.506);
    EXPECT_DOUBLE_EQ(s.ivai, 42.05);
    EXPECT_DOUBLE_EQ(s.esent, 7.5);
    EXPECT_DOUBLE_EQ(s.rac, 20);
    EXPECT_DOUBLE_EQ(s.totale, 350.056);
    EXPECT_DOUBLE_EQ(s.netto(), 330.056);
}

TEST(Calctot, OgniRigaContaUnaVolta) {
    for (std::size_t i = 0; i < kCodiciIva; ++i) {
        Dettaglio d;
        d.impon[i] = 1;
        d.ivai[i] = 10;
        d.esent[i] = 100;
        d.rac[i] = 1000;
        const Somme s = calctot(d);
        EXPECT_EQ(s.totale, 111);
        EXPECT_EQ(s.netto(), -889);
    }
}

// ---- the term ----

TEST(Termine, DalCodice) {
    const struct {
        const char* codice;
        std::array<int, 4> mesi;
        bool fine;
        int giorni, rate;
    } casi[] = {{"001002003000F000", {1, 2, 3, 0}, true, 0, 3},
                {"", {0, 0, 0, 0}, false, 0, 1},
                {"000000000000N000", {0, 0, 0, 0}, false, 0, 1},
                {"001000003000N000", {1, 0, 3, 0}, false, 0, 2},  // a gap counts on
                {"000000000012F010", {0, 0, 0, 12}, true, 10, 2},
                {"012024036048F031", {12, 24, 36, 48}, true, 31, 4},
                {"001", {1, 0, 0, 0}, false, 0, 1},
                {"001002003000f000", {1, 2, 3, 0}, false, 0, 3},  // F alone is the mark
                {"xxxyyyzzzwwwFqqq", {0, 0, 0, 0}, true, 0, 1},
                {"  1  2        N", {1, 2, 0, 0}, false, 0, 2}};
    for (const auto& c : casi) {
        const Termine t = termine_di(c.codice);
        EXPECT_EQ(t.mesi, c.mesi) << c.codice;
        EXPECT_EQ(t.fine, c.fine) << c.codice;
        EXPECT_EQ(t.giorni, c.giorni) << c.codice;
        EXPECT_EQ(t.rate(), c.rate) << c.codice;
    }
}

// ---- the instalments ----

TEST(Calcrate, PerTabella) {
    const struct {
        const char* codice;
        double netto;
        const char* rate;
    } casi[] = {{"001002003000N000", 100, "33.34 33.33 33.33 -"},
                {"001002003000N000", 100.01, "33.33 33.34 33.34 -"},
                {"001002003000N000", 200, "66.66 66.67 66.67 -"},
                {"001000003000N000", 100.01, "50 - 50.01 -"},
                {"000000000000N000", 100.01, "100.01 - - -"},
                {"", 122, "122 - - -"},
                {"001002003004N000", 0, "0 0 0 0"},
                {"001002003004N000", -100.01, "-25.01 -25 -25 -25"},
                {"001002003004N000", 0.01, "0.01 0 0 0"},
                {"001002000000N000", 0.01, "0 0.01 - -"}};
    for (const auto& c : casi)
        EXPECT_EQ(unite(calcrate(cambio(), termine_di(c.codice), c.netto)), c.rate)
            << c.codice << " " << c.netto;
}

TEST(Calcrate, InLire) {
    EXPECT_EQ(unite(calcrate(cambio("0"), termine_di("001002003000N000"), 1000)), "334 333 333 -");
}

// The instalments add up to the net, to the cent; all but the first are equal, whole cents, and as near to
// an even share as the rounding of the archive allows.
TEST(Calcrate, LeRateFannoIlNetto) {
    std::mt19937 caso(seme_di_prova());
    std::uniform_int_distribution<long> centesimi(-10'000'000, 100'000'000);
    std::uniform_int_distribution<int> mesi(0, 3);
    for (int i = 0; i < 20000; ++i) {
        Termine t;
        for (auto& m : t.mesi) m = mesi(caso);
        const long netto = centesimi(caso);
        const Importi rate = calcrate(cambio(), t, double(netto) / 100);
        long somma = 0;
        std::optional<long> rata;
        for (std::size_t k = 0; k < kRate; ++k) {
            ASSERT_EQ(rate[k].has_value(), k == 0 || t.mesi[k] > 0);
            if (!rate[k]) continue;
            const double testuale = leggi_numero(testo_numero(*rate[k]));
            const long cent = std::lround(testuale * 100);
            ASSERT_NEAR(testuale * 100, double(cent), 1e-4);
            somma += cent;
            if (k == 0) continue;
            ASSERT_EQ(cent, rata.value_or(cent));
            rata = cent;
            ASSERT_LE(std::fabs(double(cent) - double(netto) / t.rate()), 0.52);
        }
        ASSERT_EQ(somma, netto);
    }
}

}  // namespace
