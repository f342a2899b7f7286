// The instalments of the invoice screen: amounts, due dates, a document paid at once.
#include "tests/invoices/reazioni.h"

using namespace ambra;

namespace {

TEST_F(Reazioni, FrazionamentoInRate) {
    const struct {
        const char *netto, *rate;
    } casi[] = {
        {"100.00", "33.34 33.33 33.33 "}, {"100.01", "33.33 33.34 33.34 "}, {"200", "66.66 66.67 66.67 "}};
    for (const auto& c : casi) {
        Lumftea& s = nuova(2);
        digita(s.esent[0], c.netto);
        EXPECT_EQ(importi(s), c.rate) << c.netto;
        EXPECT_EQ(date(s), "15/04/2024 15/05/2024 15/06/2024 ");
    }
}

TEST_F(Reazioni, RataAManoFinoAlProssimoFrazionamento) {
    Lumftea& s = nuova(2);
    digita(s.esent[0], "100");
    digita(s.sca[1], "50");
    EXPECT_EQ(importi(s), "33.34 50 33.33 ");
    digita(s.esent[0], "100.0");
    EXPECT_EQ(importi(s), "33.34 33.33 33.33 ");
}

// The amount of an instalment that is not in the term stays until the due dates are worked out again.
TEST_F(Reazioni, TermineConUnBuco) {
    Lumftea& s = nuova(2);
    digita(s.esent[0], "100.01");
    fai([&] { s.Combo1.scegli(con_buco); });
    EXPECT_EQ(importi(s), "50  50.01 ");
    EXPECT_EQ(date(s), "15/04/2024  15/06/2024 ");
    digita(s.sca[1], "9");
    digita(s.esent[0], "200");
    EXPECT_EQ(importi(s), "100 9 100 ");
    digita(s.text1[0], "31/01/2024");
    EXPECT_EQ(importi(s), "100  100 ");
    EXPECT_EQ(date(s), "29/02/2024  30/04/2024 ");
}

TEST_F(Reazioni, SceltaDelTermine) {
    Lumftea& s = nuova(2);
    digita(s.esent[0], "100");
    const struct {
        int termine;
        const char *date, *importi;
    } casi[] = {{contanti, "15/03/2024   ", "100   "},
                {trenta_fine, "30/04/2024   ", "100   "},
                {quattro_rate, "15/04/2024 15/05/2024 15/06/2024 15/07/2024", "25 25 25 25"},
                {fine_31, "31/05/2024   ", "100   "},
                {tre_rate, "15/04/2024 15/05/2024 15/06/2024 ", "33.34 33.33 33.33 "},
                {senza_codice, "15/03/2024   ", "100   "}};
    for (const auto& c : casi) {
        fai([&] { s.Combo1.scegli(c.termine); });
        EXPECT_EQ(date(s), c.date) << c.termine;
        EXPECT_EQ(importi(s), c.importi) << c.termine;
    }
}

TEST_F(Reazioni, DataDelDocumento) {
    Lumftea& s = nuova();
    fai([&] { s.Combo1.scegli(trenta_fine); });
    const struct {
        const char *documento, *scade;
    } casi[] = {{"15/01/2023", "28/02/2023"}, {"15/01/2024", "29/02/2024"},
                {"31.12.2023", "31/01/2024"}, {"31/02/2024", "30/04/2024"},  // no date: from today
                {"15/01/2100", "29/02/2100"}, {"", "30/04/2024"},
                {"15/01/9999", "28/02/9999"}, {"domani", "30/04/2024"}};
    for (const auto& c : casi) {
        digita(s.text1[0], c.documento);
        EXPECT_EQ(s.dsca[0].testo(), c.scade) << c.documento;
    }
}

TEST_F(Reazioni, DataDiRegistrazioneRimetteLeScadenze) {
    Lumftea& s = nuova(2);
    digita(s.dsca[0], "01/01/2030");
    digita(s.dsca[1], "");
    digita(s.text1[1], "20/03/2024");
    EXPECT_EQ(date(s), "15/04/2024 15/05/2024 15/06/2024 ");
}

TEST_F(Reazioni, RateEDateAManoNonMuovonoNulla) {
    Lumftea& s = nuova(2);
    digita(s.esent[0], "90");
    digita(s.dsca[1], "01/01/2030");
    digita(s.sca[2], "1");
    EXPECT_EQ(importi(s), "30 30 1 ");
    EXPECT_EQ(date(s), "15/04/2024 01/01/2030 15/06/2024 ");
    EXPECT_EQ(s.total[4].testo(), " 90,00");
}

// ---- paid at once ----

TEST_F(Reazioni, PagataSubito) {
    Lumftea& s = nuova(2);
    digita(s.impon[0], "90");
    EXPECT_EQ(s.dsca[4].testo(), "");
    digita(s.sca[1], "0");
    digita(s.sca[2], "-1");
    fai([&] { s.pagato.clicca(); });
    // today where an amount above 0 stands; then everything is added up again
    EXPECT_EQ(date(s), "15/03/2024 15/05/2024 15/06/2024 ");
    EXPECT_EQ(importi(s), "30.6 30.6 30.6 ");
    EXPECT_EQ(s.dsca[4].testo(), "16/04/2024");
    fai([&] { s.pagato.clicca(); });
    EXPECT_EQ(date(s), "15/03/2024 15/05/2024 15/06/2024 ");
    EXPECT_EQ(s.dsca[4].testo(), "16/04/2024");
    digita(s.impon[0], "91");  // any change of an amount takes it back
    EXPECT_EQ(s.dsca[4].testo(), "");
}

TEST_F(Reazioni, PagataSubitoELeScadenze) {
    Lumftea& s = nuova(2);
    digita(s.esent[0], "90");
    fai([&] { s.pagato.clicca(); });
    EXPECT_EQ(date(s), "15/03/2024 15/03/2024 15/03/2024 ");
    b.piattaforma.oggi = {16, 3, 2024};
    digita(s.sca[1], "");
    digita(s.text1[0], "01/01/2024");
    EXPECT_EQ(date(s), "16/03/2024 15/03/2024 16/03/2024 ");
    fai([&] { s.Combo1.scegli(contanti); });  // nothing is emptied
    EXPECT_EQ(importi(s), "90  30 ");
}

TEST_F(Reazioni, ScadenzaDellaRitenuta) {
    const struct {
        const char *prima_rata, *scade;
    } casi[] = {{"14/03/2024", "16/04/2024"}, {"10/05/2024", "17/06/2024"}, {"10/08/2025", "16/09/2025"},
                {"24/12/2026", "18/01/2027"}, {"31/02/2024", ""},           {"", ""}};
    for (const auto& c : casi) {
        Lumftea& s = nuova();
        digita(s.impon[0], "100");
        fai([&] { s.pagato.clicca(); });
        digita(s.dsca[0], c.prima_rata);
        digita(s.impon[0], "101");
        EXPECT_EQ(s.dsca[4].testo(), c.scade) << c.prima_rata;
        digita(s.rac[0], "");
        EXPECT_EQ(s.dsca[4].testo(), "") << "no withholding, no due date";
    }
}

TEST_F(Reazioni, OggiNellaPrimaRata) {
    Lumftea& s = nuova(2);
    premi(s.Command1);
    EXPECT_EQ(date(s), "15/03/2024 15/05/2024 15/06/2024 ");
}

}  // namespace
