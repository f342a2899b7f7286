// The registry: which screen is on top, what it is told, what the program keeps for all of them.
#include <gtest/gtest.h>

#include "screen/attesa.h"
#include "screen/programma.h"
#include "tests/supporto/disco_memoria.h"
#include "tests/supporto/piattaforma_prova.h"

using namespace ambra;

namespace {

struct Uno : Schermo {
    explicit Uno(Programma& p) : Schermo(p, "uno", "Uno") {
        aggiungi("via", via);
        aggiungi("elenco", elenco);
        aggiungi("griglia", griglia);
        elenco.aggiungi("a");
        elenco.aggiungi("b");
        griglia.colonne({{"A", 100}});
        griglia.aggiungi({"x"});
        griglia.scelto = [this](int, int) { ++scelte; };
        via.premuto = [this] {
            prog.schermi.chiudi("uno");
            via.caption("ancora vivo");  // the screen lives until the event has returned
        };
        attivata = [this](Attivazione come) {
            ++attivazioni;
            ultima = come;
        };
        ++vivi;
    }
    ~Uno() override { --vivi; }
    Bottone via;
    Lista elenco;
    Griglia griglia;
    int scelte = 0;
    int attivazioni = 0;
    Attivazione ultima = Attivazione::aperta;
    static inline int vivi = 0;
};
struct Due : Schermo {
    explicit Due(Programma& p) : Schermo(p, "due", "Due") {}
};

struct Banco2 {
    DiscoMemoria disco;
    PiattaformaProva piattaforma;
    Programma prog{disco, piattaforma, "1"};
    Banco2() {
        prog.schermi.registra<Uno>("uno");
        prog.schermi.registra<Due>("due");
    }
};

TEST(Registro, UnaSolaIstanzaEAttivazioni) {
    Banco2 b;
    b.prog.schermi.apri("uno");
    auto& uno = b.prog.schermi.carica<Uno>("uno");
    EXPECT_EQ(uno.attivazioni, 1);
    b.prog.schermi.apri("due");
    EXPECT_EQ(uno.attivazioni, 1);
    b.prog.schermi.davanti(uno);  // a user moves between windows
    EXPECT_EQ(uno.attivazioni, 1);
    b.prog.schermi.apri("due");
    b.prog.schermi.nascondi("due");
    EXPECT_EQ(uno.attivazioni, 2);
    EXPECT_FALSE(b.prog.schermi.caricato("due")->visible());
    b.prog.schermi.nascondi("due");
    EXPECT_EQ(uno.attivazioni, 2);
    b.prog.schermi.apri("nessuno");
    EXPECT_EQ(b.prog.schermi.caricati().size(), 2u);
}

TEST(Registro, ApertaOScoperta) {
    Banco2 b;
    b.prog.schermi.apri("uno");
    auto& uno = b.prog.schermi.carica<Uno>("uno");
    EXPECT_EQ(uno.ultima, Attivazione::aperta);
    b.prog.schermi.apri("due");
    b.prog.schermi.chiudi("due");
    EXPECT_EQ(uno.ultima, Attivazione::scoperta);
    b.prog.schermi.apri("uno");
    EXPECT_EQ(uno.ultima, Attivazione::aperta);
    EXPECT_EQ(uno.attivazioni, 3);
}

TEST(Registro, ChiudereUnaCheNonEInCimaNonAttivaNessuno) {
    Banco2 b;
    b.prog.schermi.apri("due");
    b.prog.schermi.apri("uno");
    auto& uno = b.prog.schermi.carica<Uno>("uno");
    b.prog.schermi.chiudi("due");
    EXPECT_EQ(uno.attivazioni, 1);
    ASSERT_EQ(b.prog.schermi.pila().size(), 1u);
    b.prog.schermi.apri("due");
    b.prog.schermi.davanti(uno);
    b.prog.schermi.nascondi("due");
    EXPECT_EQ(uno.attivazioni, 1);
}

TEST(Registro, ChiAttendeVieneSoloDavanti) {
    Banco2 b;
    b.prog.schermi.apri("uno");
    auto& uno = b.prog.schermi.carica<Uno>("uno");
    b.prog.schermi.apri("due");
    {
        Attesa attesa(uno);
        b.prog.schermi.apri("uno");
        EXPECT_EQ(uno.attivazioni, 1);
        EXPECT_EQ(b.prog.schermi.pila().back(), &uno);
        uno.via.premi();
        uno.elenco.scegli(1);
        uno.griglia.scegli(1, 0);
        EXPECT_EQ(uno.elenco.scelta(), -1);
        EXPECT_EQ(uno.scelte, 0);
        b.prog.schermi.chiudi_dal_bordo(uno);
        EXPECT_EQ(b.prog.schermi.caricato("uno"), &uno);
        std::optional<int> esito;
        b.piattaforma.attese = {[] {}, [&] { esito = 7; }};
        EXPECT_EQ(Attesa::attendi(b.prog, esito), 7);
        EXPECT_TRUE(b.piattaforma.attese.empty());
    }
    b.prog.schermi.apri("uno");
    EXPECT_EQ(uno.attivazioni, 2);
    uno.elenco.scegli(1);
    uno.griglia.scegli(1, 0);
    EXPECT_EQ(uno.elenco.scelta(), 1);
    EXPECT_EQ(uno.scelte, 1);
}

TEST(Registro, StrumentiNelLoroOrdineEFoglie) {
    Banco2 b;
    b.prog.schermi.registra<Uno>("uno", {.strumento = "Uno", .posto = 2});
    b.prog.schermi.registra<Due>("due", {.strumento = "Due", .posto = 1});
    b.prog.schermi.registra<Due>("tre", {.prepara = [](Programma& p) { p.tipomodulo = 3; }});
    b.prog.schermi.registra<Due>("quattro", {.vuole_documento = true});
    const auto s = b.prog.schermi.strumenti();
    ASSERT_EQ(s.size(), 2u);
    EXPECT_EQ(s[0].schermo, "due");
    EXPECT_EQ(s[1].caption, "Uno");
    EXPECT_TRUE(b.prog.schermi.apri_foglia("tre"));
    EXPECT_EQ(b.prog.tipomodulo, 3);
    EXPECT_FALSE(b.prog.schermi.apri_foglia("quattro"));
    EXPECT_FALSE(b.prog.schermi.apri_foglia("nessuno"));
}

TEST(Registro, ChiusaDopoLEvento) {
    Banco2 b;
    b.prog.schermi.apri("uno");
    EXPECT_EQ(Uno::vivi, 1);
    {
        Registro::Turno turno(b.prog.schermi);
        b.prog.schermi.carica<Uno>("uno").via.premi();
        EXPECT_EQ(b.prog.schermi.caricato("uno"), nullptr);
        EXPECT_EQ(Uno::vivi, 1);
        b.prog.schermi.apri("uno");  // a fresh one, beside the closed one
        EXPECT_EQ(Uno::vivi, 2);
    }
    EXPECT_EQ(Uno::vivi, 1);
}

TEST(Programma, ValoriCheDividonoIlPosto) {
    Banco2 b;
    b.prog.tipomodulo = 3;
    EXPECT_EQ(b.prog.recfornitore, 3);
    b.prog.contodefault = 17;
    EXPECT_EQ(b.prog.modofattura, 17);
}

TEST(Programma, NomeENumeroDelloStabile) {
    Banco2 b;
    EXPECT_EQ(b.prog.stabili, "000 Stabile non definito");
    b.prog.stabili = "007 ROSSI          ";
    EXPECT_EQ(b.prog.nnn(), "007");
    EXPECT_EQ(b.prog.numero_stabile(), 7);
    EXPECT_EQ(b.prog.nome_stabile(), "ROSSI");
}

}  // namespace
