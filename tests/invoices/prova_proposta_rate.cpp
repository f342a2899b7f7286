// The instalments and the withheld tax that a read invoice proposes; a walk over invoices of any shape.
#include <gtest/gtest.h>
#include <random>

#include "tests/invoices/tavolo_proposta.h"

using namespace ambra;

namespace {

TEST(Proposta, Rate) {
    Tavolo t;
    FatturaLetta f = con_tassa(fattura({riepilogo("22", "1000", "220")}), "RT02", "40", "4");
    f.righe = {riga("1000", "22", true)};
    EXPECT_EQ(rate(t.proponi(f)), "come il termine");
    f.pagamenti = {pagamento("2026-11-30", "1180")};
    EXPECT_EQ(rate(t.proponi(f)), "30/11/2026=1180.00");
    f.pagamenti = {pagamento("2026-11-30", "1220")};
    EXPECT_EQ(rate(t.proponi(f)), "30/11/2026=1180.00");
    f.pagamenti = {pagamento("2026-10-31", "406.66"), pagamento("2026-11-30", "406.67"),
                   pagamento("2026-12-31", "0"), pagamento("2027-01-31", "406.67")};
    EXPECT_EQ(rate(t.proponi(f)), "31/10/2026=393.32 30/11/2026=393.34 31/01/2027=393.34");
    f.pagamenti = {pagamento("2026-11-30", "1000")};
    EXPECT_EQ(rate(t.proponi(f)), "come il termine");
    EXPECT_EQ(codici(t.proponi(f)), "rate-non-quadrano");
}

TEST(Proposta, SenzaDataQuellaDelTermine) {
    Tavolo t;
    t.c.termine = 1;
    FatturaLetta f = di_fornitore(cento());
    f.pagamenti = {pagamento("", "22"), pagamento("", "50"), pagamento("", "50")};
    EXPECT_EQ(rate(t.proponi(f)), "30/11/2026=22.00 31/12/2026=50.00 31/12/2026=50.00");
    EXPECT_EQ(codici(t.proponi(f)), "scadenza-assente");
}

TEST(Proposta, SeiRateDiventanoQuattro) {
    Tavolo t;
    FatturaLetta f = di_fornitore(cento());
    for (const char* d : {"2026-10-31", "2026-11-30", "2026-12-31", "2027-01-31", "2027-02-28"})
        f.pagamenti.push_back(pagamento(d, "20"));
    f.pagamenti.push_back(pagamento("2027-03-31", "22"));
    EXPECT_EQ(rate(t.proponi(f)), "31/10/2026=20.00 30/11/2026=20.00 31/12/2026=20.00 31/01/2027=62.00");
}

TEST(Proposta, SenzaPagamentiIContributiDiminuisconoLeRate) {
    Tavolo t;
    t.c.termine = 1;
    FatturaLetta f = con_tassa(fattura({riepilogo("22", "1000", "220")}), "RT04", "40.01", "4");
    EXPECT_EQ(rate(t.proponi(f)), "30/11/2026=589.99 31/12/2026=590.00");
    EXPECT_EQ(codici(t.proponi(f)), "contributi-trattenuti");
}

// ---- the tax of the last document ----

TEST(Proposta, RitenutaComeNellUltimaFattura) {
    Tavolo t;
    FatturaLetta f = di_fornitore(fattura({riepilogo("22", "400", "88")}));
    f.pagamenti = {pagamento("2026-11-30", "488")};
    EXPECT_EQ(t.proponi(f).ritenuta_offerta, "");
    t.c.ultima = &t.ultima;
    EXPECT_EQ(t.proponi(f).ritenuta_offerta, "");
    t.ultima.impon[4] = 333.33;
    t.ultima.impon[0] = 100;
    t.ultima.rac[4] = 13.33;
    EXPECT_EQ(t.proponi(f).ritenuta_offerta, "4");
    EXPECT_EQ(righe(t.proponi(f)), "0:400.00/88.00/");
    t.c.applica_ritenuta = true;
    const Proposta p = t.proponi(f);
    EXPECT_EQ(righe(p), "4:400.00/88.00/16.00");
    EXPECT_EQ(rate(p), "30/11/2026=472.00");
    EXPECT_EQ(p.netto.testo(), "472.00");
    EXPECT_EQ(p.ritenuta_offerta, "4");
    EXPECT_EQ(codici(p), "");
    f.pagamenti = {pagamento("2026-11-30", "472")};
    EXPECT_EQ(rate(t.proponi(f)), "30/11/2026=472.00");
    EXPECT_EQ(codici(t.proponi(f)), "");
    f = con_tassa(f, "RT02", "16", "4");
    EXPECT_EQ(t.proponi(f).ritenuta_offerta, "");
}

// ---- property: total, tax and net are the file's, or a warning says why ----

Decimale somma_testi(const std::array<std::string, kCodiciIva>& testi) {
    Decimale s;
    for (const std::string& x : testi) s += Decimale::leggi(x).value_or(Decimale());
    return s;
}

FatturaLetta a_caso(std::mt19937& g) {
    const auto fino = [&g](int n) { return static_cast<int>(g() % static_cast<unsigned>(n)); };
    const auto importo = [&] { return Decimale::di_centesimi(fino(300'000) - 20'000).testo(); };
    const char* aliquote[] = {"22", "10", "4", "0", "5", "8", "22.00"};
    const char* nature[] = {"N1", "N2.2", "N4", "N5", ""};
    const char* tasse[] = {"4", "20", "11", "5.5"};
    std::vector<RiepilogoLetto> r;
    FatturaLetta f;
    for (int i = fino(3); i >= 0; --i) {
        const char* aliquota = aliquote[fino(7)];
        const std::string imponibile = importo();
        const Decimale iva = percentuale(*Decimale::leggi(imponibile), *Decimale::leggi(aliquota));
        r.push_back(riepilogo(aliquota, imponibile.c_str(), iva.testo().c_str(), nature[fino(5)]));
        f.righe.push_back(riga(imponibile.c_str(), aliquota, fino(2) == 0));
    }
    const std::vector<RigaLetta> linee = f.righe;
    f = di_fornitore(fattura(r));
    f.righe = linee;
    for (int i = fino(3); i > 0; --i)
        f = con_tassa(f, fino(4) == 0 ? "RT04" : "RT02", Decimale::di_centesimi(fino(9000)).testo().c_str(),
                      tasse[fino(4)]);
    for (int i = fino(7); i > 0; --i)
        f.pagamenti.push_back(pagamento(fino(2) ? "2026-11-30" : "", importo().c_str()));
    if (fino(3) == 0) {
        f.pagamenti.clear();
        const Analisi a = analizza(f);
        f.pagamenti = {pagamento("2026-12-31", (fino(2) ? a.netto : a.totale).testo().c_str())};
    }
    if (fino(4) == 0) f.totale = (analizza(f).totale + Decimale::di_centesimi(fino(200) - 100)).testo();
    if (fino(4) == 0) f.arrotondamento = "0.10";
    return f;
}

TEST(Proposta, TotaleRitenutaENettoSonoQuelliDelFile) {
    std::mt19937 g(20261122);
    Tavolo t;
    t.c.ultima = &t.ultima;
    t.ultima.impon[4] = 100;
    t.ultima.rac[4] = 4;
    int proposte = 0, esatte = 0;
    for (int giro = 0; giro < 3'000; ++giro) {
        t.c.termine = giro % 2;
        t.c.applica_ritenuta = giro % 5 == 0;
        const FatturaLetta f = a_caso(g);
        const Proposta p = t.proponi(f);
        if (!p.impedimento.empty()) continue;
        ++proposte;
        const Decimale totale = somma_testi(p.impon) + somma_testi(p.ivai) + somma_testi(p.esent);
        const Decimale tassa = somma_testi(p.rac);
        Decimale rate = totale - tassa;  // what the screen splits by itself
        if (p.con_rate) {
            rate = Decimale();
            for (const std::string& s : p.sca) rate += Decimale::leggi(s).value_or(Decimale());
        }
        ASSERT_EQ(totale == p.totale, !p.avvisa("totale-proposto-diverso")) << giro;
        ASSERT_EQ(tassa == p.ritenuta, !p.avvisa("ritenuta-proposta-diversa")) << giro;
        ASSERT_TRUE(rate == p.netto || p.avvisa("netto-proposto-diverso")) << giro;
        esatte += totale == p.totale && tassa == p.ritenuta && rate == p.netto;
    }
    EXPECT_GT(proposte, 700);
    EXPECT_GT(esatte, proposte / 3);
}

}  // namespace
