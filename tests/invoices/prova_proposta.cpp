// A case for each rule by which a read invoice becomes the fields of the invoice screen.
#include "invoices/proposta.h"

#include <gtest/gtest.h>

#include <random>

#include "core/testo.h"
#include "invoices/analisi.h"
#include "tests/invoices/fatture_lette.h"
#include "tests/supporto/banco.h"

using namespace ambra;

namespace {

// The tables of a studio: 22, 10, 4, 22/20, 22/4, 10/4, 5, 0/20.
struct Tavolo {
    TabellaIva iva;
    TabellaPagamenti pagamenti;
    RecFattura ultima = fattura_vuota();
    Contorno c;

    Tavolo() {
        const char* codici[8][2] = {{"22", "0"}, {"10", "0"}, {"4", "0"}, {"22", "20"},
                                    {"22", "4"}, {"10", "4"}, {"5", ""},  {"0", "20"}};
        const char* esenti[8] = {"Art. 15 anticipazioni", "Art. 10 esenti", "Art. 8 non imponibili",
                                 "Art. 17 inversione",    "Art. 1 c. 58",   "Art. 2 fuori campo",
                                 "Art. 74 editoria",      "Altro"};
        for (std::size_t i = 0; i < 8; ++i) {
            iva.codice[i + 1] = {codici[i][0], "100", codici[i][1]};
            iva.esenzione[i + 1] = esenti[i];
        }
        pagamenti.termine[1] = {"Rimessa diretta", "000000000000N000"};
        pagamenti.termine[2] = {"30/60 fine mese", "001002000000F000"};
        c.iva = &iva;
        c.pagamenti = &pagamenti;
        c.oggi = "10/10/2026";
        c.nnn = "001";
        c.cartella_pdf = "\\LUMDIR\\PDF";
    }
    Proposta proponi(const FatturaLetta& f) { return ambra::proponi(f, c); }
};

FatturaLetta con_tassa(FatturaLetta f, const char* tipo, const char* importo, const char* aliquota) {
    RitenutaLetta r;
    r.tipo = tipo;
    r.importo = importo;
    r.aliquota = aliquota;
    f.ritenute.push_back(r);
    f.fornitore.codice_iva = "01234567897";
    f.fornitore.paese_iva = "IT";
    return f;
}

FatturaLetta di_fornitore(FatturaLetta f) {
    f.fornitore.codice_iva = "01234567897";
    f.fornitore.paese_iva = "IT";
    return f;
}

// "3:1000.00/220.00/40.00" of each row that holds something, then the exempt ones, "e5:2.00".
std::string righe(const Proposta& p) {
    std::string s;
    for (std::size_t i = 0; i < kCodiciIva; ++i)
        if (!p.impon[i].empty() || !p.ivai[i].empty() || !p.rac[i].empty())
            s += std::to_string(i) + ":" + p.impon[i] + "/" + p.ivai[i] + "/" + p.rac[i] + " ";
    for (std::size_t i = 0; i < kCodiciIva; ++i)
        if (!p.esent[i].empty()) s += "e" + std::to_string(i) + ":" + p.esent[i] + " ";
    return s.empty() ? s : s.substr(0, s.size() - 1);
}

std::string rate(const Proposta& p) {
    if (!p.con_rate) return "come il termine";
    std::string s;
    for (std::size_t i = 0; i < kRate; ++i)
        if (!p.sca[i].empty()) s += p.dsca[i] + "=" + p.sca[i] + " ";
    return s.empty() ? s : s.substr(0, s.size() - 1);
}

std::string codici(const Proposta& p) {
    std::string s;
    for (const Avviso& a : p.avvisi) {
        EXPECT_FALSE(a.parole.empty()) << a.codice;
        EXPECT_NE(a.parole, a.codice);
        s += (s.empty() ? "" : " ") + a.codice;
    }
    return s;
}

// ---- head ----

TEST(Proposta, Testata) {
    Tavolo t;
    FatturaLetta f = di_fornitore(fattura({riepilogo("22", "100", "22")}));
    f.numero = " FT  2026/000345 ";
    const Proposta p = t.proponi(f);
    EXPECT_EQ(p.numero, "026/000345");
    EXPECT_EQ(p.datadoc, "05/10/2026");
    EXPECT_EQ(p.datareg, "10/10/2026");
    EXPECT_FALSE(p.nota_credito);
    ASSERT_TRUE(p.avvisa("numero-accorciato"));
    EXPECT_NE(p.avvisi[0].parole.find("FT 2026/000345"), std::string::npos);
    f.numero = "12/A";
    f.data = "5/10/2026";
    EXPECT_EQ(t.proponi(f).datadoc, "");
    EXPECT_EQ(codici(t.proponi(f)), "data-assente-o-errata");
}

TEST(Proposta, IlTermineFuoriTabellaEIlPrimo) {
    Tavolo t;
    t.c.termine = 40;
    EXPECT_EQ(t.proponi(di_fornitore(cento())).termine, 0);
    t.c.termine = 1;
    EXPECT_EQ(t.proponi(di_fornitore(cento())).termine, 1);
}

TEST(Proposta, NonRegistrabile) {
    Tavolo t;
    const struct {
        const char* perche;
        void (*guasta)(FatturaLetta&);
    } casi[] = {
        {"documento emesso dal cliente", [](FatturaLetta& f) { f.tipo = "TD17"; }},
        {"divisa USD", [](FatturaLetta& f) { f.divisa = "USD"; }},
        {"senza riepilogo iva", [](FatturaLetta& f) { f.riepiloghi.clear(); }},
        {"importi fuori misura",
         [](FatturaLetta& f) {
             f.riepiloghi = {riepilogo("22", "900000000", "0"), riepilogo("10", "900000000", "0")};
         }},
        {"la ritenuta supera il totale", [](FatturaLetta& f) { f = con_tassa(f, "RT02", "200", "100"); }},
        {"la base della ritenuta supera il documento",
         [](FatturaLetta& f) { f = con_tassa(f, "RT02", "20", "4"); }},
        {"netto negativo", [](FatturaLetta& f) { f = con_tassa(f, "RT03", "130", "4"); }},
        {"fornitore senza partita iva e codice fiscale",
         [](FatturaLetta& f) { f.fornitore.codice_iva = ""; }},
    };
    for (const auto& c : casi) {
        FatturaLetta f = di_fornitore(cento());
        c.guasta(f);
        const Proposta p = t.proponi(f);
        EXPECT_EQ(p.impedimento, c.perche);
        EXPECT_EQ(righe(p), "");
    }
    EXPECT_EQ(t.proponi(di_fornitore(cento())).impedimento, "");
}

// ---- VAT rows and the tax on them ----

struct CasoIva {
    const char* nome;
    std::vector<RiepilogoLetto> riepiloghi;
    std::vector<RigaLetta> righe;
    const char *tassa, *aliquota;
    const char* attese;
    const char* avvisi;
};

TEST(Proposta, RigheIva) {
    const CasoIva casi[] = {
        {"senza ritenuta", {riepilogo("22", "100", "22")}, {}, "", "", "0:100.00/22.00/", ""},
        {"4 per cento",
         {riepilogo("22", "1000", "220")},
         {riga("1000", "22", true)},
         "40",
         "4",
         "4:1000.00/220.00/40.00",
         ""},
        {"base di 1800 su 1872",
         {riepilogo("22", "1872", "411.84")},
         {riga("1800", "22", true)},
         "360",
         "20",
         "0:72.00/15.84/ 3:1800.00/396.00/360.00",
         ""},
        {"l'iva del file vince", {riepilogo("10", "100", "10.01")}, {}, "", "", "1:100.00/10.01/", ""},
        {"aliquota che manca",
         {riepilogo("22", "100", "22"), riepilogo("8", "50", "4")},
         {},
         "",
         "",
         "0:100.00/22.00/",
         "aliquota-non-in-tabella totale-proposto-diverso netto-proposto-diverso"},
        {"una sola riga di quell'aliquota",
         {riepilogo("4", "100", "4")},
         {riga("100", "4", true)},
         "20",
         "20",
         "2:100.00/4.00/20.00",
         "una-sola-riga-iva"},
        {"nessuna riga con quella ritenuta",
         {riepilogo("10", "100", "10")},
         {riga("100", "10", true)},
         "20",
         "20",
         "1:100.00/10.00/20.00",
         "riga-iva-senza-ritenuta"},
        {"due aliquote, le righe segnate fanno la base",
         {riepilogo("22", "100", "22"), riepilogo("10", "200", "20")},
         {riga("150", "10", true), riga("50", "22", true)},
         "8",
         "4",
         "0:50.00/11.00/ 1:50.00/5.00/ 4:50.00/11.00/2.00 5:150.00/15.00/6.00",
         ""},
        {"due aliquote, nell'ordine della tabella",
         {riepilogo("10", "200", "20"), riepilogo("22", "100", "22")},
         {},
         "6",
         "4",
         "1:150.00/15.00/ 4:100.00/22.00/4.00 5:50.00/5.00/2.00",
         "ritenuta-solo-in-testata"},
        {"compenso esente con codice ad aliquota 0",
         {riepilogo("0", "500", "0", "N4"), riepilogo("0", "2", "0", "N1")},
         {riga("500", "0", true)},
         "100",
         "20",
         "7:500.00//100.00 e0:2.00",
         ""},
        {"compenso esente senza codice",
         {riepilogo("0", "500", "0", "N4")},
         {riga("500", "0", true)},
         "20",
         "4",
         "0://20.00 e1:500.00",
         "ritenuta-su-esente"},
    };
    Tavolo t;
    for (const CasoIva& c : casi) {
        FatturaLetta f = di_fornitore(fattura(c.riepiloghi));
        f.righe = c.righe;
        if (*c.tassa) f = con_tassa(f, "RT02", c.tassa, c.aliquota);
        const Proposta p = t.proponi(f);
        EXPECT_EQ(righe(p), c.attese) << c.nome;
        EXPECT_EQ(codici(p), c.avvisi) << c.nome;
    }
}

TEST(Proposta, DueRitenuteSommateConLAliquotaDellaMaggiore) {
    Tavolo t;
    FatturaLetta f = con_tassa(fattura({riepilogo("22", "1000", "220")}), "RT01", "10", "1");
    f = con_tassa(f, "RT02", "30", "4");
    f.righe = {riga("1000", "22", true)};
    EXPECT_EQ(righe(t.proponi(f)), "4:1000.00/220.00/40.00");
}

TEST(Proposta, RigaCheTrattieneDaSolaSenzaRitenutaNelFile) {
    Tavolo t;
    t.iva.codice[1].ritenuta = "20";
    t.iva.codice[5].ritenuta = "20";
    const Proposta p = t.proponi(di_fornitore(cento()));
    EXPECT_EQ(righe(p), "0:100.00/22.00/");
    EXPECT_EQ(p.rac[0], "");
}

// ---- exempt amounts ----

struct CasoEsente {
    const char *natura, *regime;
    int codice;  // -1: the user chooses
};

TEST(Proposta, CodiceDiEsenzionePerParole) {
    const CasoEsente casi[] = {{"N1", "RF01", 0},   {"N2", "RF01", 5},   {"N2.1", "RF01", 5},
                               {"N2.2", "RF01", 5}, {"N2.2", "RF19", 4}, {"N2.2", "RF02", 4},
                               {"N3.5", "RF01", 2}, {"N4", "RF01", 1},   {"N6.7", "RF01", 3},
                               {"N5", "RF01", -1},  {"", "RF01", -1}};
    Tavolo t;
    for (const CasoEsente& c : casi) {
        FatturaLetta f = di_fornitore(fattura({riepilogo("0", "10", "0", c.natura)}));
        f.fornitore.regime = c.regime;
        const Proposta p = t.proponi(f);
        EXPECT_EQ(righe(p), c.codice < 0 ? "" : "e" + std::to_string(c.codice) + ":10.00") << c.natura;
        EXPECT_EQ(p.chiede_esenzione, c.codice < 0) << c.natura;
        EXPECT_EQ(p.avvisa("esenzione-da-scegliere"), c.codice < 0) << c.natura;
    }
}

TEST(Proposta, LeParoleSonoIntere) {
    Tavolo t;
    t.iva.esenzione[1] = "Art. 150";
    t.iva.esenzione[6] = "Art. 26, art. 17-ter";
    FatturaLetta f = di_fornitore(fattura({riepilogo("0", "10", "0", "N1")}));
    EXPECT_TRUE(t.proponi(f).chiede_esenzione);
    f.riepiloghi[0].natura = "N2.1";
    EXPECT_TRUE(t.proponi(f).chiede_esenzione);
    t.iva.esenzione[8] = "Artt. 7-bis e seguenti";
    EXPECT_EQ(righe(t.proponi(f)), "e7:10.00");
}

TEST(Proposta, LaSceltaDellUtenteValeSoloDoveMancaIlCodice) {
    Tavolo t;
    t.c.esenzione = 6;
    const Proposta p =
        t.proponi(di_fornitore(fattura({riepilogo("0", "10", "0", "N5"), riepilogo("0", "2", "0", "N1")})));
    EXPECT_EQ(righe(p), "e0:2.00 e6:10.00");
    EXPECT_TRUE(p.chiede_esenzione);
    EXPECT_EQ(codici(p), "");
}

TEST(Proposta, IlCodiceDellUltimoDocumento) {
    Tavolo t;
    t.c.ultima = &t.ultima;
    t.ultima.esent[6] = 30;
    const FatturaLetta f = di_fornitore(fattura({riepilogo("0", "10", "0", "N4")}));
    EXPECT_EQ(righe(t.proponi(f)), "e6:10.00");
    t.ultima.esent[2] = 1;
    EXPECT_EQ(righe(t.proponi(f)), "e1:10.00");
}

TEST(Proposta, PiuNatureSiDistinguonoPerParole) {
    Tavolo t;
    t.c.ultima = &t.ultima;
    t.ultima.esent[4] = 300;
    FatturaLetta f =
        di_fornitore(fattura({riepilogo("0", "300", "0", "N2.2"), riepilogo("0", "2", "0", "N1")}));
    f.fornitore.regime = "RF19";
    EXPECT_EQ(righe(t.proponi(f)), "e0:2.00 e4:300.00");
}

TEST(Proposta, ArrotondamentoSottoIlCodiceN2) {
    Tavolo t;
    FatturaLetta f = di_fornitore(fattura({riepilogo("22", "23.27", "5.12")}));
    f.totale = "28.40";
    f.arrotondamento = "0.01";
    EXPECT_EQ(righe(t.proponi(f)), "0:23.27/5.12/ e5:0.01");
    EXPECT_EQ(codici(t.proponi(f)), "");
    f.totale = "28.00";
    f.arrotondamento = "-0.39";
    EXPECT_EQ(righe(t.proponi(f)), "0:23.27/5.12/ e5:-0.39");
    f.totale = "30.00";
    EXPECT_EQ(codici(t.proponi(f)), "totale-dichiarato-diverso");
}

// ---- instalments ----

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

// ---- the attached PDF ----

AllegatoLetto allegato(const char* contenuto) {
    AllegatoLetto a;
    a.nome = "..\\..\\x.pdf";
    a.contenuto = contenuto;
    a.impronta = "0123456789abcdef";
    return a;
}

TEST(Proposta, PercorsoDelPdf) {
    Tavolo t;
    FatturaLetta f = di_fornitore(cento());
    f.allegati = {allegato("PK"), allegato("%PDF-1.4")};
    Proposta p = t.proponi(f);
    EXPECT_EQ(p.pdf, "\\LUMDIR\\PDF\\00101234567.pdf");
    EXPECT_EQ(p.allegato, &f.allegati[1]);
    t.c.cartella_pdf = "C:\\STUDIO\\DOCUMENTI PDF";
    EXPECT_EQ(t.proponi(f).pdf, "\\LUMDIR\\PDF\\00101234567.pdf");
    t.c.cartella_pdf = "C:\\STUDIO\\DOCUMENTIPDF\\";
    EXPECT_EQ(t.proponi(f).pdf, "C:\\STUDIO\\DOCUMENTIPDF\\00101234567.pdf");
    f.allegati.pop_back();
    EXPECT_EQ(t.proponi(f).pdf, "");
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
