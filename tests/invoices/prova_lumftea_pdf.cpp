// The PDF attached to a document: its view beside the fields, its choice, its opening.
#include "core/testo.h"
#include "tests/invoices/studio.h"

using namespace ambra;

namespace {

class Pdf : public Studio {
  protected:
    void metti(const RecFattura& f) { b.fatture({f}); }
};

TEST_F(Pdf, VistaPdf) {
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

TEST_F(Pdf, UnAltroDocumentoEsceDallaVistaPdf) {
    metti(semplice());
    premi(nuova().command3d1[5]);
    Lumftea& s = esistente(1);
    EXPECT_TRUE(s.command3d1[0].visible());
    EXPECT_TRUE(s.command3d1[2].visible());
    EXPECT_EQ(s.command3d1[1].caption(), "Annulla");
    EXPECT_FALSE(s.pdf.visible());
    EXPECT_EQ(s.fuoco(), &s.Text2[0]);
}

TEST_F(Pdf, SceltaDelPdf) {
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

TEST_F(Pdf, AperturaDelPdf) {
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
