// The reactions of the invoice screen, field by field.
#include "core/testo.h"
#include "tests/invoices/studio.h"

using namespace ambra;

namespace {

class Reazioni : public Studio {
  protected:
    std::string date(Lumftea& s) {
        return unisci(s.dsca[0].testo(), " ", s.dsca[1].testo(), " ", s.dsca[2].testo(), " ",
                      s.dsca[3].testo());
    }
    std::string importi(Lumftea& s) {
        return unisci(s.sca[0].testo(), " ", s.sca[1].testo(), " ", s.sca[2].testo(), " ", s.sca[3].testo());
    }
};

TEST_F(Reazioni, DidascalieDalleTabelle) {
    Lumftea& s = nuova();
    const char* aliquote[8] = {" Aliquota 22%", " Aliquota 10%", " Aliquota 4%",   " Aliquota 20,5%",
                               " Aliquota %",   " Aliquota 0%",  " Aliquota abc%", " Aliquota 22.5%"};
    const char* ritenute[8] = {"20%", "", "", "-4%", "", "4%", "", "2.5%"};
    for (std::size_t i = 0; i < 8; ++i) {
        EXPECT_EQ(s.iv[i].caption(), aliquote[i]);
        EXPECT_EQ(s.iv[8 + i].caption(), ritenute[i]);
        EXPECT_EQ(s.es[i].caption(), " Art. " + std::to_string(i + 1));
    }
    ASSERT_EQ(s.Combo1.voci().size(), 40u);
    EXPECT_EQ(s.Combo1.voci()[2], "30/60/90");
    EXPECT_EQ(s.Combo1.voci()[39], "");
}

TEST_F(Reazioni, SenzaTabelle) {
    b.memoria.elimina(kCartella + "lumora.iva");
    b.memoria.elimina(kCartella + "lumora.pag");
    Lumftea& s = nuova(2);
    EXPECT_EQ(s.iv[0].caption(), " Aliquota %");
    EXPECT_EQ(s.iv[8].caption(), "");
    EXPECT_EQ(s.es[0].caption(), " ");
    digita(s.impon[0], "100");
    EXPECT_EQ(s.ivai[0].testo(), "0");
    EXPECT_EQ(s.rac[0].testo(), "");
    EXPECT_EQ(importi(s), "100   ");
    EXPECT_EQ(date(s), "15/03/2024   ");
    EXPECT_TRUE(b.piattaforma.messaggi.empty());
}

TEST_F(Reazioni, UnaRigaDiIva) {
    Lumftea& s = nuova();
    digita(s.impon[0], "333.33");
    EXPECT_EQ(s.ivai[0].testo(), "73.33");
    EXPECT_EQ(s.rac[0].testo(), "66.67");
    EXPECT_EQ(s.total[0].testo(), " 333,33");
    EXPECT_EQ(s.total[1].testo(), " 73,33");
    EXPECT_EQ(s.total[2].testo(), " 66,67");
    EXPECT_EQ(s.total[3].testo(), " ");
    EXPECT_EQ(s.total[4].testo(), " 406,66");
    EXPECT_EQ(importi(s), "339.99   ");
}

TEST_F(Reazioni, ATastoATasto) {
    Lumftea& s = nuova();
    const struct {
        const char *digitato, *iva, *ritenuta, *totale, *rata;
    } tasti[] = {{"1", "0.22", "0.2", " 1,22", "1.02"},     {"12", "2.64", "2.4", " 14,64", "12.24"},
                 {"12.", "2.64", "2.4", " 14,64", "12.24"}, {"12.5", "2.75", "2.5", " 15,25", "12.75"},
                 {"12.", "2.64", "2.4", " 14,64", "12.24"}, {"", "0", "0", " ", "0"}};
    for (const auto& t : tasti) {
        digita(s.impon[0], t.digitato);
        EXPECT_EQ(s.ivai[0].testo(), t.iva) << t.digitato;
        EXPECT_EQ(s.rac[0].testo(), t.ritenuta) << t.digitato;
        EXPECT_EQ(s.total[4].testo(), t.totale) << t.digitato;
        EXPECT_EQ(s.sca[0].testo(), t.rata) << t.digitato;
    }
}

// Field, text, VAT, withholding. A rate is read up to the first character that is no number.
TEST_F(Reazioni, OgniCodice) {
    const struct {
        std::size_t i;
        const char *iva, *ritenuta;
    } casi[] = {{0, "22", "20"}, {1, "10", ""}, {2, "4", ""}, {3, "20", ""},
                {4, "0", ""},    {5, "0", "4"}, {6, "0", ""}, {7, "22.5", "2.5"}};
    for (const auto& c : casi) {
        Lumftea& s = nuova();
        digita(s.impon[c.i], "100");
        EXPECT_EQ(s.ivai[c.i].testo(), c.iva) << c.i;
        EXPECT_EQ(s.rac[c.i].testo(), c.ritenuta) << c.i;
    }
}

TEST_F(Reazioni, TestiNeiCampiDegliImporti) {
    const std::string venti_cifre = "12345678901234567890";
    const struct {
        std::string digitato;
        const char *totale, *rata;  // of an exempt amount: nothing is computed upon it
    } casi[] = {
        {"abc", " ", "0"},          {"1.234,50", " 1,23", "1.234"},
        {"1,5", " 1,00", "1"},      {"  7 ", " 7,00", "7"},
        {"1e300", " 1,00", "1"},    {"NaN", " ", "0"},
        {"inf", " ", "0"},          {"1.2.3", " 1,20", "1.2"},
        {"-5", " -5,00", "-5"},     {"--5", " ", "0"},
        {".5", " 0,50", "0.5"},     {"0x10", " ", "0"},
        {"\xE0\xFF\x01", " ", "0"}, {venti_cifre, " 12.345.678.901.234.600.000,00", "12345678901234600000"}};
    for (const auto& c : casi) {
        Lumftea& s = nuova();
        digita(s.esent[0], c.digitato);
        EXPECT_EQ(s.esent[0].testo(), c.digitato);
        EXPECT_EQ(s.total[4].testo(), c.totale) << c.digitato;
        EXPECT_EQ(s.sca[0].testo(), c.rata) << c.digitato;
    }
}

TEST_F(Reazioni, ImportiSmisuratiNonFermanoNulla) {
    for (const auto& cifre : {std::string(300, '9'), std::string(400, '9'), std::string(308, '1')}) {
        Lumftea& s = nuova(2);
        for (auto& c : s.impon) digita(c, cifre);
        digita(s.impon[0], "-" + cifre);
        digita(s.impon[0], "100");
        for (std::size_t i = 1; i < 8; ++i) digita(s.impon[i], "");
        EXPECT_EQ(s.total[4].testo(), " 122,00");
        EXPECT_EQ(importi(s), "34 34 34 ");
    }
}

TEST_F(Reazioni, RitenutaAManoConAliquotaZero) {
    Lumftea& s = nuova();
    digita(s.rac[1], "7.5");
    digita(s.impon[1], "100");
    EXPECT_EQ(s.rac[1].testo(), "7.5");
    EXPECT_EQ(importi(s), "102.5   ");
    digita(s.rac[3], "1");  // a rate below 0 does not touch it either
    digita(s.impon[3], "100");
    EXPECT_EQ(s.rac[3].testo(), "1");
}

TEST_F(Reazioni, IvaAManoFinoAlProssimoImponibile) {
    Lumftea& s = nuova();
    digita(s.impon[0], "100");
    digita(s.ivai[0], "21.99");
    EXPECT_EQ(s.total[4].testo(), " 121,99");
    digita(s.impon[1], "10");
    EXPECT_EQ(s.ivai[0].testo(), "21.99");
    digita(s.impon[0], "100.0");
    EXPECT_EQ(s.ivai[0].testo(), "22");
}

TEST_F(Reazioni, EsentiSolaSommaNelTotale) {
    Lumftea& s = nuova();
    digita(s.esent[7], "50");
    EXPECT_EQ(s.total[3].testo(), " ");
    EXPECT_EQ(s.total[4].testo(), " 50,00");
    EXPECT_EQ(s.ivai[7].testo(), "");
    EXPECT_EQ(s.rac[7].testo(), "");
}

TEST_F(Reazioni, TotaleZero) {
    Lumftea& s = nuova();
    EXPECT_EQ(s.sca[0].testo(), "0");
    for (const auto& t : s.total) EXPECT_EQ(t.testo(), " ");
}

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

// ---- dates as typed ----

TEST_F(Reazioni, DateRiordinate) {
    Lumftea& s = nuova();
    const struct {
        const char* digitata;
        bool esce;
        const char* dopo;
    } casi[] = {{"01-02-2024", true, "01/02/2024"},
                {"01.02.2024", true, "01/02/2024"},
                {"01/02/2024", true, "01/02/2024"},
                {"abcdefghij", true, "ab/de/ghij"},
                {"", true, ""},
                {"1/2/2024", false, "1/2/2024"},
                {"1", false, "1"},
                {"010220240", false, "010220240"},
                {"ieri", true, "ieri"},
                {"0", true, "0"},
                {"-5", true, "-5"},
                {"01/02/2024 ", false, "01/02/2024 "}};
    for (std::size_t k = 0; k < s.dsca.size(); ++k)
        for (const auto& c : casi) {
            digita(s.dsca[k], c.digitata);
            EXPECT_EQ(s.dsca[k].lascia(), c.esce) << c.digitata;
            EXPECT_EQ(s.dsca[k].testo(), c.dopo);
        }
}

TEST_F(Reazioni, CalendariAccantoAlleDate) {
    Lumftea& s = nuova(2);
    for (const auto& d : s.dsc) EXPECT_EQ(d.testo(), "15/03/2024");
    EXPECT_EQ(s.dsca[0].testo(), "15/04/2024") << "a picker set by the program writes nothing";
    for (std::size_t k = 0; k < s.dsc.size(); ++k) {
        digita(s.dsc[k], "0" + std::to_string(k + 1) + "/09/2024");
        EXPECT_EQ(s.dsca[k].testo(), "0" + std::to_string(k + 1) + "/09/2024");
    }
    digita(s.dsca[1], "01/12/2024");
    EXPECT_EQ(s.dsc[1].testo(), "02/09/2024");
}

TEST_F(Reazioni, InvioScorreICampi) {
    Lumftea& s = nuova();
    EXPECT_EQ(s.fuoco(), &s.Text2[0]);
    std::vector<Controllo*> strada = {&s.Text2[0], &s.text1[0], &s.text1[1]};
    for (std::size_t i = 0; i < 8; ++i)
        strada.insert(strada.end(), {&s.impon[i], &s.ivai[i], &s.rac[i], &s.esent[i]});
    for (std::size_t k = 0; k < 4; ++k) strada.insert(strada.end(), {&s.dsca[k], &s.sca[k]});
    strada.push_back(&s.sca[3]);  // and there it stays
    for (std::size_t i = 0; i + 1 < strada.size(); ++i) {
        s.fuoco(*strada[i]);
        fai([&] { strada[i]->premi_invio(); });
        EXPECT_EQ(s.fuoco(), strada[i + 1]) << strada[i]->nome();
    }
}

}  // namespace
