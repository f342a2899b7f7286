// The split of the building's expenses among the condomini.
#include <gtest/gtest.h>

#include "ledger/quote.h"
#include "tests/ledger/tavolo_ledger.h"

using namespace ambra;

namespace {

Cambio euro() {
    Cambio c;
    c[1] = "1";
    return c;
}

// The same rule told the other way round: in cents, voce by voce.
long long quota_in_cent(TavoloLedger& t, const TabellaVoci& tab, std::size_t n) {
    const auto c = record_di<RecCondomino>(t.file("cnd"), n);
    const auto c2 = record_di<RecCondomino2>(t.file("cn2"), n);
    double totale = 0;
    for (int v = 1; v <= 40; ++v) {
        double s = 0;
        for (int k = 1; k <= 99; ++k) s += t.saldo((v - 1) * 99 + k);
        const double mille = std::stod("0" + tab.riga[static_cast<std::size_t>(v)][2]);
        if (mille == 0) continue;
        const double m = v <= 20 ? c.dmill[v - 1] : c2.dmill[v - 21];
        totale += std::floor(s / mille * m * 100 + 0.51) / 100;
    }
    if (c2.dperiodo == 1 || c2.dperiodo == 2)
        totale = std::floor(totale * int(c2.dgiorni) / 365 * 100 + 0.51) / 100;
    return std::llround(totale * 100);
}

}  // namespace

TEST(Quote, UnaVoce) {
    struct Caso {
        double saldo, totale, mill;
        int giorni, periodo;
        double quota;
    };
    const Caso casi[] = {
        {1000, 1000, 333, 0, 0, 333}, {1000, 0, 333, 0, 0, 0},  // no total, no share
        {100, 3, 1, 0, 0, 33.33},     {200, 3, 1, 0, 0, 66.67},
        {0.0049, 1, 1, 0, 0, 0.01},  // the bias of 0.51
        {0.0048, 1, 1, 0, 0, 0},      {-1.235, 1, 1, 0, 0, -1.23},
        {-1.236, 1, 1, 0, 0, -1.24},  {365, 1, 1, 100, 1, 100},
        {365, 1, 1, 100, 2, 100},     {365, 1, 1, 100, 3, 365},  // neither 1 nor 2: the full year
        {365, 1, 1, 0, 1, 0},         {365, 1, 1, -10, 1, -10},
    };
    for (const Caso& k : casi) {
        SaldiVoci v;
        v.saldo[7] = k.saldo;
        v.totale[7] = k.totale;
        RecCondomino c{};
        RecCondomino2 c2{};
        c.dmill[6] = k.mill;
        c2.dgiorni = k.giorni;
        c2.dperiodo = k.periodo;
        EXPECT_DOUBLE_EQ(quota_condomino(euro(), v, c, c2), k.quota) << k.saldo << " / " << k.totale;
    }
}

TEST(Quote, OgniVoceArrotondaPerSe) {
    SaldiVoci v;
    RecCondomino c{};
    RecCondomino2 c2{};
    for (std::size_t j = 1; j <= 40; ++j) {
        v.saldo[j] = 0.0149;  // 1.49 cents and the bias: 2 cents each
        v.totale[j] = 1;
        (j <= 20 ? c.dmill[j - 1] : c2.dmill[j - 21]) = 1;
    }
    EXPECT_NEAR(quota_condomino(euro(), v, c, c2), 0.80, 1e-9);
}

TEST(Quote, SiDividePrimaDiMoltiplicare) {
    // 0.3 / 3 * 0.35 and 0.3 * 0.35 / 3 fall on either side of a rounding.
    int diversi = 0;
    for (int s = 1; s < 400; ++s) {
        SaldiVoci v;
        v.saldo[1] = s / 100.0 + 0.0049;
        v.totale[1] = 3;
        RecCondomino c{};
        RecCondomino2 c2{};
        c.dmill[0] = 3;
        const double voluta = std::floor(v.saldo[1] / 3 * 3 * 100 + 0.51) / 100;
        EXPECT_EQ(quota_condomino(euro(), v, c, c2), voluta);
        if (voluta != std::floor(v.saldo[1] * 3 / 3 * 100 + 0.51) / 100) ++diversi;
    }
    EXPECT_GT(diversi, 0);
}

TEST(Quote, TuttiICondominiDaiFile) {
    for (unsigned seme = 1; seme <= 5; ++seme) {
        TavoloLedger t(seme);
        const std::string prima = t.file("cnd"), seconde = t.file("cn2"), piano = t.file("pia");
        TabellaVoci tab;
        ASSERT_TRUE(carica_voci(t.disco, t.prog.err, "001", tab));
        BufferLedger b;
        int avanti = 0;
        calcquote(t.prog.arc, t.prog.imp.cambio, tab, b, [&] { ++avanti; });
        EXPECT_EQ(avanti, TavoloLedger::kCondomini);
        for (std::size_t n = 1; n <= TavoloLedger::kCondomini; ++n)
            EXPECT_EQ(std::llround(record_di<RecCondomino>(t.file("cnd"), n).dquota * 100),
                      quota_in_cent(t, tab, n));
        const auto senza_quota = [](RecCondomino& c) { c.dquota = 0; };
        EXPECT_EQ(senza<RecCondomino>(t.file("cnd"), senza_quota), senza<RecCondomino>(prima, senza_quota));
        EXPECT_EQ(t.file("cn2"), seconde);
        EXPECT_EQ(t.file("pia"), piano);
        EXPECT_EQ(t.piattaforma.puntatore, Puntatore::normale);
    }
}

