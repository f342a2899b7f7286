// What of a document the withheld tax is reckoned on, and what else is kept back.
#include <gtest/gtest.h>

#include "invoices/analisi.h"
#include "tests/invoices/fatture_lette.h"

using namespace ambra;

namespace {

struct CasoBase {
    const char *che, *imponibile, *ritenuta, *aliquota;
    std::vector<RigaLetta> righe;
    std::vector<CassaLetta> casse;
    const char *base, *avvisi;
};
const CasoBase kCasiBase[] = {
    {"righe", "1000.00", "40.00", "4.00", {riga("1000.00", "22", true)}, {}, "1000.00", ""},
    {"una riga su due",
     "1000.00",
     "24.00",
     "4",
     {riga("600", "22", true), riga("400", "22")},
     {},
     "600.00",
     ""},
    {"righe e cassa",
     "1040.00",
     "208.00",
     "20",
     {riga("1000", "22", true)},
     {cassa("40", "22", true)},
     "1040.00",
     ""},
    {"cassa fuori, righe",
     "1040.00",
     "200.00",
     "20",
     {riga("1000", "22", true)},
     {cassa("40", "22", false)},
     "1000.00",
     ""},
    {"testata, tutto",
     "1000.00",
     "200.00",
     "20",
     {riga("1000", "22")},
     {},
     "1000.00",
     "ritenuta-solo-in-testata"},
    {"testata, meno cassa",
     "1872.00",
     "360.00",
     "20",
     {riga("1800", "22")},
     {cassa("72.00", "22", false)},
     "1800.00",
     "ritenuta-solo-in-testata"},
    {"dalla ritenuta",
     "1000.00",
     "52.00",
     "26",
     {riga("1000", "22", true)},
     {},
     "200.00",
     "righe-e-ritenuta-non-concordano"},
    {"le righe prima del tutto", "100.20", "4.00", "4", {riga("100", "22", true)}, {}, "100.00", ""},
    {"il tutto prima di quello senza casse",
     "100.20",
     "4.00",
     "4",
     {riga("100", "22")},
     {cassa("0.20", "22", false)},
     "100.20",
     "ritenuta-solo-in-testata"},
    {"a un centesimo", "1000.00", "40.01", "4", {riga("1000", "22", true)}, {}, "1000.00", ""},
    {"oltre il centesimo",
     "1000.00",
     "40.02",
     "4",
     {riga("1000", "22", true)},
     {},
     "1000.50",
     "base-ritenuta-maggiore-del-documento, righe-e-ritenuta-non-concordano"},
    {"senza aliquota",
     "1000.00",
     "40.00",
     "",
     {riga("1000", "22", true)},
     {},
     "-",
     "righe-e-ritenuta-non-concordano"},
    {"righe con otto decimali",
     "1.01",
     "0.04",
     "4",
     {riga("0.505", "22", true), riga("0.505", "22", true)},
     {},
     "1.01",
     ""}};

TEST(Analisi, BaseDellaRitenuta) {
    for (const auto& c : kCasiBase) {
        FatturaLetta f = fattura({riepilogo("22", c.imponibile, "0.00")});
        f.ritenute = {{"RT01", c.ritenuta, c.aliquota, "A"}};
        f.righe = c.righe;
        f.casse = c.casse;
        const Analisi a = analizza(f);
        EXPECT_EQ(a.base_ritenuta ? a.base_ritenuta->testo() : "-", c.base) << c.che;
        EXPECT_EQ(avvisi(a), c.avvisi) << c.che;
    }
}

TEST(Analisi, TrattenuteContributiScissione) {
    FatturaLetta f = fattura({riepilogo("22", "1000.00", "220.00"), riepilogo("0", "5.00", "0", "N6.9")});
    f.riepiloghi[0].esigibilita = "S";
    f.fornitore.regime = "RF19";
    f.righe = {riga("1000", "22", true)};
    f.ritenute = {
        {"RT01", "30.00", "20.00", "A"}, {"RT02", "170.00", "17.00", "A"}, {"RT04", "8.25", "8.25", "A"}};
    const Analisi a = analizza(f);
    EXPECT_EQ(a.ritenuta.testo(), "200.00");
    EXPECT_EQ(a.aliquota_ritenuta.testo_breve(), "17");
    EXPECT_EQ(a.contributi.testo(), "8.25");
    EXPECT_EQ(a.iva_scissa.testo(), "220.00");
    EXPECT_EQ(a.netto.testo(), "796.75");
    EXPECT_EQ(avvisi(a),
              "base-ritenuta-maggiore-del-documento, contributi-trattenuti, forfettario-con-ritenuta, "
              "inversione-contabile, righe-e-ritenuta-non-concordano, scissione-pagamenti");
}

TEST(Analisi, IContributiDiminuisconoSoloIlPagamento) {
    for (const char* tipo : {"RT03", "RT04", "RT05", "RT06"}) {
        FatturaLetta f = cento();
        f.ritenute = {{tipo, "4.00", "4.00", "A"}};
        const Analisi a = analizza(f);
        EXPECT_EQ(a.ritenuta.testo() + " " + a.contributi.testo() + " " + a.netto.testo(), "0.00 4.00 118.00")
            << tipo;
        EXPECT_FALSE(a.base_ritenuta) << tipo;
        EXPECT_EQ(avvisi(a), "contributi-trattenuti") << tipo;
    }
}

TEST(Analisi, IlTotaleDichiaratoEIlNetto) {
    FatturaLetta f = cento();
    f.ritenute = {{"RT02", "4.00", "4", "W"}};
    f.righe = {riga("100", "22", true)};
    f.totale = "118.00";
    EXPECT_EQ(avvisi(analizza(f)), "totale-dichiarato-e-il-netto");
    EXPECT_EQ(analizza(f).netto.testo(), "118.00");
}

TEST(Analisi, TroppoTrattenuto) {
    FatturaLetta f = cento();
    f.ritenute = {{"RT02", "122.01", "100", "W"}};
    EXPECT_TRUE(analizza(f).avvisa("ritenuta-maggiore-del-totale"));
    EXPECT_TRUE(analizza(f).avvisa("netto-negativo"));
    f.ritenute = {{"RT02", "122.00", "100", "W"}};
    EXPECT_FALSE(analizza(f).avvisa("ritenuta-maggiore-del-totale"));
    EXPECT_FALSE(analizza(f).avvisa("netto-negativo"));
}

}  // namespace
