// An existing document as the invoice screen shows it: what is stored wins over what would be proposed.
#include "core/testo.h"
#include "tests/invoices/studio.h"

using namespace ambra;

namespace {

class Riapertura : public Studio {
  protected:
    void metti(const RecFattura& f) { b.fatture({f}); }
};

TEST_F(Riapertura, FatturaEsistente) {
    RecFattura f = semplice();
    f.dsca[1] = "31022024";
    f.dscarit = "16042024";
    f.esent[3] = 7.5;
    f.pdf = "C:\\FATTURE\\12.PDF";
    f.modpag = con_buco;
    metti(f);
    Lumftea& s = esistente(1);
    EXPECT_EQ(s.caption(), "Modifica dati fattura ricevuta");
    EXPECT_EQ(s.Text2[0].testo(), "12/A");
    EXPECT_EQ(s.text1[0].testo(), "03/01/2024");
    EXPECT_EQ(s.text1[1].testo(), "05/01/2024");
    EXPECT_EQ(s.Combo1.scelta(), con_buco);
    EXPECT_EQ(s.dsca[0].testo(), "03/01/2024");
    EXPECT_EQ(s.dsc[0].testo(), "03/01/2024");
    EXPECT_EQ(s.dsca[1].testo(), "31/02/2024");
    EXPECT_EQ(s.dsc[1].testo(), "15/03/2024") << "a picker shows days only";
    EXPECT_EQ(s.dsca[2].testo(), "");
    EXPECT_EQ(s.dsca[4].testo(), "16/04/2024");
    EXPECT_EQ(s.dsc[4].testo(), "16/04/2024");
    EXPECT_EQ(s.dsca[5].testo(), "");
    EXPECT_EQ(s.impon[0].testo(), "100");
    EXPECT_EQ(s.ivai[0].testo(), "22");
    EXPECT_EQ(s.rac[0].testo(), "20");
    EXPECT_EQ(s.esent[3].testo(), "7.5");
    EXPECT_EQ(s.impon[1].testo(), "");
    EXPECT_EQ(s.sca[0].testo(), "102");
    EXPECT_EQ(s.sca[1].testo(), "");
    EXPECT_EQ(s.total[4].testo(), " 129,50");
    EXPECT_EQ(s.pdf.testo(), "C:\\FATTURE\\12.PDF");
    EXPECT_TRUE(s.addebita.visible());
    EXPECT_FALSE(s.addebita.spuntata());
    EXPECT_FALSE(s.pagato.visible());
    EXPECT_FALSE(s.vispag.visible());
    EXPECT_TRUE(s.command3d1[2].visible());
    EXPECT_TRUE(s.command3d1[3].visible());
    EXPECT_EQ(b.prog.recfornitore, 1);
    EXPECT_EQ(s.fuoco(), &s.Text2[0]);
    EXPECT_EQ(s.vispag.caption(), "  Attenzione: questa fattura è già stata pagata"_it);
}

TEST_F(Riapertura, IValoriRegistratiVincono) {
    RecFattura f = semplice();
    f.ivai[0] = 21.99;
    f.rac[0] = 0;
    f.impon[1] = 50;
    f.ivai[1] = 0;
    f.rac[1] = 3.25;
    f.sca[0] = 1;
    f.sca[1] = 2;
    f.modpag = tre_rate;
    metti(f);
    Lumftea& s = esistente(1);
    EXPECT_EQ(s.ivai[0].testo(), "21.99");
    EXPECT_EQ(s.rac[0].testo(), "");
    EXPECT_EQ(s.ivai[1].testo(), "");
    EXPECT_EQ(s.rac[1].testo(), "3.25");
    EXPECT_EQ(s.sca[0].testo(), "1");
    EXPECT_EQ(s.sca[1].testo(), "2");
    EXPECT_EQ(s.sca[2].testo(), "");
    EXPECT_EQ(s.dsca[1].testo(), "");
    EXPECT_EQ(s.total[1].testo(), " 21,99");
    EXPECT_EQ(s.total[2].testo(), " 3,25");
}

TEST_F(Riapertura, PrimaModificaDiUnImportoRifrazionaMaLeDateRestano) {
    RecFattura f = semplice();
    f.sca[0] = 1;
    f.modpag = tre_rate;
    metti(f);
    Lumftea& s = esistente(1);
    digita(s.esent[0], "0.01");
    EXPECT_EQ(s.sca[0].testo(), "34.01");
    EXPECT_EQ(s.sca[1].testo(), "34");
    EXPECT_EQ(s.dsca[0].testo(), "03/01/2024");
    EXPECT_EQ(s.dsca[1].testo(), "");
    digita(s.text1[0], "04/01/2024");
    EXPECT_EQ(s.dsca[0].testo(), "04/02/2024");
    EXPECT_EQ(s.dsca[2].testo(), "04/04/2024");
    fai([&] { s.Combo1.scegli(contanti); });
    EXPECT_EQ(s.sca[0].testo(), "102.01");
    EXPECT_EQ(s.sca[1].testo(), "");
}

TEST_F(Riapertura, ScadenzaRitenutaDiUnaEsistenteResta) {
    RecFattura f = semplice();
    f.dscarit = "16042024";
    metti(f);
    Lumftea& s = esistente(1);
    digita(s.impon[0], "");
    EXPECT_EQ(s.dsca[4].testo(), "16/04/2024");
    fai([&] { s.pagato.clicca(); });  // hidden here: without effect
    EXPECT_EQ(s.dsca[0].testo(), "03/01/2024");
}

TEST_F(Riapertura, DateVuoteNelRecord) {
    RecFattura f = fattura_vuota();
    f.numfor = 1;
    metti(f);
    Lumftea& s = esistente(1);
    EXPECT_EQ(s.text1[0].testo(), "  /  /    ");
    EXPECT_EQ(s.dsca[0].testo(), "  /  /    ");
    EXPECT_EQ(s.dsc[0].testo(), "15/03/2024");
    EXPECT_EQ(s.dsca[1].testo(), "");
    EXPECT_EQ(s.total[4].testo(), "") << "nothing changed, nothing was added up";
}

TEST_F(Riapertura, RecordFuoriDalComune) {
    RecFattura f = semplice();
    f.tipodc = 7;
    f.modpag = 40;
    f.addebita = "x";
    f.riporta = "";
    f.pagata = 2;
    metti(f);
    Lumftea& s = esistente(1);
    EXPECT_FALSE(s.tipodc[0].scelta());
    EXPECT_FALSE(s.tipodc[1].scelta());
    EXPECT_EQ(s.Combo1.scelta(), 0);
    EXPECT_TRUE(s.addebita.visible());
    EXPECT_FALSE(s.addebita.spuntata());
    EXPECT_TRUE(s.riporta[0].scelta());
    EXPECT_TRUE(s.vispag.visible());
}

TEST_F(Riapertura, NotaCredito) {
    RecFattura f = semplice();
    f.tipodc = 1;
    f.addebita = f.riporta = "1";
    metti(f);
    Lumftea& s = esistente(1);
    EXPECT_TRUE(s.tipodc[1].scelta());
    EXPECT_TRUE(s.addebita.spuntata());
    EXPECT_TRUE(s.riporta[1].scelta());
    EXPECT_EQ(s.impon[0].testo(), "100");
}

}  // namespace
