#include <gtest/gtest.h>

#include <algorithm>

#include "invoices/analisi.h"
#include "tests/invoices/fatture_lette.h"

using namespace ambra;

namespace {

std::string avvisi(const Analisi& a) {
    std::string s;
    for (const auto& x : a.avvisi) s += (s.empty() ? "" : ", ") + x;
    return s;
}

std::string rate(const std::vector<Rata>& tutte) {
    std::string s;
    for (const Rata& r : tutte) s += r.data + "=" + r.importo.testo() + " ";
    return s;
}

TEST(Analisi, SommaPerAliquotaEPerNatura) {
    const Analisi a =
        analizza(fattura({riepilogo("22.00", "100.00", "22.01"), riepilogo("10", "50", "5"),
                          riepilogo("22", "10.00", "2.20"), riepilogo("0.00", "7.00", "0.00", "N4"),
                          riepilogo("0", "1.50", "", "N1"), riepilogo("0.00", "3.00", "0", "N4")}));
    ASSERT_EQ(a.iva.size(), 2U);
    EXPECT_EQ(a.iva[0].imponibile.testo() + " " + a.iva[0].imposta.testo(), "110.00 24.21");
    EXPECT_EQ(a.iva[1].aliquota.testo_breve(), "10");
    ASSERT_EQ(a.esenti.size(), 2U);
    EXPECT_EQ(a.esenti[0].natura + " " + a.esenti[0].importo.testo(), "N4 10.00");
    EXPECT_EQ(a.esenti[1].importo.testo(), "1.50");
    EXPECT_EQ(a.totale.testo(), "200.71");
    EXPECT_EQ(a.netto.testo(), "200.71");
    EXPECT_FALSE(a.totale_dichiarato);
    EXPECT_EQ(a.rate_da, RateDa::assenti);
    EXPECT_EQ(avvisi(a), "");
}

TEST(Analisi, SemplificataConIvaCompresa) {
    FatturaLetta f = fattura({});
    f.semplificata = true;
    f.tipo = "TD07";
    f.righe = {riga("12.50", "22.00"), riga("12.50", "22.00"), riga("100.00", "10")};
    f.righe.push_back(riga("9.00", ""));
    f.righe.back().natura = "N4";
    f.righe.push_back(riga("122.00", ""));
    f.righe.back().imposta = "22.00";
    f.righe.push_back(riga("105.00", "5"));
    f.righe.back().imposta = "4.99";  // the file's VAT wins
    const Analisi a = analizza(f);
    ASSERT_EQ(a.iva.size(), 3U);
    EXPECT_EQ(a.iva[0].aliquota.testo_breve(), "22");
    EXPECT_EQ(a.iva[0].imponibile.testo() + " " + a.iva[0].imposta.testo(), "120.49 26.51");
    EXPECT_EQ(a.iva[1].imponibile.testo() + " " + a.iva[1].imposta.testo(), "90.91 9.09");
    EXPECT_EQ(a.iva[2].imponibile.testo() + " " + a.iva[2].imposta.testo(), "100.01 4.99");
    EXPECT_EQ(a.totale.testo(), "361.00");
    EXPECT_EQ(avvisi(a), "");
}

TEST(Analisi, QuelCheManca) {
    FatturaLetta f;
    EXPECT_EQ(avvisi(analizza(f)),
              "data-assente-o-errata, fornitore-assente, numero-assente, riepilogo-assente, tipo-assente");
    f = fattura({riepilogo("", "100.00", "22.00"), riepilogo("", "5.00", "0.00", "N1")});
    f.data = "2026-02-30";
    f.divisa = "USD";
    f.tipo = "TD99";
    const Analisi a = analizza(f);
    EXPECT_EQ(avvisi(a), "aliquota-assente, data-assente-o-errata, divisa-USD, tipo-sconosciuto");
    ASSERT_EQ(a.iva.size(), 1U);
    EXPECT_EQ(a.iva[0].aliquota.testo_breve(), "22");
    EXPECT_EQ(a.totale.testo(), "127.00");
    for (const char* t : {"TD16", "TD23", "TD27", "TD29"}) {
        f = cento();
        f.tipo = t;
        EXPECT_EQ(avvisi(analizza(f)), "integrazione-o-autofattura") << t;
    }
}

TEST(Analisi, NumeroEUltimiDieci) {
    const struct {
        const char *numero, *tutto, *registrato;
    } casi[] = {
        {"7", "7", "7"},
        {" FT \t 12 ", "FT 12", "FT 12"},
        {"FT/2015/0008", "FT/2015/0008", "/2015/0008"},
        {"N\xC2\xB0 1234567890", "N\xC2\xB0 1234567890", "1234567890"},
        {"\xC3\xA8\xC3\xA8\xC3\xA8 1234567", "\xC3\xA8\xC3\xA8\xC3\xA8 1234567", "\xC3\xA8\xC3\xA8 1234567"}};
    for (const auto& c : casi) {
        FatturaLetta f = cento();
        f.numero = c.numero;
        const Analisi a = analizza(f);
        EXPECT_EQ(a.numero, c.tutto);
        EXPECT_EQ(a.numero_registrato, c.registrato);
    }
}

TEST(Analisi, ArrotondamentoETotaleDichiarato) {
    const struct {
        const char *dichiarato, *testata, *riga, *totale, *arrotondamento, *avvisi;
    } casi[] = {{"122.00", "", "", "122.00", "0.00", ""},
                {"122.00", "0.40", "", "122.00", "0.00", ""},
                {"122.35", "0.35", "", "122.35", "0.35", ""},
                {"121.65", "", "-0.35", "121.65", "-0.35", ""},
                {"122.01", "0.00", "-0.01", "122.01", "0.01", ""},
                {"123.00", "1.00", "", "123.00", "1.00", ""},
                {"123.01", "1.01", "", "122.00", "0.00", "totale-dichiarato-diverso"},
                {"122.01", "0.00", "", "122.00", "0.00", "totale-dichiarato-diverso"},
                {"", "0.35", "", "122.00", "0.00", ""}};
    for (const auto& c : casi) {
        FatturaLetta f = cento();
        f.totale = c.dichiarato;
        f.arrotondamento = c.testata;
        f.riepiloghi[0].arrotondamento = c.riga;
        const Analisi a = analizza(f);
        EXPECT_EQ(a.totale.testo(), c.totale) << c.dichiarato;
        EXPECT_EQ(a.netto.testo(), c.totale) << c.dichiarato;
        EXPECT_EQ(a.arrotondamento.testo(), c.arrotondamento) << c.dichiarato;
        EXPECT_EQ(avvisi(a), c.avvisi) << c.dichiarato;
    }
}

TEST(Analisi, NotaDiCredito) {
    const struct {
        const char *tipo, *imponibile, *imposta;
        bool nota;
        const char* avvisi;
    } casi[] = {{"TD01", "100.00", "22.00", false, ""},
                {"TD04", "100.00", "22.00", true, ""},
                {"TD08", "100.00", "22.00", true, ""},
                {"TD04", "-100.00", "-22.00", true, "nota di credito con importi negativi"},
                {"TD01", "-100.00", "-22.00", true, "importi-negativi: diventa nota di credito"}};
    for (const auto& c : casi) {
        FatturaLetta f = fattura({riepilogo("22", c.imponibile, c.imposta)});
        f.tipo = c.tipo;
        f.totale = c.imponibile[0] == '-' ? "-122.00" : "122.00";
        f.ritenute = {{"RT02", c.imponibile[0] == '-' ? "-4.00" : "4.00", "4.00", "W"}};
        f.righe = {riga(c.imponibile, "22", true)};
        f.pagamenti = {pagamento("2026-11-30", c.imponibile[0] == '-' ? "-118.00" : "118.00")};
        const Analisi a = analizza(f);
        EXPECT_EQ(a.nota_credito, c.nota) << c.tipo << c.imponibile;
        EXPECT_EQ(a.totale.testo(), "122.00");
        EXPECT_EQ(a.totale_dichiarato->testo(), "122.00");
        EXPECT_EQ(a.iva[0].imposta.testo(), "22.00");
        EXPECT_EQ(a.ritenuta.testo(), "4.00");
        EXPECT_EQ(a.base_ritenuta->testo(), "100.00");
        EXPECT_EQ(a.netto.testo(), "118.00");
        EXPECT_EQ(rate(a.rate), "2026-11-30=118.00 ");
        EXPECT_EQ(avvisi(a), c.avvisi) << c.tipo << c.imponibile;
    }
}

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
