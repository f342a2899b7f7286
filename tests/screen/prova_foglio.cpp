// A grid as a table, and as CSV.
#include <gtest/gtest.h>

#include "core/testo.h"
#include "screen/foglio.h"

using namespace ambra;

namespace {

const std::string kSegno = "\xEF\xBB\xBF";
using Tipo = CellaFoglio::Tipo;

// The line of CSV of one cell under the heading "T".
std::string campo(std::string_view testo, Allineamento verso) {
    Griglia g;
    g.colonne({{"T", 100, verso}, {"Z", 100}});
    g.aggiungi({testo, "z"});
    std::string csv = csv_di(foglio_di(g));
    const std::string prima = kSegno + "T;Z\r\n", dopo = ";z\r\n";
    EXPECT_TRUE(csv.starts_with(prima) && csv.ends_with(dopo)) << csv;
    return csv.substr(prima.size(), csv.size() - prima.size() - dopo.size());
}

TEST(Foglio, ImportiSenzaIPuntiDelleMigliaia) {
    const std::pair<const char*, const char*> casi[] = {
        {"1.234,50", "1234,50"},
        {"1.234.567,89", "1234567,89"},
        {"-1.234,50", "-1234,50"},
        {"0,00", "0,00"},
        {"12,5", "12,5"},
        {" 1.000 ", "1000"},
        {"1234567,00", "1234567,00"},
        {"42", "42"},
        {"", ""},
        // no amounts: as they stand
        {"1.23", "1.23"},
        {"12.34,50", "12.34,50"},
        {"1234.567", "1234.567"},
        {"1.234,", "1.234,"},
        {",50", ",50"},
        {"1.234,50 EUR", "1.234,50 EUR"},
        {"007", "007"},
        {"Totale", "Totale"},
        {"01/02/2026", "01/02/2026"},
        {"-", "'-"},
    };
    for (const auto& [testo, atteso] : casi) EXPECT_EQ(campo(testo, Allineamento::destra), atteso) << testo;
}

TEST(Foglio, FuoriDalleColonneADestraTuttoComeSiVede) {
    for (const auto verso : {Allineamento::sinistra, Allineamento::centro})
        for (const char* testo : {"1.234,50", "007", "12/A", "01/02/2026", "clic qui"})
            EXPECT_EQ(campo(testo, verso), testo);
    EXPECT_EQ(campo("  Rossi srl   ", Allineamento::sinistra), "Rossi srl");
    EXPECT_EQ(campo("Citt\xE0 \x80", Allineamento::sinistra), "Citt\xC3\xA0 \xE2\x82\xAC");
}

TEST(Foglio, NessunTestoDiventaUnaFormula) {
    const std::pair<const char*, const char*> casi[] = {
        {"=1+1", "'=1+1"},
        {"+39 055 123", "'+39 055 123"},
        {"-cmd", "'-cmd"},
        {"@SUM(A1)", "'@SUM(A1)"},
        {"\tx", "'\tx"},
        {"\rx", "\"'\rx\""},
        {"=\"a;b\"", "\"'=\"\"a;b\"\"\""},
        {"-1+1", "'-1+1"},
        {"-1.2.3", "'-1.2.3"},
        {"=5", "'=5"},
        // numbers stay numbers
        {"-12,50", "-12,50"},
        {"+5", "+5"},
        {"-1.234,00", "-1.234,00"},
        {"-12.5", "-12.5"},
        // what stands further in harms nobody
        {"a=1", "a=1"},
        {"   =1", "'=1"},
    };
    for (const auto& [testo, atteso] : casi) EXPECT_EQ(campo(testo, Allineamento::sinistra), atteso) << testo;
    Griglia g;
    g.colonne({{"=A1", 100}});
    EXPECT_EQ(csv_di(foglio_di(g)), kSegno + "'=A1\r\n");
}

TEST(Foglio, CampiFraVirgolette) {
    const std::pair<const char*, const char*> casi[] = {
        {"a;b", "\"a;b\""},   {"detto \"il Conte\"", "\"detto \"\"il Conte\"\"\""},
        {"a\nb", "\"a\nb\""}, {"a\r\nb", "\"a\r\nb\""},
        {"a,b", "a,b"},
    };
    for (const auto& [testo, atteso] : casi) EXPECT_EQ(campo(testo, Allineamento::sinistra), atteso) << testo;
}

TEST(Foglio, ColonneERigheCheSiVedonoNelLoroOrdine) {
    Griglia g;
    g.colonne({{"Nome", 1000}, {"Chiave", 0}, {"Importo", 900, Allineamento::destra}, {"Resto", kResto}},
              3000);
    g.aggiungi({"Verdi", "2", "10,00", ""});
    g.aggiungi({"Bianchi", "1", "1.000,00", "x"});
    g.aggiungi({"  ", "9", " ", ""});  // a filler, whatever hides in it
    g.aggiungi({"Totale", "", "1.010,00", ""});
    g.righe(9);
    g.ordina(1, Ordine::numerico);
    EXPECT_EQ(csv_di(foglio_di(g)), kSegno +
                                        "Nome;Importo;Resto\r\n"
                                        "Totale;1010,00;\r\n"
                                        "Bianchi;1000,00;x\r\n"
                                        "Verdi;10,00;\r\n");
}

TEST(Foglio, SenzaColonneOSenzaRighe) {
    Griglia g;
    EXPECT_EQ(csv_di(foglio_di(g)), kSegno);
    EXPECT_EQ(foglio_di(g).righe(), 0u);
    g.colonne({{"A", 0}});
    g.aggiungi({"x"});
    EXPECT_EQ(csv_di(foglio_di(g)), kSegno);
    g.colonne({{"A", 10}, {"B", 10}});
    EXPECT_EQ(csv_di(foglio_di(g)), kSegno + "A;B\r\n");
}

TEST(Foglio, OgniCellaColSuoTipo) {
    Griglia g;
    g.colonne({{"1,00", 10, Allineamento::destra}, {"Data", 10}, {"Numero", 10}});
    g.aggiungi({"-1.234,50", "29/02/2024", "104"});
    g.aggiungi({"7", "29/02/2023", "01/02/26"});
    const Foglio f = foglio_di(g);
    ASSERT_EQ(f.righe(), 3u);
    EXPECT_EQ(f.cella(0, 0).tipo, Tipo::testo);  // headings are texts
    EXPECT_EQ(f.cella(1, 0).tipo, Tipo::importo);
    EXPECT_EQ(f.cella(1, 0).valore, -1234.5);
    EXPECT_EQ(f.cella(1, 0).decimali, 2);
    EXPECT_EQ(f.cella(1, 1).tipo, Tipo::data);
    EXPECT_EQ(f.cella(1, 1).data, (Data{29, 2, 2024}));
    EXPECT_EQ(f.cella(1, 2).tipo, Tipo::testo);
    EXPECT_EQ(f.cella(2, 0).decimali, 0);
    EXPECT_EQ(f.cella(2, 0).valore, 7);
    EXPECT_EQ(f.cella(2, 1).tipo, Tipo::testo);
    EXPECT_EQ(f.cella(2, 2).tipo, Tipo::testo);
}

}  // namespace
