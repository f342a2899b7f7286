// The ministerial form, position by position, for every count of suppliers that fills, ends and opens sheets.
#include "reports/quadroac.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/testo.h"
#include "print/metriche.h"
#include "reports/lumstcx.h"
#include "tests/reports/residenti_esteri.h"

namespace ambra {
namespace {

struct Segno {
    double x, y;
    std::string testo;
    double punti;
};

void confronta(const std::vector<PaginaStampa>& pagine, const std::vector<std::vector<Segno>>& attese) {
    ASSERT_EQ(pagine.size(), attese.size());
    for (std::size_t p = 0; p < pagine.size(); ++p) {
        SCOPED_TRACE("page " + std::to_string(p + 1));
        const auto& ops = pagine[p].operazioni;
        ASSERT_EQ(ops.size(), attese[p].size());
        for (std::size_t i = 0; i < ops.size(); ++i) {
            SCOPED_TRACE("operation " + std::to_string(i) + " " + attese[p][i].testo);
            EXPECT_EQ(ops[i].tipo, OperazioneStampa::Tipo::testo);
            EXPECT_EQ(ops[i].unita, Scala::millimetri);
            EXPECT_EQ(ops[i].testo, attese[p][i].testo);
            EXPECT_NEAR(ops[i].x1, attese[p][i].x, 1e-9);
            EXPECT_NEAR(ops[i].y1, attese[p][i].y, 1e-9);
            EXPECT_EQ(ops[i].font.nome, "arial");
            EXPECT_EQ(ops[i].font.punti, attese[p][i].punti);
            EXPECT_FALSE(ops[i].font.grassetto || ops[i].font.corsivo);
        }
    }
}

// ---- the built-in positions, as the ministry's sheet has them ----

std::vector<std::vector<Segno>> attese_fisse(int n, double dx, double dy) {
    std::vector<std::vector<Segno>> fogli;
    for (int k = 1; k <= n; ++k) {
        const int slot = (k - 1) % 5;
        if (slot == 0) {
            fogli.emplace_back();
            const std::string foglio = con_zeri((k - 1) / 5 + 1, 2);
            auto& f = fogli.back();
            for (int i = 0; i < 16; ++i)
                f.push_back(
                    {std::floor(85 + 5 * i + dx), 23 + dy, std::string(1, static_cast<char>('A' + i)), 10});
            f.push_back({153 + dx, 40 + dy, foglio.substr(0, 1), 10});
            f.push_back({158 + dx, 40 + dy, foglio.substr(1, 1), 10});
            f.push_back({41 + dx, 55 + dy, riempi("97", 16), 10});
            f.push_back({90 + dx, 55 + dy, riempi("ROSSI", 40), 10});
            f.push_back({41 + dx, 66 + dy, riempi("Torino", 40), 10});
            f.push_back({120 + dx, 66 + dy, riempi("Via Roma", 40), 10});
        }
        const double giu = dy + (slot == 0 ? 0 : 32.5 * (slot - 1));
        const double y1 = giu + (slot == 0 ? 78 : 124), y2 = giu + (slot == 0 ? 91 : 132),
                     y3 = giu + (slot == 0 ? 103 : 140), y4 = giu + (slot == 0 ? 114 : 148);
        auto& f = fogli.back();
        f.push_back({41 + dx, y1, riempi("CF" + std::to_string(k), 16), 10});
        f.push_back({90 + dx, y1, riempi(nome(k), 40), 10});
        f.push_back({41 + dx, y2, riempi("due", 40), 10});
        f.push_back({88 + dx, y2, "F", 10});
        f.push_back({96 + dx, y2, "05    11    1960", 10});
        f.push_back({124 + dx, y2, riempi("Asti", 40), 10});
        f.push_back({181 + dx, y2, "AT", 10});
        f.push_back({41 + dx, y3, riempi("Torino", 40), 10});
        f.push_back({104 + dx, y3, "TO", 10});
        f.push_back({115 + dx, y3, riempi("Via Po", 40), 10});
        f.push_back({181 + dx, y3, riempi("FR", 5), 10});
        f.push_back({45 + dx, y4, std::to_string(300 + k), 10});
    }
    return fogli;
}

class QuadroDaUnoAVentitre : public testing::TestWithParam<int> {};

TEST_P(QuadroDaUnoAVentitre, PosizioniPredefinite) {
    const int n = GetParam();
    Banco b;
    prepara(b, n);
    b.testo("lummmi.dxy", {"1.5", "-2"});
    b.avvia();
    auto& s = b.schermo<Lumstcx>("lumstcx");
    b.piattaforma.risposte = {Risposta::no, Risposta::si};
    s.Label1[1].premi();
    ASSERT_EQ(b.piattaforma.lavori.size(), 1u);
    confronta(b.piattaforma.lavori[0].pagine, attese_fisse(n, 1.5, -2));
    EXPECT_EQ(b.piattaforma.stampante.scale_mode(), Scala::twip);
    EXPECT_EQ(b.piattaforma.puntatore, Puntatore::normale);
}

// ---- the user's positions: row i at x = 2 i, y = i; first page +30, second page +7, step 15 ----

std::vector<std::vector<Segno>> attese_proprie(int n) {
    const std::string studio[] = {"",      "Studio",   "Via A",  "Torino", "011", "ABCDEFGHIJKLMNOP",
                                  "ROSSI", "Via Roma", "Torino", "97"};
    const auto destra_mm = [](double x, const std::string& t) {
        return x - static_cast<double>(larghezza_millesimi(t, false)) / 1000 * 14 * 25.4 / 72;
    };
    std::vector<std::vector<Segno>> pagine;
    for (int k = 1; k <= n; ++k) {
        const int slot = (k - 1) % 10;
        if (slot == 0 || slot == 4) pagine.emplace_back();
        auto& p = pagine.back();
        if (slot == 0) {
            const std::string foglio = std::to_string((k - 1) / 10 + 1);
            p.push_back({destra_mm(52, foglio), 26, foglio, 14});
            for (int i = 1; i <= 9; ++i) p.push_back({2.0 * i, 1.0 * i, studio[i], 14});
        }
        const std::vector<std::string> valori = {
            nome(k), "due", "Via Po",  "Torino", "TO", "CF" + std::to_string(k), "F", "05  11  1960", "Asti",
            "AT",    "X",   "Francia", "FR",     "E1", std::to_string(300 + k)};
        const double giu = slot < 4 ? 30 + 15 * slot : 7 + 15 * (slot - 4);
        for (int i = 11; i <= 25; ++i) {
            const std::string& v = valori[static_cast<std::size_t>(i - 11)];
            p.push_back({i == 25 ? destra_mm(50, v) : 2.0 * i, i + giu, v, 14});
        }
    }
    return pagine;
}

TEST_P(QuadroDaUnoAVentitre, PosizioniProprie) {
    const int n = GetParam();
    Banco b;
    prepara(b, n);
    Layout l;
    for (std::size_t i = 1; i <= 26; ++i)
        l.campo[i].posizione = con_zeri(static_cast<long>(2 * i), 3) + con_zeri(static_cast<long>(i), 3);
    l.campo[97].posizione = "030000";
    l.campo[98].posizione = "007";
    l.campo[99].posizione = "015999";
    ASSERT_TRUE(salva_layout(b.memoria, b.prog.err, file_ministeriale(), l));
    b.avvia();
    auto& s = b.schermo<Lumstcx>("lumstcx");
    b.piattaforma.risposte = {Risposta::si, Risposta::si};
    s.Label1[1].premi();
    ASSERT_EQ(b.piattaforma.lavori.size(), 1u);
    confronta(b.piattaforma.lavori[0].pagine, attese_proprie(n));
    EXPECT_EQ(b.piattaforma.stampante.scale_mode(), Scala::twip);
}

INSTANTIATE_TEST_SUITE_P(Fornitori, QuadroDaUnoAVentitre, testing::Range(1, 24));

}  // namespace
}  // namespace ambra
