// The reorganisation of the invoice file: order and removal.
#include <random>

#include "tests/supporto/seme.h"
#include "tests/worklist/banco_riordino.h"

using namespace ambra;

namespace {

// The sort as it was told: quadratic, taking entry j out and putting it at place i.
void ordine_raccontato(std::vector<VoceRiordino>& v) {
    for (std::size_t i = 0; i + 1 < v.size(); ++i)
        for (std::size_t j = i + 1; j < v.size(); ++j)
            if (v[i].chiave > v[j].chiave) {
                const VoceRiordino tolta = v[j];
                for (std::size_t k = j; k > i; --k) v[k] = v[k - 1];
                v[i] = tolta;
            }
}

TEST(Riordino, OrdinaComeRaccontato) {
    std::mt19937 caso(20240315);
    for (int giro = 0; giro < 400; ++giro) {
        const int quante = std::uniform_int_distribution<>(0, 120)(caso);
        const int chiavi = std::uniform_int_distribution<>(1, 40)(caso);
        std::vector<VoceRiordino> a, b;
        for (int i = 1; i <= quante; ++i)
            a.push_back({i, std::uniform_int_distribution<long>(-1, chiavi)(caso)});
        b = a;
        ordina_voci(a);
        ordine_raccontato(b);
        for (std::size_t i = 0; i < a.size(); ++i) ASSERT_EQ(a[i].rec, b[i].rec) << "giro " << giro;
    }
}

TEST(Riordino, ChiaveDellaData) {
    EXPECT_EQ(chiave_riordino("20240315"), 20240315);
    EXPECT_EQ(chiave_riordino("        "), 0);
    EXPECT_EQ(chiave_riordino("xx240315"), 0);
    EXPECT_EQ(chiave_riordino("2024x315"), 2024);
    EXPECT_EQ(chiave_riordino("  240315"), 240315);
    EXPECT_EQ(chiave_riordino("-1"), -1);
    EXPECT_EQ(chiave_riordino("99999999"), 99999999);
}

TEST(Riordino, TreDocumentiQuelloInMezzoCancellato) {
    BancoRiordino b;
    b.fatture({documento("B", "20240202"), documento("X", "20240101", true), documento("A", "20240101")});
    b.file("tfr")[28 + 2] = 1;
    const std::string prima = b.file("ftr");
    b.avvia();
    b.riordina();
    EXPECT_EQ(b.guasto(), "");
    EXPECT_EQ(contatore(b), 2);
    EXPECT_EQ(numeri(b.file("ftr")), (std::vector<std::string>{"A", "B", "A"}));
    EXPECT_EQ(b.file("$$$"), prima);
    EXPECT_EQ(b.file("ftr").size(), 3 * sizeof(RecFattura));
    EXPECT_EQ(b.file("tfr")[28 + 2], 1) << "word 1 stays";
    EXPECT_EQ(b.schermo_principale().elenco.testo(1, 2), "A") << "the list is rebuilt";
    EXPECT_EQ(b.schermo_principale().righe, 3);
    ASSERT_EQ(b.piattaforma.messaggi.size(), 1u);
    EXPECT_EQ(b.piattaforma.messaggi[0].testo, "Confermi il riordino?");
    EXPECT_EQ(b.piattaforma.messaggi[0].titolo, "Riordino archivio");
    EXPECT_EQ(b.piattaforma.messaggi[0].icona, Icona::domanda);
    EXPECT_EQ(b.piattaforma.puntatore, Puntatore::normale);
}

TEST(Riordino, StessaDataTieneOrdine) {
    BancoRiordino b;
    b.fatture({documento("1", "20240202"), documento("2", "20240101"), documento("3", "20240202"),
               documento("4", "20240101"), documento("5", "20240202")});
    b.avvia();
    b.riordina();
    EXPECT_EQ(numeri(b.file("ftr")), (std::vector<std::string>{"2", "4", "1", "3", "5"}));
    EXPECT_EQ(contatore(b), 5);
}

TEST(Riordino, SoloUnoEsattoEMarcaDiCancellazione) {
    BancoRiordino b;
    auto strano = documento("2", "20240101");
    strano.cancellata = 2;
    b.fatture({documento("1", "20240202"), strano});
    b.avvia();
    b.riordina();
    EXPECT_EQ(numeri(b.file("ftr")), (std::vector<std::string>{"2", "1"}));
}

TEST(Riordino, RispostaNoAggiornaSolo) {
    BancoRiordino b;
    b.fatture({documento("1", "20240202"), documento("2", "20240101")});
    b.avvia();
    b.fatture({documento("3", "20240101")});  // another computer's work, not yet in the list
    const std::string ftr = b.file("ftr"), tfr = b.file("tfr");
    b.riordina(false);
    EXPECT_EQ(b.file("ftr"), ftr);
    EXPECT_EQ(b.file("tfr"), tfr);
    EXPECT_FALSE(b.memoria.esiste("\\lumdir\\lumora\\lum001.$$$"));
    EXPECT_EQ(b.schermo_principale().elenco.testo(3, 2), "3");
}

TEST(Riordino, ArchivioVuoto) {
    BancoRiordino b;
    b.fatture({});
    b.avvia();
    b.riordina();
    EXPECT_EQ(b.guasto(), "");
    EXPECT_TRUE(b.memoria.esiste("\\lumdir\\lumora\\lum001.$$$"));
    EXPECT_EQ(b.file("ftr"), "");
    EXPECT_EQ(contatore(b), 0);
}

TEST(Riordino, ContatoreNegativo) {
    BancoRiordino b;
    b.fatture({documento("1", "20240202")});
    b.file("tfr").replace(28, 2, "\xFF\xFF");
    b.avvia();
    const std::string ftr = b.file("ftr");
    b.riordina();
    EXPECT_EQ(b.guasto(), "");
    EXPECT_EQ(contatore(b), -1);
    EXPECT_EQ(b.file("ftr"), ftr);
}

TEST(Riordino, OltreDiecimila) {
    BancoRiordino b;
    std::vector<RecFattura> tutte(10002, documento("x", "20240101"));
    tutte[7].cancellata = 1;
    b.fatture(tutte);
    b.avvia();
    const std::string ftr = b.file("ftr");
    b.riordina();
    EXPECT_EQ(b.guasto(), errore_n(9) + kCaricamento);
    EXPECT_EQ(contatore(b), 10001) << "the count is already lower";
    EXPECT_EQ(b.file("ftr"), ftr);
    EXPECT_FALSE(b.memoria.esiste("\\lumdir\\lumora\\lum001.$$$"));
    EXPECT_EQ(b.piattaforma.puntatore, Puntatore::normale);
}

TEST(Riordino, DiecimilaPiuUnoCancellatoCiStanno) {
    BancoRiordino b;
    std::vector<RecFattura> tutte(10001, documento("x", "20240102"));
    tutte[3].cancellata = 1;
    tutte[10000].datareg = "20240101";
    tutte[10000].numdoc = "ultimo";
    b.fatture(tutte);
    b.avvia();
    b.riordina();
    EXPECT_EQ(b.guasto(), "");
    EXPECT_EQ(contatore(b), 10000);
    EXPECT_EQ(numeri(b.file("ftr"))[0], "ultimo");
}

}  // namespace
