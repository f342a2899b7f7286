// The worklist read ahead: it is what the screen would have read, or it is not taken.
#include <gtest/gtest.h>

#include "tests/supporto/banco.h"
#include "worklist/vexoraf.h"

using namespace ambra;

namespace {

constexpr const char* kOggi = "20240315";

RecFattura documento(int fornitore, const char* numero, double importo, double versato) {
    RecFattura f = fattura_vuota();
    f.numfor = fornitore;
    f.numdoc = numero;
    f.datareg = f.datadoc = "20240105";
    f.dsca[0] = "01032024";
    f.impon[0] = f.sca[0] = importo;
    f.ver[0] = versato;
    return f;
}

struct Tavolo : Banco {
    int letture = 0;  // of the documents, by the program

    Tavolo() {
        piattaforma.oggi = {15, 3, 2024};
        fornitori({fornitore_vuoto("ROSSI"), fornitore_vuoto("BIANCHI")});
        RecFattura via = documento(1, "9", 90, 0);
        via.cancellata = 1;
        fatture({documento(1, "12/A", 100, 0), documento(2, "13", 200, 200), via, documento(1, "14", 5, 1)});
        memoria.prima_di = [this](Operazione op, std::string_view file) {
            letture += op == Operazione::leggi && file.ends_with(".ftr");
        };
    }
    Vexoraf& s() { return schermo<Vexoraf>("vexoraf"); }
    std::shared_ptr<ListaAnticipata> letta(std::string_view nnn = "001", const char* oggi = kOggi) const {
        return anticipa_lista(std::unique_ptr<Disco>(new DiscoMemoria(memoria.altro_programma())), nnn, oggi);
    }
    void porta(std::shared_ptr<ListaAnticipata> l) {
        std::promise<std::shared_ptr<ListaAnticipata>> p;
        p.set_value(std::move(l));
        prog.lista_in_arrivo = p.get_future();
    }
};

void stesse_righe(Vexoraf& a, Vexoraf& b) {
    ASSERT_EQ(a.righe, b.righe);
    ASSERT_EQ(a.elenco.righe(), b.elenco.righe());
    for (int r = 0; r < a.elenco.righe(); ++r) {
        for (int c = 0; c < a.elenco.quante_colonne(); ++c) {
            EXPECT_EQ(a.elenco.testo(r, c), b.elenco.testo(r, c)) << r << "," << c;
            EXPECT_EQ(a.elenco.colore(r, c), b.elenco.colore(r, c)) << r << "," << c;
        }
        EXPECT_EQ(a.elenco.chiave(r), b.elenco.chiave(r)) << r;
        ASSERT_EQ(a.voce(r) == nullptr, b.voce(r) == nullptr) << r;
        if (a.voce(r)) {
            EXPECT_EQ(a.voce(r)->scaduto, b.voce(r)->scaduto) << r;
        }
    }
    EXPECT_EQ(byte_di(a.fattura), byte_di(b.fattura));
}

}  // namespace

TEST(ListaAnticipata, SiMostraQuelCheSiSarebbeLetto) {
    Tavolo letta_adesso, b;
    letta_adesso.avvia();
    EXPECT_GT(letta_adesso.letture, 0);
    b.porta(b.letta());
    b.avvia();
    EXPECT_EQ(b.letture, 0);
    stesse_righe(b.s(), letta_adesso.s());
}

TEST(ListaAnticipata, LeSueRigheSonoDocumentiSuCuiLavorare) {
    Tavolo b;
    b.porta(b.letta());
    b.avvia();
    b.piattaforma.risposte = {Risposta::si};
    b.s().elenco.scegli(2, 8);
    const auto doc = b.s().documento(2);
    ASSERT_TRUE(doc);
    EXPECT_EQ(doc->numdoc.rifilato(), "13");
    EXPECT_EQ(doc->cancellata, 1);
    b.s().aggiornalista();
    EXPECT_EQ(b.s().elenco.testo(2, 4), "Fattura eliminata");
}

TEST(ListaAnticipata, NonValePiuSeLArchivioHaAltriContatori) {
    Tavolo b;
    auto prima = b.letta();
    ASSERT_TRUE(prima);
    b.fatture({documento(1, "15", 300, 0)});
    RecTotali t{};
    t.parola[0] = 5;
    b.file("tfr").replace(sizeof t, sizeof t, byte_di(t));
    b.porta(std::move(prima));
    b.avvia();
    EXPECT_GT(b.letture, 0);
    EXPECT_EQ(b.s().righe, 6);
    EXPECT_EQ(b.s().elenco.testo(5, 2), "15");
}

TEST(ListaAnticipata, NonValePiuIlGiornoDopo) {
    Tavolo b;
    b.porta(b.letta("001", "20240229"));
    b.avvia();
    EXPECT_EQ(b.s().voce(1)->scaduto, 100);
}

TEST(ListaAnticipata, NonValePerUnAltroStabileNeDopoUnPoco) {
    const Tavolo b;
    const auto l = b.letta();
    ASSERT_TRUE(l);
    EXPECT_TRUE(l->vale_per("001", kOggi, l->totali));
    EXPECT_FALSE(l->vale_per("002", kOggi, l->totali));
    l->letta -= std::chrono::milliseconds(500);
    EXPECT_FALSE(l->vale_per("001", kOggi, l->totali));
}

TEST(ListaAnticipata, NullaDaFileCheMancanoOSiLeggonoMale) {
    Tavolo b;
    const auto file = b.memoria.altro_programma();
    EXPECT_EQ(b.letta("002"), nullptr);
    EXPECT_FALSE(file.esiste(nome_file("002", "tfr")));
    EXPECT_FALSE(file.esiste(nome_file("002", "ftr")));

    DiscoMemoria dietro = b.memoria.altro_programma();
    const auto guasta = [&](std::string_view estensione, Operazione quale) {
        auto rotto = std::make_unique<DiscoGuasto>(dietro);
        rotto->guasto = [=](Operazione op, std::string_view nome) {
            return op == quale && nome.ends_with(estensione) ? 57 : 0;
        };
        return anticipa_lista(std::move(rotto), "001", kOggi);
    };
    for (const char* f : {".tfr", ".ftr", ".for"})
        for (const Operazione op : {Operazione::apri, Operazione::leggi})
            EXPECT_EQ(guasta(f, op), nullptr) << f;
    b.porta(nullptr);
    b.avvia();
    EXPECT_EQ(b.s().righe, 5);
}

// Reading it leaves the program's error number changed, as the screen's own reading must.
TEST(ListaAnticipata, NullaDaUnDocumentoSenzaFornitore) {
    Tavolo b;
    b.fatture({documento(0, "15", 1, 0)});
    EXPECT_EQ(b.letta(), nullptr);
}

TEST(ListaAnticipata, NonScriveNulla) {
    Tavolo b;
    const auto byte = [&] { return b.file("tfr") + b.file("for") + b.file("ftr"); };
    const std::string prima = byte();
    ASSERT_TRUE(b.letta());
    EXPECT_EQ(byte(), prima);
}
