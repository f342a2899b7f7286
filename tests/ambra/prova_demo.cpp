// The demo drive: the same bytes at every run, complete, and true to the formats.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "ambra/demo.h"
#include "records/nome.h"
#include "records/totali.h"
#include "tests/supporto/disco_memoria.h"

using namespace ambra;

namespace {

std::map<std::string, std::string> drive(const Data& oggi, bool intera = false) {
    DiscoMemoria d;
    EXPECT_TRUE(demo::crea(d, {oggi, intera}));
    std::vector<std::string> nomi;
    d.elenca("\\lumdir\\lumora", nomi);
    std::map<std::string, std::string> r;
    for (const auto& n : nomi) d.leggi_tutto(kCartella + n, r[n]);
    return r;
}

template <class R>
R record(const std::string& file, std::size_t n) {
    R r{};
    std::memcpy(static_cast<void*>(&r), file.data() + (n - 1) * sizeof(R), sizeof(R));
    return r;
}

TEST(Demo, GliStessiByteAOgniCorsa) {
    EXPECT_EQ(drive({15, 3, 2024}), drive({15, 3, 2024}));
    EXPECT_NE(drive({15, 3, 2024}), drive({16, 3, 2025}));
}

TEST(Demo, CompletaEDiMisura) {
    const auto d = drive({15, 3, 2024});
    EXPECT_EQ(d.at("lum001.ftr").size(), 300u * 522);
    EXPECT_EQ(d.at("lum001.for").size(), 60u * 600);
    EXPECT_EQ(d.at("lum001.srf").size(), 60u * 42);
    EXPECT_EQ(d.at("lum001.pia").size(), 4258u * 64);
    EXPECT_EQ(d.at("lum001.cnd").size(), 40u * 596);
    const std::string& tab = d.at("lum001.tab");
    EXPECT_EQ(std::count(tab.begin(), tab.end(), '\n'), 654);
    for (const char* n :
         {"lumora.int", "lumeria.eur", "lumeria.tbl", "lumeria.gnr", "lumora.iva", "lumora.pag", "lumora.tot",
          "lumora.tt2", "lumoral.tot", "vexoral.001", "lummmi.lay", "lummmi.dxy", "lumeria.etf"})
        EXPECT_TRUE(d.contains(n)) << n;
}

TEST(Demo, OgniStatoDiDocumento) {
    const auto d = drive({15, 3, 2024});
    const std::string& ftr = d.at("lum001.ftr");
    std::map<std::string, int> visti;
    for (std::size_t n = 1; n <= 300; ++n) {
        const auto f = record<RecFattura>(ftr, n);
        const double sca = somma(f.sca), ver = somma(f.ver);
        ++visti[f.cancellata == 1 ? "cancellata"
                : f.pagata == 1   ? "pagata"
                : ver == 0        ? "aperta"
                                  : "in parte"];
        if (f.tipodc == 1) ++visti["nota"];
        if (somma(f.rac) != 0) ++visti["ritenuta"];
        int rate = 0;
        for (const auto& s : f.sca) rate += s != 0 ? 1 : 0;
        ++visti["rate " + std::to_string(rate)];
        const double netto = somma(f.impon) + somma(f.ivai) + somma(f.esent) - somma(f.rac);
        EXPECT_NEAR(sca, netto, 0.005) << n;
        EXPECT_GE(int(f.numfor), 1);
        EXPECT_LE(int(f.numfor), 60);
    }
    for (const char* v : {"cancellata", "pagata", "aperta", "in parte", "nota", "ritenuta", "rate 1",
                          "rate 2", "rate 3", "rate 4"})
        EXPECT_GT(visti[v], 0) << v;
}

TEST(Demo, IndiceDeiFornitoriInOrdine) {
    const auto d = drive({15, 3, 2024});
    for (std::size_t n = 2; n <= 60; ++n)
        EXPECT_LE(record<RecNome>(d.at("lum001.srf"), n - 1).nome.grezzo(),
                  record<RecNome>(d.at("lum001.srf"), n).nome.grezzo());
}

TEST(Demo, DiscoPieno) {
    DiscoMemoria d;
    d.sola_lettura = true;
    EXPECT_FALSE(demo::crea(d, {{15, 3, 2024}, false}));
}

}  // namespace
