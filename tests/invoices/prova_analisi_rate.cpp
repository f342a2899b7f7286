// The instalments of a document, and amounts out of measure.
#include <gtest/gtest.h>

#include "invoices/analisi.h"
#include "tests/invoices/fatture_lette.h"

using namespace ambra;

namespace {

TEST(Analisi, Rate) {
    struct Caso {
        const char* che;
        bool ritenuta;
        std::vector<PagamentoLetto> pagamenti;
        const char *da, *rate, *avvisi;
    };
    const Caso casi[] = {
        {"al netto", true, {pagamento("2026-11-30", "118.00")}, "dal file", "2026-11-30=118.00 ", ""},
        {"al lordo",
         true,
         {pagamento("2026-11-30", "61.00"), pagamento("2026-12-31", "61.00")},
         "lordo->netto",
         "2026-11-30=59.00 2026-12-31=59.00 ",
         ""},
        {"il resto sulla prima",
         true,
         {pagamento("2026-11-30", "40.67"), pagamento("2026-12-31", "40.67"),
          pagamento("2027-01-31", "40.66")},
         "lordo->netto",
         "2026-11-30=39.33 2026-12-31=39.34 2027-01-31=39.33 ",
         ""},
        {"senza ritenuta", false, {pagamento("2026-11-30", "122.00")}, "dal file", "2026-11-30=122.00 ", ""},
        {"nota in negativo",
         false,
         {pagamento("2026-11-30", "-122.00")},
         "dal file",
         "2026-11-30=122.00 ",
         ""},
        {"a nulla", false, {pagamento("2026-11-30", "121.99")}, "non quadrano", "", "rate-non-quadrano"},
        {"zeri",
         false,
         {pagamento("2026-11-30", "0.00"), pagamento("2026-12-31", "122")},
         "dal file",
         "2026-12-31=122.00 ",
         ""},
        {"soli zeri", false, {pagamento("2026-11-30", "0.00")}, "assenti", "", ""},
        {"senza data", false, {pagamento("", "122")}, "dal file", "=122.00 ", "scadenza-assente"},
        {"data che non è",
         false,
         {pagamento("2026-02-29", "122")},
         "dal file",
         "=122.00 ",
         "scadenza-assente"},
        {"cinque",
         false,
         {pagamento("2026-11-01", "20"), pagamento("2026-11-02", "20"), pagamento("2026-11-03", "20"),
          pagamento("2026-11-04", "30"), pagamento("2026-11-05", "32")},
         "dal file",
         "2026-11-01=20.00 2026-11-02=20.00 2026-11-03=20.00 2026-11-04=62.00 ",
         "piu-di-quattro-rate"}};
    for (const auto& c : casi) {
        FatturaLetta f = cento();
        if (c.ritenuta) {
            f.ritenute = {{"RT02", "4.00", "4", "W"}};
            f.righe = {riga("100", "22", true)};
        }
        f.pagamenti = c.pagamenti;
        const Analisi a = analizza(f);
        EXPECT_EQ(nome(a.rate_da), c.da) << c.che;
        EXPECT_EQ(rate(a.rate), c.rate) << c.che;
        EXPECT_EQ(avvisi(a), c.avvisi) << c.che;
    }
}

TEST(Analisi, RateConTerminiInGiorni) {
    const struct {
        const char *riferimento, *giorni, *data;
    } casi[] = {
        {"2026-10-06", "30", "2026-11-05"}, {"", "30", "2026-11-04"},  {"2026-10-06", "", ""},
        {"2026-10-06", "0", "2026-10-06"},  {"2026-10-06", "-1", ""},  {"2026-10-06", "999999999", ""},
        {"2026-13-06", "30", ""},           {"2026-10-06", "9e9", ""}, {"2026-10-06", "x", ""}};
    for (const auto& c : casi) {
        FatturaLetta f = cento();
        f.pagamenti = {pagamento("", "122.00")};
        f.pagamenti[0].riferimento = c.riferimento;
        f.pagamenti[0].giorni = c.giorni;
        EXPECT_EQ(analizza(f).rate.at(0).data, c.data) << c.riferimento << " " << c.giorni;
    }
}

TEST(Analisi, ImportiCheInsiemeEsconoDiMisura) {
    FatturaLetta f = fattura({});
    for (int i = 0; i < 3; ++i) f.riepiloghi.push_back(riepilogo("22", "999999999.99", "999999999.99"));
    f.totale = "999999999.99";
    f.righe = {riga("999999999.99", "22", true), riga("999999999.99", "22", true)};
    f.ritenute = {{"RT01", "999999999.99", "0.01", "A"}, {"RT04", "999999999.99", "100", "A"}};
    f.pagamenti = {pagamento("2026-11-30", "999999999.99"), pagamento("2026-12-30", "999999999.99")};
    const Analisi a = analizza(f);
    EXPECT_TRUE(a.avvisa("importi-fuori-misura"));
    EXPECT_EQ(a.totale.testo(), "");
    EXPECT_TRUE(a.rate.empty());
}

}  // namespace
