// What the invoice screen stores and what it refuses, to the byte.
#include "core/testo.h"
#include "tests/invoices/studio.h"

using namespace ambra;

namespace {

class Conferma : public Studio {};

TEST_F(Conferma, FatturaNuovaAlByte) {
    Lumftea& s = nuova(2);
    digita(s.Text2[0], "  7/B lunghissimo");
    digita(s.text1[0], "01/02/2024");
    digita(s.text1[1], " 03-02-2024 ");
    digita(s.impon[0], "100");
    digita(s.impon[7], "10");
    digita(s.esent[2], "5.5abc");
    digita(s.sca[2], "1e5");
    digita(s.dsca[5], "01/01/2025");
    fai([&] { s.riporta[1].clicca(); });
    s.pdf.testo("  C:\\" + std::string(50, 'x') + ".PDF");
    risposte({Risposta::no});
    conferma();
    EXPECT_FALSE(aperto());
    ASSERT_EQ(b.piattaforma.messaggi.size(), 1u);
    EXPECT_EQ(ultimo().testo, kDomanda);
    EXPECT_EQ(ultimo().titolo, "Registrazione nuova fattura");
    EXPECT_EQ(ultimo().icona, Icona::domanda);
    EXPECT_EQ(ultimo().bottoni, Bottoni::si_no);

    RecFattura f{};  // nobody's bytes are zero in a new record
    f.numfor = 2;
    f.numdoc = "  7/B lung";
    f.datadoc = "20240201";
    f.datareg = "20240203";
    f.dsca[0] = "01032024";
    f.dsca[1] = "01042024";
    f.dsca[2] = "01052024";
    f.dsca[3] = f.dscarit = "";
    for (auto& d : f.dver) d = "";
    f.dverrit = "01012025";
    f.impon[0] = 100;
    f.impon[7] = 10;
    f.ivai[0] = 22;
    f.ivai[7] = 2.25;
    f.rac[0] = 20;
    f.rac[7] = 0.25;
    f.esent[2] = 5.5;
    f.sca[0] = leggi_numero("39.84");  // 119.50 in three: what the field showed, not what was computed
    f.sca[1] = 39.83;
    f.sca[2] = 1;
    f.modpag = tre_rate;
    f.pdf = "C:\\" + std::string(35, 'x');
    f.addebita = "0";
    f.riporta = "1";
    EXPECT_EQ(b.file("ftr"), byte_di(f));
    EXPECT_EQ(b.file("tfr").substr(28, 6), std::string("\1\0\1\0\0\0", 6));
    EXPECT_EQ(b.piattaforma.puntatore, Puntatore::normale);
}

TEST_F(Conferma, PagataSubitoConQuattroRate) {
    Lumftea& s = nuova(2);
    fai([&] { s.Combo1.scegli(quattro_rate); });
    digita(s.impon[0], "100");
    fai([&] { s.pagato.clicca(); });
    digita(s.dsca[3], "20/03/2024");
    risposte({Risposta::no});
    conferma();
    ASSERT_EQ(b.piattaforma.messaggi.size(), 1u) << "the question comes";
    const RecFattura f = fattura(1);
    const char* date[] = {"15032024", "15032024", "15032024", "20032024"};
    for (std::size_t k = 0; k < 4; ++k) {
        EXPECT_EQ(f.ver[k], 25.5);
        EXPECT_EQ(f.sca[k], 25.5);
        EXPECT_EQ(f.dsca[k].testo(), date[k]);
        EXPECT_EQ(f.dver[k].testo(), date[k]);
    }
    EXPECT_EQ(f.pagata, 1);
    EXPECT_EQ(f.dscarit.testo(), "16042024");
    EXPECT_EQ(f.addebita.testo(), "0");
}

// ---- refusals ----

TEST_F(Conferma, DateRifiutate) {
    const struct {
        int campo;  // 0 document, 1 registration, 2 to 5 the due dates
        const char *data, *importo;
        bool rifiutata;
    } casi[] = {{0, "", "", true},
                {0, "31/02/2024", "", true},
                {0, "oggi", "", true},
                {0, "01/01/24", "", true},
                {0, "29/02/2100", "", true},
                {0, "01/13/2024", "", true},
                {0, "1/2/2024", "", false},
                {0, "01/01/9999", "", false},
                {1, "", "", true},
                {1, "32/01/2024", "", true},
                {1, "1.2.2024", "", false},
                {2, "", "1", true},
                {2, "", "0", false},
                {2, "", "abc", false},
                {3, "31/02/2024", "10", true},
                {3, "", "0", false},
                {3, "qualunque", "", false},
                {4, "01/01/20240", "0.01", true},
                {5, "29/02/2100", "-1", true},
                {5, " 01/01/2024 ", "1", false}};
    for (const auto& c : casi) {
        b.piattaforma.messaggi.clear();
        Lumftea& s = nuova();
        CampoTesto& campo = c.campo < 2 ? static_cast<CampoTesto&>(s.text1[static_cast<std::size_t>(c.campo)])
                                        : s.dsca[static_cast<std::size_t>(c.campo) - 2];
        digita(campo, c.data);
        if (c.campo >= 2) digita(s.sca[static_cast<std::size_t>(c.campo) - 2], c.importo);
        const Foto prima = foto();
        risposte({});
        conferma();
        if (!c.rifiutata) {
            EXPECT_FALSE(aperto()) << c.campo << c.data;
            EXPECT_EQ(ultimo().testo, kDomanda);
            continue;
        }
        ASSERT_TRUE(aperto()) << c.campo << c.data;
        atteso_rifiuto(c.campo == 0   ? "La data del documento non è valida"_it
                       : c.campo == 1 ? "La data di registrazione del documento non è valida"_it
                                      : "Una o più date di scadenza non sono valide"_it);
        EXPECT_EQ(s.fuoco(), &campo);
        EXPECT_EQ(foto(), prima);
        fai([&] { b.prog.schermi.chiudi("lumftea"); });
    }
}

TEST_F(Conferma, ControlliNellOrdine) {
    Lumftea& s = nuova();
    digita(s.text1[0], "");
    digita(s.text1[1], "");
    digita(s.dsca[0], "");
    digita(s.dsca[2], "");
    digita(s.sca[0], "1");
    digita(s.sca[2], "1");
    conferma();
    EXPECT_EQ(s.fuoco(), &s.text1[0]);
    digita(s.text1[0], "01/01/2024");
    conferma();
    EXPECT_EQ(s.fuoco(), &s.text1[1]);
    digita(s.text1[1], "01/01/2024");
    digita(s.dsca[0], "");
    digita(s.sca[2], "1");
    conferma();
    EXPECT_EQ(s.fuoco(), &s.dsca[0]);
    digita(s.dsca[0], "01/01/2024");
    conferma();
    EXPECT_EQ(s.fuoco(), &s.dsca[2]);
    EXPECT_EQ(b.piattaforma.messaggi.size(), 4u);
    EXPECT_EQ(b.file("ftr"), "");
}

TEST_F(Conferma, FrazionamentoControllatoSoloSenzaFornitore) {
    const auto registra = [&](int fornitore, const char* rata, std::initializer_list<Risposta> r) {
        b.piattaforma.messaggi.clear();
        Lumftea& s = nuova(fornitore);
        digita(s.impon[0], "100");
        digita(s.sca[0], rata);
        risposte(r);
        conferma();
    };
    registra(1, "5", {Risposta::no});
    EXPECT_EQ(b.piattaforma.messaggi.size(), 1u);
    EXPECT_EQ(fattura(1).sca[0], 5);
    registra(0, "102.00", {Risposta::no});
    EXPECT_EQ(b.piattaforma.messaggi.size(), 1u);
    registra(0, "5", {Risposta::si, Risposta::no});
    ASSERT_EQ(b.piattaforma.messaggi.size(), 2u);
    EXPECT_EQ(b.piattaforma.messaggi[0].testo,
              "Il frazionamento in scadenze non coincide con il totale della fattura al netto dell'eventuale "
              "ritenuta d'acconto. Continuare?");
    EXPECT_EQ(b.piattaforma.messaggi[0].titolo, "Attenzione");
    EXPECT_EQ(b.piattaforma.messaggi[0].icona, Icona::domanda);
    EXPECT_EQ(b.piattaforma.messaggi[0].bottoni, Bottoni::si_no);
    EXPECT_EQ(contatori().parola[0], 3);
    const Foto prima = foto();
    registra(0, "5", {Risposta::no});
    EXPECT_TRUE(aperto());
    EXPECT_EQ(b.piattaforma.messaggi.size(), 1u);
    EXPECT_EQ(foto(), prima);
}

TEST_F(Conferma, TuttoPassaTranneLeDate) {
    for (int i = 1; i <= 2; ++i) {
        nuova();
        risposte({Risposta::no});
        conferma();
    }
    EXPECT_EQ(contatori().parola[0], 2) << "no number, no amount, twice the same";
    EXPECT_EQ(b.file("ftr").substr(0, 522), b.file("ftr").substr(522));
    Lumftea& s = nuova();
    digita(s.text1[0], "01/01/2024");
    digita(s.text1[1], "01/01/2020");
    risposte({Risposta::no});
    conferma();
    EXPECT_EQ(fattura(3).datareg.testo(), "20200101");
}

// ---- an existing document ----

TEST_F(Conferma, EsistenteRiscrittaUgualeAlByte) {
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

TEST_F(Conferma, DateVuoteRestanoVuote) {
    RecFattura f = semplice();
    f.dsca[0] = "";
    f.sca[0] = 0;
    f.addebita = "1";
    b.fatture({f});
    esistente(1);
    conferma();
    EXPECT_EQ(b.file("ftr"), byte_di(f));
}

TEST_F(Conferma, CambioDiFornitore) {
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

TEST_F(Conferma, ContatoriRilettiPrimaDiScrivere) {
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

TEST_F(Conferma, NumeriEsauriti) {
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

TEST_F(Conferma, Elimina) {
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

TEST_F(Conferma, ConfermaRidaVitaAUnaEliminata) {
    RecFattura f = semplice();
    f.cancellata = 1;
    f.addebita = "1";
    b.fatture({f});
    esistente(1);
    conferma();
    EXPECT_EQ(fattura(1).cancellata, 0);
}

TEST_F(Conferma, AnnullaEBordoNonScrivono) {
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
