// What the invoice screen shows when it opens, and the view of the attached PDF.
#include "core/testo.h"
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

TEST_F(Apertura, FatturaEsistente) {
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

TEST_F(Apertura, IValoriRegistratiVincono) {
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

TEST_F(Apertura, PrimaModificaDiUnImportoRifrazionaMaLeDateRestano) {
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

TEST_F(Apertura, ScadenzaRitenutaDiUnaEsistenteResta) {
    RecFattura f = semplice();
    f.dscarit = "16042024";
    metti(f);
    Lumftea& s = esistente(1);
    digita(s.impon[0], "");
    EXPECT_EQ(s.dsca[4].testo(), "16/04/2024");
    fai([&] { s.pagato.clicca(); });  // hidden here: without effect
    EXPECT_EQ(s.dsca[0].testo(), "03/01/2024");
}

TEST_F(Apertura, DateVuoteNelRecord) {
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

TEST_F(Apertura, RecordFuoriDalComune) {
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

TEST_F(Apertura, NotaCredito) {
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

// ---- the PDF view ----

TEST_F(Apertura, VistaPdf) {
    metti(semplice());
    for (const bool nuovo : {false, true}) {
        Lumftea& s = nuovo ? nuova() : esistente(1);
        const auto comandi = [&](bool v) {
            EXPECT_EQ(s.command3d1[0].visible(), v);
            EXPECT_EQ(s.command3d1[2].visible(), v && !nuovo);
            EXPECT_EQ(s.command3d1[3].visible(), v && !nuovo);
            EXPECT_EQ(s.command3d1[5].visible(), v);
            EXPECT_EQ(s.command3d1[1].caption(), v ? "Annulla" : "Indietro");
            EXPECT_EQ(s.pdf.visible(), !v);
            EXPECT_EQ(s.Label2.visible(), !v);
            for (const auto& c : s.Command3) {
                EXPECT_EQ(c.visible(), !v);
                EXPECT_EQ(c.enabled(), !v);
            }
        };
        comandi(true);
        premi(s.command3d1[5]);
        comandi(false);
        EXPECT_EQ(s.fuoco(), &s.Command3[1]);
        premi(s.command3d1[1]);
        comandi(true);
        EXPECT_EQ(s.fuoco(), &s.Text2[0]);
        EXPECT_TRUE(aperto());
    }
    premi(schermo().command3d1[1]);
    EXPECT_FALSE(aperto());
}

TEST_F(Apertura, UnAltroDocumentoEsceDallaVistaPdf) {
    metti(semplice());
    premi(nuova().command3d1[5]);
    Lumftea& s = esistente(1);
    EXPECT_TRUE(s.command3d1[0].visible());
    EXPECT_TRUE(s.command3d1[2].visible());
    EXPECT_EQ(s.command3d1[1].caption(), "Annulla");
    EXPECT_FALSE(s.pdf.visible());
    EXPECT_EQ(s.fuoco(), &s.Text2[0]);
}

TEST_F(Apertura, SceltaDelPdf) {
    Lumftea& s = nuova();
    s.pdf.testo("prima");
    const struct {
        std::optional<std::string> scelto;
        const char* dopo;
    } casi[] = {{std::nullopt, "prima"},
                {"*.pdf", "prima"},
                {"C:\\A*\\X.PDF", "prima"},
                {"C:\\documento.doc", "prima"},
                {"", "prima"},
                {"  C:\\Fatture\\x.Pdf  ", "C:\\Fatture\\x.Pdf"},
                {"C:\\pdfvecchi\\x.txt", "C:\\pdfvecchi\\x.txt"}};
    for (const auto& c : casi) {
        b.piattaforma.file.push_back(c.scelto);
        premi(s.Command3[0]);
        EXPECT_EQ(s.pdf.testo(), c.dopo);
    }
    EXPECT_TRUE(b.piattaforma.messaggi.empty());
}

TEST_F(Apertura, AperturaDelPdf) {
    Lumftea& s = nuova();
    s.pdf.testo("  C:\\X.PDF ");
    const struct {
        int esito;
        std::string testo;
    } casi[] = {{2, "Si è verificato l'errore 2 - File PDF non trovato"_it},
                {3, "Si è verificato l'errore 3 - Cartella o Percorso non trovato"_it},
                {5, "Si è verificato l'errore 5 - Accesso negato"_it},
                {8, "Si è verificato l'errore 8 - Memoria esaurita"_it},
                {31,
                 "Si è verificato l'errore 31 - Programma Acrobat Reader non installato o non "
                 "disponibile"_it},
                {32, "Si è verificato l'errore 32 - DLL non trovata"_it},
                {0, "Si è verificato l'errore 0 - Errore sconosciuto"_it},
                {30, "Si è verificato l'errore 30 - Errore sconosciuto"_it},
                {-1, "Si è verificato l'errore-1 - Errore sconosciuto"_it}};
    for (const auto& c : casi) {
        b.piattaforma.messaggi.clear();
        b.piattaforma.esito_documento = c.esito;
        premi(s.Command3[1]);
        ASSERT_EQ(b.piattaforma.messaggi.size(), 1u);
        EXPECT_EQ(ultimo().testo, c.testo);
        EXPECT_EQ(ultimo().titolo, "ApriPDF");
        EXPECT_EQ(ultimo().icona, Icona::stop);
        EXPECT_EQ(b.piattaforma.documenti.back(), "C:\\X.PDF");
    }
    b.piattaforma.messaggi.clear();
    for (const int bene : {33, 42, 1000}) {
        b.piattaforma.esito_documento = bene;
        premi(s.Command3[1]);
        EXPECT_TRUE(b.piattaforma.messaggi.empty());
    }
}

}  // namespace
