// The charge of a document into the accounts, what a user may do while it is awaited, and a disc that fails.
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

// ---- the life of the other commands while the posting is awaited ----

TEST_F(Addebito, NellAttesaISuoiComandiNonFannoNulla) {
    b.fatture({semplice()});
    Lumftea& s = esistente(1);
    digita(s.Text2[0], "NUOVO");
    risposte({Risposta::si});
    b.piattaforma.attese.push_back([&] { conferma(); });
    b.piattaforma.attese.push_back([&] { premi(schermo().command3d1[1]); });
    b.piattaforma.attese.push_back([&] { premi(schermo().command3d1[2]); });
    b.piattaforma.attese.push_back([&] { fai([&] { s.Combo1.scegli(1); }); });
    b.piattaforma.attese.push_back([&] { fai([&] { b.prog.schermi.chiudi_dal_bordo(s); }); });
    b.piattaforma.attese.push_back([&] {
        EXPECT_EQ(b.piattaforma.messaggi.size(), 1u);
        EXPECT_TRUE(aperto());
        EXPECT_EQ(s.Combo1.scelta(), 0);
        EXPECT_TRUE(s.command3d1[0].enabled());
        b.prog.tornada = 1;  // whoever writes there does not end the wait
    });
    b.piattaforma.attese.push_back([&] {
        EXPECT_EQ(byte_di(fattura(1)), byte_di(semplice()));
        premi(uscita().b_fine[1]);
    });
    conferma();
    EXPECT_EQ(fattura(1).numdoc.rifilato(), "NUOVO");
    EXPECT_EQ(fattura(1).addebita.testo(), "1");
    EXPECT_EQ(fattura(1).cancellata, 0);
    EXPECT_EQ(contatori().parola[0], 1);
    EXPECT_EQ(movimenti(), 1);
    EXPECT_FALSE(aperto());
}

TEST_F(Addebito, UnAltraFatturaApertaNellAttesaVieneSoloDavanti) {
    RecFattura altra = semplice();
    altra.numdoc = "ALTRA";
    b.fatture({semplice(), altra});
    Lumftea& s = esistente(1);
    digita(s.Text2[0], "NUOVO");
    risposte({Risposta::si});
    b.piattaforma.attese.push_back([&] { esistente(2); });
    b.piattaforma.attese.push_back([&] {
        EXPECT_EQ(b.prog.schermi.pila().back(), &s);
        EXPECT_EQ(s.Text2[0].testo(), "NUOVO");
        premi(uscita().b_fine[1]);
    });
    conferma();
    EXPECT_EQ(fattura(1).numdoc.rifilato(), "NUOVO");
    EXPECT_EQ(byte_di(fattura(2)), byte_di(altra));
    EXPECT_FALSE(aperto());
}

TEST_F(Addebito, IlProcessoPuoFinireNellAttesa) {
    nuova();
    risposte({Risposta::si});
    EXPECT_THROW(conferma(), FineProcesso);
    EXPECT_EQ(b.file("ftr"), "");
}

// ---- a disc that fails ----

// What did not reach the disc stays on the screen, and no counter speaks of it; the next try stores it.
TEST_F(Addebito, OgniScritturaCheFallisceLasciaLaFinestraAperta) {
    for (const int numero : {errore::disco_pieno, errore::accesso}) {
        for (int quale = 1; quale <= 3; ++quale) {
            b.piattaforma.messaggi.clear();
            b.file("ftr").clear();
            b.fatture({});
            b.disco.guasto = nullptr;
            Lumftea& s = nuova();
            digita(s.esent[0], "10");
            const Foto prima = foto();
            int scritture = 0;
            b.disco.guasto = [&](Operazione op, std::string_view) {
                return op == Operazione::scrivi && ++scritture == quale ? numero : 0;
            };
            risposte({Risposta::no});
            conferma();
            b.disco.guasto = nullptr;
            EXPECT_EQ(aperto(), quale < 3);
            EXPECT_EQ(b.piattaforma.messaggi.size(), 1u) << "no message beside the question";
            EXPECT_EQ(scritture, quale == 1 ? 1 : 2) << "the record, then the counters";
            EXPECT_EQ(b.prog.err.numero, quale == 3 ? 0 : numero);
            EXPECT_EQ(b.file("ftr").size(), quale == 1 ? 0u : 522u);
            EXPECT_EQ(b.file("tfr") == prima.tfr, quale < 3);
            if (quale == 3) continue;
            risposte({Risposta::no});
            conferma();
            EXPECT_FALSE(aperto());
            EXPECT_EQ(b.file("ftr").size(), 522u);
            EXPECT_EQ(contatori().parola[0], 1);
        }
    }
}

TEST_F(Addebito, DiscoInSolaLettura) {
    b.fatture({semplice()});
    const Foto prima = foto();
    esistente(1);
    b.disco.guasto = [](Operazione op, std::string_view) {
        return op == Operazione::scrivi ? errore::accesso : 0;
    };
    risposte({Risposta::si});
    b.piattaforma.attese.push_back([&] { premi(uscita().b_fine[1]); });
    conferma();
    EXPECT_TRUE(aperto());
    EXPECT_EQ(foto(), prima);
    b.disco.guasto = nullptr;
    conferma();  // the charge went through and is not asked for again
    EXPECT_FALSE(aperto());
    EXPECT_EQ(b.piattaforma.messaggi.size(), 1u);
    EXPECT_EQ(fattura(1).addebita.testo(), "1");
    esistente(1);
    b.disco.guasto = [](Operazione op, std::string_view) {
        return op == Operazione::scrivi ? errore::accesso : 0;
    };
    risposte({Risposta::si});
    premi(schermo().command3d1[2]);
    EXPECT_TRUE(aperto());
    EXPECT_EQ(fattura(1).cancellata, 0);
}

// Nothing can be read: what the buffers hold goes on.
TEST_F(Addebito, DiscoCheNonSiLegge) {
    b.fatture({semplice()});
    b.disco.guasto = [](Operazione op, std::string_view) {
        return op == Operazione::leggi || op == Operazione::leggi_tutto ? errore::dispositivo : 0;
    };
    Programma& p = b.prog;
    p.recfattura = 1;
    p.tornada = -99;
    p.statofattura = 0;
    p.schermi.apri("lumftea");
    Lumftea& s = schermo();
    EXPECT_EQ(s.impon[0].testo(), "");
    conferma();
    EXPECT_TRUE(aperto()) << "no date was read";
    EXPECT_EQ(b.piattaforma.messaggi.size(), 1u);
}

}  // namespace
