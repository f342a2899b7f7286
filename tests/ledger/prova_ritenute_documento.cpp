#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numeric>
#include <random>

#include "core/decimale.h"
#include "core/testo.h"
#include "ledger/ritenute_documento.h"
#include "tests/supporto/banco.h"
#include "tests/supporto/seme.h"

using namespace ambra;

namespace {

struct Rata {
    double sca, ver;
    const char* dver;
};
RecFattura documento(const std::vector<Rata>& rate) {
    RecFattura f = fattura_vuota();
    for (std::size_t k = 0; k < rate.size(); ++k) {
        f.sca[k] = rate[k].sca;
        f.ver[k] = rate[k].ver;
        f.dver[k] = rate[k].dver;
    }
    return f;
}

TEST(RitenuteDocumento, QuotePerTabella) {
    const struct {
        std::vector<Rata> rate;
        Centesimi tassa;
        std::vector<Centesimi> quote;
    } casi[] = {
        {{{200, 200, "10032026"}, {200, 200, "10042026"}}, 10001, {5001, 5000}},
        {{{200, 200, "10042026"}, {200, 200, "10032026"}}, 10001, {5001, 5000}},  // by date, then by slot
        {{{200, 200, "10032026"}, {200, 0, ""}}, 10001, {5001}},                  // not settled: no remainder
        {{{200, 199.99, "10032026"}}, 10000, {10000}},                            // 9999.5, half up
        {{{300, 100, "01012026"}, {0, 100, "02012026"}, {0, 100, "03012026"}}, 100, {33, 33, 34}},
        {{{1, 1, "01012026"}, {1, 1, "01012026"}, {1, 1, "01012026"}, {1, 1, "01012026"}}, 2, {1, 1, 0, 0}},
        {{{100, 150, "01012026"}}, 100, {100}},  // never more than the tax
        {{{100, 90, "01012026"}, {0, 90, "02012026"}}, 100, {90, 10}},
        {{{100, 150, "01012026"}, {0, 5, "02012026"}}, 100, {100, 0}},
        {{{0, 10, "01012026"}}, 100, {100}},  // nothing due: settled by anything
        {{{0, 10, "01012026"}, {0, 10, "02012026"}}, 100, {0, 100}},
        {{{100, 50, ""}, {100, 150, "01012026"}}, 101, {25, 76}},          // what has no date comes first
        {{{100, 50, "31022026"}, {100, 150, "01012026"}}, 101, {25, 76}},  // nor is this one
        {{{100, 0, "01012026"}}, 100, {}},
        {{{30000000, 10000000, "01012026"}}, 600000002, {200000001}},  // 200000000.67
        {{{9999999.99, 4999999.99, "01012026"}}, 999999999, {499999999}},
        {{}, 100, {}},
    };
    for (const auto& c : casi) {
        const PagamentiDocumento p = pagamenti(documento(c.rate));
        const auto q = quote(p, c.tassa);
        EXPECT_EQ(std::vector(q.begin(), q.begin() + static_cast<long>(p.quanti)), c.quote) << &c - casi;
        const auto negative = quote(p, -c.tassa);
        for (std::size_t k = 0; k < q.size(); ++k) EXPECT_EQ(negative[k], -q[k]) << &c - casi;
    }
}

TEST(RitenuteDocumento, QuoteACaso) {
    std::mt19937 caso(seme_di_prova());
    const auto fra = [&](int a, int b) { return std::uniform_int_distribution(a, b)(caso); };
    for (int giro = 0; giro < 20000; ++giro) {
        std::vector<Rata> rate;
        for (int k = fra(1, 4); k > 0; --k) {
            const double sca = fra(0, 3) ? fra(1, 99999) / 100.0 : 0;
            rate.push_back({sca, fra(0, 2) ? sca : fra(0, 99999) / 100.0, fra(0, 4) ? "10032026" : ""});
        }
        const PagamentiDocumento p = pagamenti(documento(rate));
        const Centesimi tassa = fra(1, 20000);
        const auto q = quote(p, tassa);
        const Centesimi in_tutto = std::accumulate(q.begin(), q.end(), Centesimi{0});
        ASSERT_LE(in_tutto, tassa);
        for (const Centesimi c : q) ASSERT_GE(c, 0);
        if (p.quanti == 1 && !p.saldato()) {
            const auto di = [](Centesimi c) { return Decimale::di_centesimi(c); };
            ASSERT_EQ(q[0], per_su(di(tassa), di(p.rata[0].pagato), di(p.dovuto)).centesimi());
        }
        if (p.saldato() && p.quanti > 0) {
            ASSERT_EQ(in_tutto, tassa);
        }
    }
}

TEST(RitenuteDocumento, Famiglia) {
    const struct {
        double impon, rac, altro_impon;
        Famiglia famiglia;
    } casi[] = {{1000, 40, 0, Famiglia::lavori},      {1000, 40.05, 0, Famiglia::lavori},
                {1000, 40.06, 0, Famiglia::compensi}, {1000, 39.95, 0, Famiglia::lavori},
                {1000, 39.94, 0, Famiglia::compensi}, {1000, 200, 0, Famiglia::compensi},
                {1000, 40, 500, Famiglia::lavori},    {0, 40, 0, Famiglia::compensi},
                {1000.1, 40, 0, Famiglia::lavori},    {123.45, 4.94, 0, Famiglia::lavori}};
    for (const auto& c : casi) {
        RecFattura f = fattura_vuota();
        f.impon[0] = c.impon;
        f.rac[0] = c.rac;
        f.impon[1] = c.altro_impon;  // a row without tax counts for nothing
        EXPECT_EQ(famiglia(f), c.famiglia) << c.impon << ' ' << c.rac;
    }
}

TEST(RitenuteDocumento, CodiceTributo) {
    const struct {
        const char *inte1, *inte2, *codfis;
        int fisica;
        int codice;
        bool da_controllare;
    } casi[] = {
        {"IMPRESA ROSSI", "", "", 0, 1020, false},
        {"IMPRESA ROSSI", "", "", 1, 1019, false},
        {"IMPRESA ROSSI", "", "RSSMRA60A01L219X", 0, 1019, false},
        {"IMPRESA ROSSI", "", "01234567890", 0, 1020, false},
        {"Rossi Snc", "", "01234567890", 0, 1019, true},
        {"ROSSI SNC DI ROSSI", "", "", 0, 1019, true},
        {"ROSSI S.N.C.", "", "", 0, 1019, true},
        {"ROSSI S.A.S.DI BIANCHI", "", "", 0, 1019, true},
        {"ROSSI SAS", "", "", 0, 1019, true},
        {"ROSSI (SAS)", "", "", 0, 1019, true},
        {"ROSSI & C.", "", "", 0, 1019, true},
        {"ROSSI", "& C. SAS", "", 0, 1019, true},
        {"ROSSI E FIGLI", "SNC", "", 0, 1019, true},
        {"SASSO SRL", "", "", 0, 1020, false},
        {"CASSAS SRL", "", "", 0, 1020, false},
        {"SAS9 SRL", "", "", 0, 1020, false},
        {"COSNC SRL", "", "", 0, 1020, false},
        {"SASÈ SRL", "", "", 0, 1020, false},
        {"ROSSI & CARLI SRL", "", "", 0, 1020, false},
        {"", "", "", 0, 1020, false},
    };
    for (const auto& c : casi) {
        RecFornitore f = fornitore_vuoto(da_utf8(c.inte1));
        f.inte2 = c.inte2;
        f.codfis = c.codfis;
        f.fisica = c.fisica;
        const Percettore p = percettore(f);
        EXPECT_EQ(static_cast<int>(codice_tributo(Famiglia::lavori, p)), c.codice) << c.inte1;
        EXPECT_EQ(p.da_controllare, c.da_controllare) << c.inte1;
        EXPECT_EQ(codice_tributo(Famiglia::compensi, p), CodiceTributo::compensi);
    }
}

TEST(RitenuteDocumento, DataMemorizzata) {
    Testo<8> d;
    const auto leggi = [&](std::string_view s) {
        d = s;
        const auto r = data_memorizzata(d);
        return r ? testo_data(*r) : "";
    };
    EXPECT_EQ(leggi("29022024"), "29/02/2024");
    for (const char* s : {"29022026", "", "00000000", "01130000", "1/2/2024", "xx", "32012024", "01012 24"})
        EXPECT_EQ(leggi(s), "") << s;
}

TEST(RitenuteDocumento, Centesimi) {
    EXPECT_EQ(centesimi(258.15), 25815);
    EXPECT_EQ(centesimi(-1.005), -100);  // the Double is below the half
    EXPECT_EQ(centesimi(0.125), 13);
    for (const double x :
         {1e300, -1e300, std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()})
        EXPECT_EQ(centesimi(x), 0);
}

}  // namespace
