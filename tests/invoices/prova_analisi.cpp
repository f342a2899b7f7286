// What is made of a read invoice: sums by rate and kind, what is missing, credit notes.
#include <gtest/gtest.h>

#include "core/testo.h"
#include "invoices/analisi.h"
#include "tests/invoices/fatture_lette.h"

using namespace ambra;

namespace {

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
    for (int n = 1; n <= 30; ++n) {
        f = cento();
        f.tipo = "TD" + con_zeri(n, 2);
        const bool del_cliente = (n >= 16 && n <= 23) || (n >= 27 && n <= 29);
        const bool ignoto = (n >= 10 && n <= 15) || n == 30;
        EXPECT_EQ(avvisi(analizza(f)), del_cliente ? "integrazione-o-autofattura"
                                       : ignoto    ? "tipo-sconosciuto"
                                                   : "")
            << n;
        EXPECT_EQ(analizza(f).nota_credito, n == 4 || n == 8) << n;
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

// Below zero the rounding turns with the rest; payments may be told either way.
TEST(Analisi, SottoZeroGiraAncheLArrotondamento) {
    for (const char* pagata : {"-122.02", "122.02"}) {
        FatturaLetta f = fattura({riepilogo("22", "-100.00", "-22.00")});
        f.totale = "-122.02";
        f.arrotondamento = "-0.02";
        f.pagamenti = {pagamento("2026-11-30", pagata)};
        const Analisi a = analizza(f);
        EXPECT_EQ(a.arrotondamento.testo() + " " + a.totale.testo(), "0.02 122.02");
        EXPECT_EQ(rate(a.rate), "2026-11-30=122.02 ");
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

}  // namespace
