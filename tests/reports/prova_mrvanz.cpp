// What is open by age: both sides of each limit, and the screen against the sum of its documents.
#include <gtest/gtest.h>

#include <numeric>
#include <random>

#include "core/numeri.h"
#include "core/testo.h"
#include "reports/mrvanz.h"
#include "tests/supporto/banco.h"
#include "tests/supporto/seme.h"

using namespace ambra;

namespace {

RecFattura aperta(double sca, double ver, const char* dsca) {
    RecFattura f = fattura_vuota();
    f.numfor = 1;
    f.sca[0] = sca;
    f.ver[0] = ver;
    f.dsca[0] = dsca;
    return f;
}

TEST(Anzianita, ADueLatiDiOgniLimite) {
    const struct {
        const char* scadenza;
        std::size_t eta;
    } casi[] = {{"16032024", 0}, {"15032024", 0}, {"14032024", 1}, {"14022024", 1}, {"13022024", 2},
                {"15012024", 2}, {"14012024", 3}, {"16122023", 3}, {"15122023", 4}, {"01011900", 4},
                {"", 5},         {"31022024", 5}, {"xx", 5},       {"00000000", 5}};
    for (const auto& c : casi) {
        Anzianita atteso{};
        atteso[c.eta] = 6001;
        EXPECT_EQ(anzianita(aperta(100.01, 40, c.scadenza), {15, 3, 2024}), atteso) << c.scadenza;
    }
}

TEST(Anzianita, SegnoEliminateESaldate) {
    RecFattura f = aperta(100, 40, "16032024");
    f.tipodc = 1;
    EXPECT_EQ(anzianita(f, {15, 3, 2024}), (Anzianita{-6000}));
    f.cancellata = 1;
    EXPECT_EQ(anzianita(f, {15, 3, 2024}), Anzianita{});
    // paid in full on one instalment: nothing is open on the other
    f = aperta(70, 100, "01012024");
    f.sca[1] = 30;
    EXPECT_EQ(anzianita(f, {15, 3, 2024}), Anzianita{});
    // paid too much on one, not in full: what is open in all is what the document owes
    f.sca[1] = 50;
    f.dsca[1] = "01042024";
    EXPECT_EQ(anzianita(f, {15, 3, 2024}), (Anzianita{5000, 0, -0, -3000}));
}

TEST(Mrvanz, LElencoEIlTotaleDeiDocumenti) {
    std::mt19937 caso(seme_di_prova());
    const auto fra = [&](int a, int b) { return std::uniform_int_distribution(a, b)(caso); };
    Banco b;
    RecFornitore tolto = fornitore_vuoto(
        "\xFF"
        "NERI");
    tolto.cancellata = 1;
    b.fornitori({fornitore_vuoto("verdi"), fornitore_vuoto("ROSSI"), tolto});
    std::vector<RecFattura> tutte;
    Centesimi aperto = 0;
    for (int i = 0; i < 500; ++i) {
        RecFattura f = aperta(fra(0, 99999) / 100.0, 0,
                              (con_zeri(fra(1, 28), 2) + con_zeri(fra(1, 12), 2) + "2024").c_str());
        f.numfor = fra(1, 3);
        f.ver[0] = fra(0, 1) ? double(f.sca[0]) : 10;
        f.tipodc = fra(0, 4) == 0;
        f.cancellata = fra(0, 9) == 0;
        if (f.cancellata == 0) aperto += (centesimi(f.sca[0]) - centesimi(f.ver[0])) * segno(f);
        tutte.push_back(f);
    }
    b.fatture(tutte);
    b.avvia();
    int letture = 0;
    b.disco.guasto = [&](Operazione cosa, std::string_view file) {
        EXPECT_NE(cosa, Operazione::scrivi);
        if (cosa == Operazione::leggi && file.ends_with(".ftr")) ++letture;
        return 0;
    };
    b.prog.schermi.apri("mrvanz");
    EXPECT_LT(letture, 8) << "one pass";
    auto& s = b.schermo<Mrvanz>("mrvanz");
    ASSERT_EQ(s.elenco.righe(), 5);
    EXPECT_EQ(s.elenco.testo(1, 0), "NERI");
    EXPECT_EQ(s.elenco.testo(2, 0), "ROSSI");
    EXPECT_EQ(s.elenco.testo(3, 0), "verdi");
    EXPECT_EQ(s.elenco.testo(4, 0), "Totale");
    EXPECT_EQ(centesimi(valimporto_di(s.elenco.vista(4, 7))), aperto);
    for (int c = 1; c <= 7; ++c) {
        Centesimi colonna = 0;
        for (int r = 1; r <= 3; ++r) colonna += centesimi(valimporto_di(s.elenco.vista(r, c)));
        EXPECT_EQ(centesimi(valimporto_di(s.elenco.vista(4, c))), colonna) << c;
    }
    // a text that is no date changes nothing, a date does
    const std::string prima = s.elenco.testo(4, 1);
    s.text1[0].digita("31/12/2");
    EXPECT_EQ(s.elenco.testo(4, 1), prima);
    s.text1[0].digita("31/12/2030");
    EXPECT_EQ(s.elenco.testo(4, 1), "");
    EXPECT_EQ(centesimi(valimporto_di(s.elenco.vista(4, 5))), aperto);
}

}  // namespace
