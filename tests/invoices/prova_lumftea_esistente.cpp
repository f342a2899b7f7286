// An existing document on the invoice screen: rewritten to the byte, deleted, left alone.
#include "tests/invoices/studio.h"

using namespace ambra;

namespace {

class Esistente : public Studio {};

TEST_F(Esistente, EsistenteRiscrittaUgualeAlByte) {
    RecFattura f = semplice();
    std::string& ftr = b.file("ftr");
    for (auto& x : f.riservati5.b) x = 0xA5;
    f.riservati1.b[0] = f.riservati2.b[1] = f.riservati3.b[2] = f.riservati4.b[1] = 0x5A;
    f.dver[0] = "xxxxxxxx";
    f.ver[0] = 102;
    f.pagata = 1;
    f.addebita = "1";
    f.dscarit = "16042024";
    f.pdf = "C:\\12.PDF";
    b.fatture({semplice(), f, semplice()});
    const std::string prima = ftr;
    esistente(2);
    conferma();
    EXPECT_TRUE(b.piattaforma.messaggi.empty()) << "charged already: no question";
    EXPECT_EQ(ftr, prima);
    EXPECT_EQ(b.file("tfr").substr(28, 6), std::string("\3\0\1\0\0\0", 6));
}

TEST_F(Esistente, DateVuoteRestanoVuote) {
    RecFattura f = semplice();
    f.dsca[0] = "";
    f.sca[0] = 0;
    f.addebita = "1";
    b.fatture({f});
    esistente(1);
    conferma();
    EXPECT_EQ(b.file("ftr"), byte_di(f));
}

TEST_F(Esistente, CambioDiFornitore) {
    RecFattura f = semplice();
    b.fatture({f});
    Lumftea& s = esistente(1);
    premi(s.command3d1[3]);
    b.prog.recfornitore = 2;
    b.prog.schermi.apri("lumftea");
    risposte({Risposta::si});
    b.piattaforma.attese.push_back([&] {
        EXPECT_EQ(uscita().text1[1].testo(), riempi("BIANCHI SRL", 40));
        EXPECT_EQ(b.prog.contodefault, 100);
        premi(uscita().b_fine[0]);
    });
    conferma();
    f.numfor = 2;
    EXPECT_EQ(b.file("ftr"), byte_di(f));
    EXPECT_FALSE(aperto());
}

TEST_F(Esistente, ContatoriRilettiPrimaDiScrivere) {
    Lumftea& s = nuova();
    digita(s.esent[0], "10");
    risposte({Risposta::si});
    b.piattaforma.attese.push_back([&] {  // another machine registers two documents while we wait
        b.fatture({semplice(), semplice()});
        premi(uscita().b_fine[0]);
    });
    conferma();
    EXPECT_EQ(contatori().parola[0], 3);
    EXPECT_EQ(fattura(3).esent[0], 10);
    EXPECT_EQ(byte_di(fattura(2)), byte_di(semplice()));
}

TEST_F(Esistente, NumeriEsauriti) {
    RecTotali t{};
    t.parola[0] = 32767;
    scrivi(b.prog.arc.tfr, 2, t);
    nuova();
    risposte({Risposta::no});
    conferma();
    EXPECT_FALSE(aperto());
    EXPECT_EQ(b.file("ftr").size(), 32768u * 522);
    EXPECT_EQ(contatori().parola[0], 32767);
    EXPECT_EQ(contatori().parola[1], 1);
    EXPECT_EQ(b.prog.err.numero, errore::overflow);
}

// ---- deletion ----

TEST_F(Esistente, Elimina) {
    RecFattura f = semplice();
    f.pagata = 1;
    f.addebita = "1";
    b.fatture({semplice(), f});
    const std::string primo = b.file("ftr").substr(0, 522);
    Lumftea& s = esistente(2);
    digita(s.impon[0], "999");
    digita(s.Text2[0], "ALTRO");
    const Foto prima = foto();
    risposte({Risposta::no});
    premi(s.command3d1[2]);
    ASSERT_EQ(b.piattaforma.messaggi.size(), 1u);
    EXPECT_EQ(ultimo().testo, "Sei proprio sicuro?");
    EXPECT_EQ(ultimo().titolo, "Eliminazione fattura");
    EXPECT_EQ(ultimo().icona, Icona::domanda);
    EXPECT_EQ(ultimo().bottoni, Bottoni::si_no);
    EXPECT_TRUE(aperto());
    EXPECT_EQ(foto(), prima);
    risposte({Risposta::si});
    premi(s.command3d1[2]);
    EXPECT_FALSE(aperto());
    f.cancellata = 1;
    EXPECT_EQ(b.file("ftr"), primo + byte_di(f)) << "what was loaded, not what the fields held";
    EXPECT_EQ(b.file("tfr").substr(28, 6), std::string("\2\0\1\0\1\0", 6));
    EXPECT_EQ(b.file("pia"), prima.pia);
    EXPECT_EQ(b.file("mov"), prima.mov);
    EXPECT_EQ(b.piattaforma.puntatore, Puntatore::normale);
}

TEST_F(Esistente, ConfermaRidaVitaAUnaEliminata) {
    RecFattura f = semplice();
    f.cancellata = 1;
    f.addebita = "1";
    b.fatture({f});
    esistente(1);
    conferma();
    EXPECT_EQ(fattura(1).cancellata, 0);
}

TEST_F(Esistente, AnnullaEBordoNonScrivono) {
    b.fatture({semplice()});
    const Foto prima = foto();
    for (const bool bordo : {false, true}) {
        Lumftea& s = esistente(1);
        digita(s.impon[0], "5");
        if (bordo) {
            b.prog.schermi.chiudi_dal_bordo(s);
        } else {
            premi(s.command3d1[1]);
        }
        EXPECT_FALSE(aperto());
        EXPECT_EQ(foto(), prima);
    }
}

}  // namespace
