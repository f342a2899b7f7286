// The rows of the VAT codes and of the exemption codes that a read invoice proposes.
#include <gtest/gtest.h>

#include "tests/invoices/tavolo_proposta.h"

using namespace ambra;

namespace {

struct CasoIva {
    const char* nome;
    std::vector<RiepilogoLetto> riepiloghi;
    std::vector<RigaLetta> righe;
    const char *tassa, *aliquota;
    const char* attese;
    const char* avvisi;
};

const CasoIva kCasiIva[] = {
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
    {"compenso esente senza codice, accanto ad altro",
     {riepilogo("0", "500", "0", "N4"), riepilogo("22", "100", "22")},
     {riga("500", "0", true)},
     "20",
     "4",
     "0:100.00/22.00/ 1://20.00 e1:500.00",
     "ritenuta-su-esente"},
    {"due aliquote segnate per intero",
     {riepilogo("22", "100", "22"), riepilogo("10", "200", "20")},
     {riga("100", "22", true), riga("200", "10", true)},
     "12",
     "4",
     "4:100.00/22.00/4.00 5:200.00/20.00/8.00",
     ""},
    {"il file non dice la percentuale",
     {riepilogo("22", "100", "22")},
     {riga("100", "22", true)},
     "4",
     "",
     "0:100.00/22.00/4.00",
     "righe-e-ritenuta-non-concordano riga-iva-senza-ritenuta"},
};

TEST(Proposta, RigheIva) {
    Tavolo t;
    for (const CasoIva& c : kCasiIva) {
        FatturaLetta f = di_fornitore(fattura(c.riepiloghi));
        f.righe = c.righe;
        if (*c.tassa) f = con_tassa(f, "RT02", c.tassa, c.aliquota);
        const Proposta p = t.proponi(f);
        EXPECT_EQ(righe(p), c.attese) << c.nome;
        EXPECT_EQ(codici(p), c.avvisi) << c.nome;
    }
}

// Rows of the rate, but none for the rest of a base in part: all on the row that withholds.
TEST(Proposta, NessunaRigaSenzaRitenutaPerIlResto) {
    Tavolo t;
    t.iva.codice[1].aliquota = "21";
    FatturaLetta f = con_tassa(fattura({riepilogo("22", "150", "33")}), "RT02", "4", "4");
    f.righe = {riga("100", "22", true)};
    EXPECT_EQ(righe(t.proponi(f)), "4:150.00/33.00/4.00");
    EXPECT_EQ(codici(t.proponi(f)), "riga-iva-senza-ritenuta");
}

TEST(Proposta, LAvvisoDiceCheLaPercentualeManca) {
    Tavolo t;
    for (const char* aliquota : {"22", "0"}) {
        FatturaLetta f = con_tassa(fattura({riepilogo(aliquota, "100", "0", "N4")}), "RT02", "4", "");
        f.righe = {riga("100", aliquota, true)};
        const std::string parole = t.proponi(f).avvisi.back().parole;
        EXPECT_TRUE(parole.starts_with("Il file non dice la percentuale della ritenuta: ")) << parole;
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

// Every word by which a caption is known, alone in the table.
TEST(Proposta, OgniParolaDelleDiciture) {
    const struct {
        const char *natura, *dicitura;
    } casi[] = {{"N1", "art.15 DPR 633/72"},
                {"N2.1", "Fuori campo iva"},
                {"N2", "F.c. art. 2"},
                {"N2.1", "Artt. 7-septies"},
                {"N2.2", "Regime forfetario"},
                {"N2.2", "L. 190/2014"},
                {"N2.2", "Art. 1, c. 54-89"},
                {"N2.2", "c.58"},
                {"N3.1", "ART 8"},
                {"N3", "art. 9"},
                {"N3.6", "Operazioni non imponibili"},
                {"N4", "Art. 10"},
                {"N4", "Esente"},
                {"N6.3", "art. 17 c. 6"},
                {"N6.9", "Inversione contabile"}};
    Tavolo t;
    t.iva.esenzione = {};
    for (const auto& c : casi) {
        t.iva.esenzione[4] = c.dicitura;
        FatturaLetta f = di_fornitore(fattura({riepilogo("0", "10", "0", c.natura)}));
        f.fornitore.regime = "RF19";
        const bool forfettario = f.riepiloghi[0].natura == "N2.2";
        EXPECT_EQ(righe(t.proponi(f)), "e3:10.00") << c.dicitura;
        f.fornitore.regime = "RF01";
        EXPECT_EQ(righe(t.proponi(f)), forfettario ? "" : "e3:10.00") << c.dicitura;
        f.riepiloghi[0].natura = "N5";
        EXPECT_EQ(righe(t.proponi(f)), "") << c.dicitura;
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

}  // namespace
