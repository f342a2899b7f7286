// What the invoice screen refuses to store, in which order and words.
#include "core/testo.h"
#include "tests/invoices/studio.h"

using namespace ambra;

namespace {

class Rifiuti : public Studio {};

TEST_F(Rifiuti, DateRifiutate) {
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

TEST_F(Rifiuti, ControlliNellOrdine) {
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

TEST_F(Rifiuti, FrazionamentoControllatoSoloSenzaFornitore) {
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

TEST_F(Rifiuti, TuttoPassaTranneLeDate) {
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

}  // namespace
