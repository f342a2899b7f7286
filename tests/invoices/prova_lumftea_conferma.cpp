// What the invoice screen stores of a new document, to the byte.
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

}  // namespace
