// The charge of a document into the accounts.
#include "core/testo.h"
#include "tests/invoices/studio.h"

using namespace ambra;

namespace {

class Addebito : public Studio {};

TEST_F(Addebito, AddebitoMemorizzato) {
    Lumftea& s = nuova();
    digita(s.Text2[0], " 12 ");
    digita(s.text1[0], "03/05/2024");
    digita(s.text1[1], "04/05/2024");
    digita(s.impon[0], "100");
    risposte({Risposta::si});
    b.piattaforma.attese.push_back([&] {
        Lumincx& u = uscita();
        EXPECT_TRUE(u.visible());
        EXPECT_EQ(b.prog.tornada, 0);
        EXPECT_EQ(b.prog.modoaddebito, 0);
        EXPECT_EQ(b.prog.contodefault, 1);
        EXPECT_EQ(b.prog.modofattura, 1) << "one variable with two names";
        EXPECT_EQ(u.text.testo(), "04/05/2024");
        EXPECT_EQ(u.text1[1].testo(), riempi("ROSSI SNC", 40));
        EXPECT_EQ(u.text1[2].testo(), "Fattura 12 del 03/05/2024");
        EXPECT_EQ(u.text1[3].testo(), "");
        EXPECT_EQ(u.text1[4].testo(), "102");
        EXPECT_EQ(b.file("ftr"), "") << "nothing is written before the outcome";
        premi(u.b_fine[1]);
    });
    conferma();
    EXPECT_FALSE(aperto());
    EXPECT_EQ(fattura(1).addebita.testo(), "1");
    EXPECT_EQ(movimenti(), 1);
    EXPECT_EQ(movimento(1).mimporto, 102);
    EXPECT_EQ(movimento(1).mconto, 1);
    EXPECT_EQ(saldo(1), 202);
    EXPECT_EQ(saldo(4159), -202);
}

TEST_F(Addebito, NotaCreditoAddebitataColSegnoMeno) {
    Lumftea& s = nuova();
    fai([&] { s.tipodc[1].clicca(); });
    digita(s.Text2[0], "12");
    digita(s.text1[0], "03/05/2024");
    digita(s.esent[0], "122.00");
    risposte({Risposta::si});
    b.piattaforma.attese.push_back([&] {
        EXPECT_EQ(uscita().text1[2].testo(), "Nota credito 12 del 03/05/2024");
        EXPECT_EQ(uscita().text1[4].testo(), "-122");
        premi(uscita().b_fine[1]);
    });
    conferma();
    const RecFattura f = fattura(1);
    EXPECT_EQ(f.tipodc, 1);
    EXPECT_EQ(f.esent[0], 122);
    EXPECT_EQ(f.sca[0], 122);
    EXPECT_EQ(movimento(1).mimporto, -122);
    EXPECT_EQ(movimento(1).mdesc[1].rifilato(), "Nota credito 12 del 03/05/2024");
}

TEST_F(Addebito, AddebitoAUnSoloCondomino) {
    Lumftea& s = nuova();
    fai([&] { s.riporta[1].clicca(); });
    risposte({Risposta::si});
    b.piattaforma.attese.push_back([&] {
        EXPECT_EQ(b.prog.modoaddebito, 1);
        EXPECT_TRUE(uscita().condom.visible());
        premi(uscita().b_fine[0]);
    });
    conferma();
    EXPECT_EQ(fattura(1).riporta.testo(), "1");
}

TEST_F(Addebito, SiAddebitaLaSommaDelleRate) {
    Lumftea& s = nuova(2);
    digita(s.impon[0], "100");
    digita(s.sca[0], "1.1");
    digita(s.sca[1], "2,5");
    digita(s.sca[2], "abc");
    digita(s.sca[3], "0.2");
    digita(s.dsca[3], "01/01/2025");
    risposte({Risposta::si});
    b.piattaforma.attese.push_back([&] {
        EXPECT_EQ(uscita().text1[4].testo(), "3.3");
        premi(uscita().b_fine[0]);
    });
    conferma();
}

TEST_F(Addebito, AddebitoAnnullatoEPoiRichiesto) {
    nuova();
    risposte({Risposta::si});
    b.piattaforma.attese.push_back([&] { premi(uscita().b_fine[0]); });
    conferma();
    EXPECT_FALSE(aperto());
    EXPECT_EQ(fattura(1).addebita.testo(), "0");
    EXPECT_EQ(movimenti(), 0);
    b.piattaforma.messaggi.clear();
    esistente(1);
    risposte({Risposta::no});
    conferma();
    ASSERT_EQ(b.piattaforma.messaggi.size(), 1u);
    EXPECT_EQ(ultimo().testo, kDomanda);
    EXPECT_EQ(ultimo().titolo, "Registrazione nuova fattura");
    EXPECT_EQ(fattura(1).addebita.testo(), "0");
}

TEST_F(Addebito, SenzaSpuntaUnSecondoMovimento) {
    RecFattura f = semplice();
    f.addebita = "1";
    b.fatture({f});
    Lumftea& s = esistente(1);
    fai([&] { s.addebita.clicca(); });
    risposte({Risposta::si});
    b.piattaforma.attese.push_back([&] { premi(uscita().b_fine[1]); });
    conferma();
    EXPECT_EQ(movimenti(), 1);
    EXPECT_EQ(movimento(1).mimporto, 102);
    EXPECT_EQ(fattura(1).addebita.testo(), "1");
}

TEST_F(Addebito, SpuntaAManoSenzaDomanda) {
    b.fatture({semplice()});
    Lumftea& s = esistente(1);
    fai([&] { s.addebita.clicca(); });
    conferma();
    EXPECT_TRUE(b.piattaforma.messaggi.empty());
    EXPECT_EQ(fattura(1).addebita.testo(), "1");
}

}  // namespace
