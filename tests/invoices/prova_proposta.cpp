// A case for each rule by which a read invoice becomes the fields of the invoice screen: heading, refusals,
// copy.
#include <gtest/gtest.h>

#include "tests/invoices/tavolo_proposta.h"

using namespace ambra;

namespace {

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

// ---- the attached PDF ----

AllegatoLetto allegato(bool pdf) {
    AllegatoLetto a;
    a.nome = "..\\..\\x.pdf";
    a.pdf = pdf;
    a.impronta = "0123456789abcdef";
    return a;
}

TEST(Proposta, PercorsoDelPdf) {
    Tavolo t;
    FatturaLetta f = di_fornitore(cento());
    f.allegati = {allegato(false), allegato(true)};
    Proposta p = t.proponi(f);
    EXPECT_EQ(p.pdf, "\\LUMDIR\\PDF\\00101234567.pdf");
    EXPECT_TRUE(p.con_pdf);
    t.c.cartella_pdf = "C:\\STUDIO\\DOCUMENTI PDF";
    EXPECT_EQ(t.proponi(f).pdf, "\\LUMDIR\\PDF\\00101234567.pdf");
    t.c.cartella_pdf = "C:\\STUDIO\\DOCUMENTIPDF\\";
    EXPECT_EQ(t.proponi(f).pdf, "C:\\STUDIO\\DOCUMENTIPDF\\00101234567.pdf");
    f.allegati[1].impronta = "";  // left in its file
    EXPECT_EQ(t.proponi(f).pdf, "");
    EXPECT_TRUE(t.proponi(f).con_pdf);
    f.allegati.pop_back();
    EXPECT_EQ(t.proponi(f).pdf, "");
    EXPECT_FALSE(t.proponi(f).con_pdf);
}

}  // namespace
