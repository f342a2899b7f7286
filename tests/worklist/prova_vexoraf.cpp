// The worklist on a disc that fails: rows repeat the record before, nothing is lost, nothing crashes.
#include <gtest/gtest.h>

#include "core/testo.h"
#include "tests/supporto/banco.h"
#include "worklist/vexoraf.h"

using namespace ambra;

namespace {

RecFattura documento(int fornitore, const std::string& numero, double importo) {
    RecFattura f = fattura_vuota();
    f.numfor = fornitore;
    f.numdoc = numero;
    f.datareg = "20240105";
    f.datadoc = "20240101";
    f.impon[0] = importo;
    f.sca[0] = importo;
    return f;
}

TEST(Vexoraf, FornitoreZeroRipeteQuelloDiPrima) {
    Banco b;
    b.fornitori({fornitore_vuoto("ROSSI")});
    b.fatture({documento(1, "1", 10), documento(0, "2", 20)});
    b.avvia();
    auto& s = b.schermo<Vexoraf>("vexoraf");
    EXPECT_EQ(s.elenco.testo(2, 4), riempi("ROSSI", 40));
    EXPECT_EQ(s.elenco.testo(2, 5), "20,00");
}

TEST(Vexoraf, FileDelleFattureIllegibileRipeteIlVuoto) {
    Banco b;
    b.fornitori({fornitore_vuoto("ROSSI")});
    b.fatture({documento(1, "1", 10), documento(1, "2", 20)});
    b.disco.guasto = [](Operazione op, std::string_view file) {
        return op == Operazione::leggi && file.ends_with(".ftr") ? 57 : 0;
    };
    b.avvia();
    auto& s = b.schermo<Vexoraf>("vexoraf");
    EXPECT_EQ(s.righe, 3);
    EXPECT_EQ(s.elenco.testo(1, 5), "");
    EXPECT_EQ(s.elenco.testo(2, 0), "2");
}

TEST(Vexoraf, DiscoPienoNonFermaLaCancellazione) {
    Banco b;
    b.fornitori({fornitore_vuoto("ROSSI")});
    b.fatture({documento(1, "1", 10)});
    b.avvia();
    const std::string prima = b.file("ftr");
    b.disco.guasto = [](Operazione op, std::string_view) { return op == Operazione::scrivi ? 61 : 0; };
    b.piattaforma.risposte = {Risposta::si};
    auto& s = b.schermo<Vexoraf>("vexoraf");
    s.elenco.scegli(1, 8);
    EXPECT_EQ(b.file("ftr"), prima);
    EXPECT_EQ(b.piattaforma.messaggi.size(), 1u);
}

TEST(Vexoraf, ValoriDiLavoroDiModificaESaldo) {
    Banco b;
    b.fornitori({fornitore_vuoto("ROSSI"), fornitore_vuoto("VERDI")});
    b.fatture({documento(1, "1", 10), documento(2, "2", 20)});
    b.avvia();
    auto& s = b.schermo<Vexoraf>("vexoraf");
    b.prog.statofattura = 1;
    s.elenco.scegli(2, 7);
    EXPECT_EQ(b.prog.recfattura, 2);
    EXPECT_EQ(b.prog.statofattura, 0);
    EXPECT_EQ(b.prog.recfornitore, 2);
    b.prog.statofattura = 1;
    b.prog.modofattura = 7;
    s.elenco.scegli(1, 9);
    EXPECT_EQ(b.prog.recfattura, 1);
    EXPECT_EQ(b.prog.statofattura, 1);
    EXPECT_EQ(b.prog.modofattura, 7);
    EXPECT_EQ(b.prog.recfornitore, 1);
}

TEST(Vexoraf, PiuDiVenticinqueRigheSenzaRiempitivo) {
    for (const int n : {24, 25, 26, 40}) {
        Banco b;
        b.fornitori({fornitore_vuoto("ROSSI")});
        b.fatture(std::vector<RecFattura>(static_cast<std::size_t>(n), documento(1, "1", 10)));
        b.avvia();
        auto& s = b.schermo<Vexoraf>("vexoraf");
        EXPECT_EQ(s.righe, n + 1);
        EXPECT_EQ(s.elenco.righe(), std::max(n + 1, 26));
        s.srx[0].premi();
        EXPECT_EQ(s.elenco.righe(), std::max(n + 1, 26));
        EXPECT_EQ(s.elenco.testo(n, 0), std::to_string(n));
    }
}

TEST(Vexoraf, NuovaFatturaPreparaIValori) {
    Banco b;
    b.avvia();
    auto& s = b.schermo<Vexoraf>("vexoraf");
    b.prog.recfattura = b.prog.recfornitore = b.prog.modofattura = b.prog.statofattura = 9;
    s.command3d2[2].premi();
    EXPECT_EQ(b.prog.tornada, -99);
    EXPECT_EQ(b.prog.recfattura, 0);
    EXPECT_EQ(b.prog.modofattura, 0);
    EXPECT_EQ(b.prog.recfornitore, 0);
    EXPECT_EQ(b.prog.statofattura, 0);
    EXPECT_EQ(b.prog.nuovafattura, 1);
}

TEST(Vexoraf, FineAllaRadiceChiudeIlProcesso) {
    Banco b;
    b.avvia();
    auto& s = b.schermo<Vexoraf>("vexoraf");
    s.command3d1.premi();
    EXPECT_EQ(s.command3d2[3].caption(), "Tabella iva");
    s.indice.premi();
    EXPECT_EQ(s.command3d2[3].caption(), "Fornitori");
    EXPECT_THROW(s.indice.premi(), FineProcesso);
}

}  // namespace
