// What the invoice screen shows when it opens.
#include "tests/invoices/studio.h"

using namespace ambra;

namespace {

class Apertura : public Studio {
  protected:
    void metti(const RecFattura& f) { b.fatture({f}); }
};

TEST_F(Apertura, NuovaFattura) {
    Lumftea& s = nuova(2);
    EXPECT_EQ(s.caption(), "Memorizzazione fattura ricevuta");
    EXPECT_EQ(s.Combo1.scelta(), tre_rate);
    EXPECT_EQ(s.Text2[0].testo(), "");
    EXPECT_EQ(s.text1[0].testo(), "15/03/2024");
    EXPECT_EQ(s.text1[1].testo(), "15/03/2024");
    EXPECT_EQ(s.dsca[0].testo(), "15/04/2024");
    EXPECT_EQ(s.pdf.testo(), "");
    EXPECT_FALSE(s.vispag.visible());
    EXPECT_FALSE(s.addebita.visible());
    EXPECT_FALSE(s.addebita.spuntata());
    EXPECT_TRUE(s.pagato.visible());
    EXPECT_FALSE(s.pagato.spuntata());
    EXPECT_TRUE(s.riporta[0].scelta());
    EXPECT_FALSE(s.riporta[1].scelta());
    EXPECT_TRUE(s.tipodc[0].scelta());
    EXPECT_FALSE(s.command3d1[2].visible());
    EXPECT_FALSE(s.command3d1[3].visible());
    EXPECT_TRUE(s.command3d1[0].visible());
    EXPECT_EQ(s.fuoco(), &s.Text2[0]);
    for (std::size_t i = 0; i < 8; ++i)
        for (const auto* c : {&s.impon[i], &s.ivai[i], &s.rac[i], &s.esent[i]}) EXPECT_EQ(c->testo(), "");
}

TEST_F(Apertura, TermineDelFornitoreFuoriTabella) {
    for (const int posizione : {-1, 40, 32767, -32768, 39, 0}) {
        RecFornitore f = fornitore_vuoto("VERDI");
        f.formapag = posizione;
        scrivi(b.prog.arc.fornitori, 1, f);
        EXPECT_EQ(nuova(1).Combo1.scelta(), posizione == 39 ? 39 : 0) << posizione;
        fai([&] { b.prog.schermi.chiudi("lumftea"); });
    }
}

TEST_F(Apertura, DaUnaFatturaAUnaNuova) {
    RecFattura f = semplice();
    f.tipodc = 1;
    f.pagata = 1;
    f.addebita = f.riporta = "1";
    f.pdf = "C:\\X.PDF";
    metti(f);
    esistente(1);
    Lumftea& s = nuova(2);
    EXPECT_EQ(s.caption(), "Memorizzazione fattura ricevuta");
    EXPECT_EQ(s.impon[0].testo(), "");
    EXPECT_EQ(s.ivai[0].testo(), "");
    EXPECT_EQ(s.rac[0].testo(), "");
    EXPECT_EQ(s.sca[0].testo(), "0");
    EXPECT_EQ(s.total[4].testo(), " ");
    EXPECT_EQ(s.pdf.testo(), "");
    EXPECT_FALSE(s.vispag.visible());
    EXPECT_FALSE(s.addebita.visible());
    EXPECT_TRUE(s.pagato.visible());
    EXPECT_TRUE(s.tipodc[0].scelta());
    EXPECT_FALSE(s.command3d1[2].visible());
}

TEST_F(Apertura, DopoUnAltraSchermataNonAccadeNulla) {
    Lumftea& s = nuova();
    digita(s.impon[0], "100");
    digita(s.dsc[0], "01/01/2030");
    for (const int segno : {0, 1, -1}) {
        b.prog.tornada = segno;
        b.prog.schermi.apri("lumftea");
        EXPECT_EQ(s.impon[0].testo(), "100");
        EXPECT_EQ(s.dsc[0].testo(), "01/01/2030");
    }
}

TEST_F(Apertura, DiRitornoDallElencoDeiFornitoriICampiRestano) {
    metti(semplice());
    Lumftea& s = esistente(1);
    digita(s.impon[0], "200");
    s.fuoco(s.impon[0]);
    premi(s.command3d1[3]);
    EXPECT_EQ(b.prog.statofattura, 1);
    EXPECT_EQ(b.prog.nuovafattura, 1);
    b.prog.recfornitore = 2;
    b.prog.schermi.apri("lumftea");
    EXPECT_EQ(s.impon[0].testo(), "200");
    EXPECT_EQ(s.Combo1.scelta(), contanti);
    EXPECT_EQ(s.fuoco(), &s.Text2[0]);
    EXPECT_EQ(s.dsc[0].testo(), "15/03/2024");
    EXPECT_EQ(b.prog.recfornitore, 2);
}

}  // namespace
