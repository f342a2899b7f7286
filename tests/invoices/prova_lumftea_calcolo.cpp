// The reactions of the invoice screen, field by field.
#include "tests/invoices/reazioni.h"

using namespace ambra;

namespace {

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

}  // namespace