TEST(Quote, UnaScritturaNonPortaVecchiByteDelVicino) {
    TavoloLedger t;
    TabellaVoci tab;
    carica_voci(t.disco, t.prog.err, "001", tab);
    // While the first share is written, another process charges every other condomino.
    bool fatto = false;
    t.disco.guasto = [&](Operazione op, std::string_view percorso) {
        if (op == Operazione::scrivi && percorso.ends_with("cnd") && !fatto) {
            fatto = true;
            for (std::size_t n = 2; n <= TavoloLedger::kCondomini; ++n) {
                auto c = record_di<RecCondomino>(t.file("cnd"), n);
                c.daddebiti = 4711;
                c.dnome = "Cambiato";
                metti_record(t.file("cnd"), n, c);
            }
        }
        return 0;
    };
    BufferLedger b;
    calcquote(t.prog.arc, t.prog.imp.cambio, tab, b, {});
    for (std::size_t n = 2; n <= TavoloLedger::kCondomini; ++n) {
        EXPECT_EQ(record_di<RecCondomino>(t.file("cnd"), n).daddebiti, 4711);
        EXPECT_EQ(record_di<RecCondomino>(t.file("cnd"), n).dnome.rifilato(), "Cambiato");
    }
}

// Without the second records nobody has days or thousandths above the twentieth voce.
TEST(Quote, SenzaIlSecondoFileValgonoZeri) {
    TavoloLedger t;
    t.file("cn2").clear();
    TabellaVoci tab;
    ASSERT_TRUE(carica_voci(t.disco, t.prog.err, "001", tab));
    BufferLedger b;
    b.condomino2.dperiodo = 1;  // what was in hand before must not count
    b.condomino2.dgiorni = 1;
    calcquote(t.prog.arc, t.prog.imp.cambio, tab, b, {});
    EXPECT_EQ(int(b.condomino2.dperiodo), 0);
    EXPECT_EQ(t.file("cn2"), "");
    t.file("cn2").assign(TavoloLedger::kCondomini * sizeof(RecCondomino2), '\0');  // for the model
    for (std::size_t n = 1; n <= TavoloLedger::kCondomini; ++n)
        EXPECT_EQ(std::llround(record_di<RecCondomino>(t.file("cnd"), n).dquota * 100),
                  quota_in_cent(t, tab, n));
}

TEST(Quote, SenzaCondomini) {
    TavoloLedger t;
    for (const int quanti : {0, -1}) {
        auto tot = record_di<RecTotaliLedger>(t.file("tot"), 1);
        tot.tcondomini = quanti;
        metti_record(t.file("tot"), 1, tot);
        const std::string prima = t.file("cnd");
        BufferLedger b;
        calcquote(t.prog.arc, t.prog.imp.cambio, {}, b, {});
        EXPECT_EQ(t.file("cnd"), prima);
        EXPECT_EQ(t.piattaforma.puntatore, Puntatore::normale);
    }
}

TEST(Quote, UnCondominoOltreLaFineSiFaIntero) {
    TavoloLedger t;
    const std::size_t lungo = sizeof(RecCondomino);
    const std::string prima = t.file("cnd").substr(0, 2 * lungo + 100);
    t.file("cnd") = prima;  // the third record is cut, the others are missing
    TabellaVoci tab;
    carica_voci(t.disco, t.prog.err, "001", tab);
    BufferLedger b;
    calcquote(t.prog.arc, t.prog.imp.cambio, tab, b, {});
    EXPECT_EQ(t.file("cnd").size(), TavoloLedger::kCondomini * lungo);
    EXPECT_EQ(t.file("cnd").substr(2 * lungo, 100), prima.substr(2 * lungo));
    EXPECT_EQ(t.file("cnd").substr(3 * lungo, 570), std::string(570, '\0'));
}

TEST(Quote, UnCondominoIlleggibileRiceveIlRecordInMano) {
    TavoloLedger t;
    TabellaVoci tab;
    carica_voci(t.disco, t.prog.err, "001", tab);
    t.disco.guasto = [](Operazione op, std::string_view f) {
        return op == Operazione::leggi && f.ends_with("cnd") ? errore::dispositivo : 0;
    };
    BufferLedger b;
    b.condomino.dnome = "In mano";
    calcquote(t.prog.arc, t.prog.imp.cambio, tab, b, {});
    for (std::size_t n = 1; n <= TavoloLedger::kCondomini; ++n)
        EXPECT_EQ(record_di<RecCondomino>(t.file("cnd"), n).dnome.rifilato(), "In mano");
}
