// What a user may do while the charge of a document is awaited, and a disc that fails.
#include "core/testo.h"
#include "tests/invoices/studio.h"

using namespace ambra;

namespace {

class AddebitoAtteso : public Studio {};

TEST_F(AddebitoAtteso, NellAttesaISuoiComandiNonFannoNulla) {
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

TEST_F(AddebitoAtteso, UnAltraFatturaApertaNellAttesaVieneSoloDavanti) {
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

TEST_F(AddebitoAtteso, IlProcessoPuoFinireNellAttesa) {
    nuova();
    risposte({Risposta::si});
    EXPECT_THROW(conferma(), FineProcesso);
    EXPECT_EQ(b.file("ftr"), "");
}

// What did not reach the disc stays on the screen, and no counter speaks of it; the next try stores it.
TEST_F(AddebitoAtteso, OgniScritturaCheFallisceLasciaLaFinestraAperta) {
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

TEST_F(AddebitoAtteso, DiscoInSolaLettura) {
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
TEST_F(AddebitoAtteso, DiscoCheNonSiLegge) {
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
