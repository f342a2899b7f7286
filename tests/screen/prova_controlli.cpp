// Controls: what fires when.
#include <gtest/gtest.h>

#include "screen/controlli.h"

using namespace ambra;

namespace {

TEST(Controlli, ScrivereEDigitareSparanoCambiatoUnaVoltaSola) {
    CampoTesto c;
    int cambi = 0, digitati = 0;
    c.cambiato = [&] { ++cambi; };
    c.digitato = [&] { ++digitati; };
    c.testo("a");
    c.testo("a");
    EXPECT_EQ(cambi, 1);
    EXPECT_EQ(digitati, 0);
    c.digita("b");
    c.digita("b");
    EXPECT_EQ(cambi, 2);
    EXPECT_EQ(digitati, 1);
}

TEST(Controlli, IlGiornoSuCuiStaIlCalendarioSiPuoScegliere) {
    CampoData c;
    int cambi = 0, digitati = 0;
    c.testo("15/03/2024");
    c.cambiato = [&] { ++cambi; };
    c.digitato = [&] { ++digitati; };
    c.digita("15/03/2024");
    EXPECT_EQ(cambi, 0);
    EXPECT_EQ(digitati, 1);
}

TEST(Controlli, IlCalendarioTieneDate) {
    struct {
        CampoData::Altro altro;
        const char *scritto, *tiene;
    } const casi[] = {{CampoData::Altro::rifiuta, "1/2/2024", "01/02/2024"},
                      {CampoData::Altro::rifiuta, "01.02.2024", "01/02/2024"},
                      {CampoData::Altro::rifiuta, " 1-2-2024 ", "01/02/2024"},
                      {CampoData::Altro::rifiuta, "1/2/24", "31/12/1999"},
                      {CampoData::Altro::rifiuta, "30/02/2024", "31/12/1999"},
                      {CampoData::Altro::rifiuta, "", "31/12/1999"},
                      {CampoData::Altro::lascia, "1/2/2024", "01/02/2024"},
                      {CampoData::Altro::lascia, "1/2/24", "1/2/24"},
                      {CampoData::Altro::lascia, "", ""},
                      {CampoData::Altro::intatto, "1/2/2024", "1/2/2024"},
                      {CampoData::Altro::intatto, "xyz", "xyz"}};
    for (const auto& caso : casi) {
        CampoData c(caso.altro);
        c.testo("31/12/1999");
        int digitati = 0;
        c.digitato = [&] { ++digitati; };
        c.digita(caso.scritto);
        EXPECT_EQ(c.testo(), caso.tiene) << caso.scritto;
        EXPECT_EQ(digitati, c.testo() == "31/12/1999" ? 0 : 1) << caso.scritto;
    }
    CampoData vuoto;
    vuoto.testo("31/12/1999");
    vuoto.testo("");  // the program may empty it
    EXPECT_EQ(vuoto.testo(), "");
}

TEST(Controlli, OpzioniInGruppo) {
    Opzione a("a"), b("b");
    Opzione::gruppo({&a, &b});
    a.scelta(true);
    b.clicca();
    EXPECT_FALSE(a.scelta());
    EXPECT_TRUE(b.scelta());
    b.scelta(false);  // the program may leave the group unchosen
    EXPECT_FALSE(a.scelta());
    EXPECT_FALSE(b.scelta());
}

TEST(Controlli, ListaFuoriDalleVociNonSceglie) {
    Lista l;
    l.aggiungi("x");
    l.scelta(0);
    EXPECT_EQ(l.testo(), "x");
    l.scelta(4);
    EXPECT_EQ(l.scelta(), -1);
    EXPECT_EQ(l.testo(), "");
}

TEST(Controlli, BarraDentroISuoiLimiti) {
    Scorrimento s;
    int cambi = 0;
    s.cambiato = [&] { ++cambi; };
    s.limiti(1, 10);
    EXPECT_EQ(s.valore(), 1);
    s.scorri(99);
    EXPECT_EQ(s.valore(), 10);
    s.limiti(1, 5);
    EXPECT_EQ(s.valore(), 5);
    EXPECT_EQ(cambi, 3);
}

TEST(Controlli, CasellaCliccata) {
    Casella c("x");
    std::string eventi;
    c.cambiato = [&] { eventi += "c"; };
    c.premuto = [&] { eventi += "p"; };
    c.clicca();
    EXPECT_TRUE(c.spuntata());
    c.spuntata(false);
    EXPECT_EQ(eventi, "cpc");
}

}  // namespace
