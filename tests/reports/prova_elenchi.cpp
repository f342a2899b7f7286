// The lists where stories do not reach: the room of the schedule, one pass over the files, a disc that fails.
#include <gtest/gtest.h>

#include "ledger/lumstcr.h"
#include "reports/lumstcd.h"
#include "reports/lumstcf.h"
#include "reports/lumstcs.h"
#include "tests/supporto/banco.h"

namespace ambra {
namespace {

RecFattura fattura(int fornitore, const std::string& numero, double importo, int scadenze = 1) {
    RecFattura f = fattura_vuota();
    f.numfor = fornitore;
    f.numdoc = numero;
    f.datareg = f.datadoc = "20240105";
    f.impon[0] = importo;
    for (int k = 0; k < scadenze; ++k) {
        f.sca[k] = importo;
        f.dsca[k] = "01022024";
    }
    return f;
}

TEST(Scadenziario, OltreTrentunomilaRigheSiContaESiPerde) {
    Banco b;
    b.fornitori({fornitore_vuoto("ROSSI")});
    b.fatture(std::vector<RecFattura>(8000, fattura(1, "1", 1, 4)));
    b.avvia();
    auto& s = b.schermo<Lumstcd>("lumstcd");
    EXPECT_EQ(s.nrighe, 32002);
    EXPECT_EQ(s.elenco.righe(), 32002);
    EXPECT_EQ(s.elenco.testo(30999, 5), "1,00");
    EXPECT_EQ(s.elenco.testo(31000, 5), "");
    EXPECT_EQ(s.elenco.testo(32001, 2), "") << "the total row is lost too";
}

TEST(Scadenziario, ConTrentamilaNovecentonovantottoScadenzeIlTotaleCiSta) {
    Banco b;
    b.fornitori({fornitore_vuoto("ROSSI")});
    std::vector<RecFattura> tutte(7749, fattura(1, "1", 1, 4));
    tutte.push_back(fattura(1, "2", 1, 2));
    b.fatture(tutte);
    b.avvia();
    auto& s = b.schermo<Lumstcd>("lumstcd");
    EXPECT_EQ(s.elenco.righe(), 31000);
    EXPECT_EQ(s.elenco.testo(30999, 2), "Totale");
    EXPECT_EQ(s.elenco.testo(30999, 5), "30.998,00");
}

TEST(Elenchi, UnaPassataSola) {
    Banco b;
    std::vector<RecFornitore> fornitori;
    std::vector<RecFattura> fatture;
    for (int i = 1; i <= 300; ++i) fornitori.push_back(fornitore_vuoto("F" + std::to_string(1000 + i)));
    for (int i = 0; i < 3000; ++i) fatture.push_back(fattura(i % 300 + 1, std::to_string(i), 10));
    b.fornitori(fornitori);
    b.fatture(fatture);
    b.avvia();
    int letture = 0;
    b.disco.guasto = [&](Operazione cosa, std::string_view file) {
        if (cosa == Operazione::leggi && file.ends_with(".ftr")) ++letture;
        return 0;
    };
    auto& s = b.schermo<Lumstcs>("lumstcs");
    EXPECT_EQ(s.nrighe, 1 + 300 * 12);
    EXPECT_GT(letture, 0);
    EXPECT_LT(letture, 30) << "3000 records in blocks, once";
    letture = 0;
    EXPECT_EQ(b.schermo<Lumstcr>("lumstcr").elenco.righe(), 1 + 300 * 12 + 1);
    EXPECT_LT(letture, 30);
}

TEST(Elenchi, UnErroreDiIeriNonFermaLaLista) {
    Banco b;
    b.fornitori({fornitore_vuoto("ROSSI")});
    b.fatture({fattura(1, "1", 5)});
    b.avvia();
    b.prog.err.numero = errore::dispositivo;
    auto& s = b.schermo<Lumstcf>("lumstcf");
    EXPECT_EQ(s.nrighe, 3);
    b.prog.err.numero = errore::dispositivo;
    s.comandi.command3d2.premuto();
    EXPECT_EQ(b.prog.err.numero, 0);
    EXPECT_EQ(s.nrighe, 3);
}

TEST(Elenchi, SenzaContatoriLaListaEVuota) {
    Banco b;
    b.fornitori({fornitore_vuoto("ROSSI")});
    b.fatture({fattura(1, "1", 5)});
    b.avvia();
    b.disco.guasto = [](Operazione cosa, std::string_view file) {
        return cosa == Operazione::leggi && file.ends_with(".tfr") ? errore::dispositivo : 0;
    };
    auto& s = b.schermo<Lumstcs>("lumstcs");
    EXPECT_EQ(s.nrighe, 1);
    EXPECT_EQ(s.elenco.righe(), 28);
    b.piattaforma.risposte = {Risposta::si};
    s.comandi.stampante.premuto();
    EXPECT_TRUE(b.piattaforma.lavori.empty());
    EXPECT_EQ(b.piattaforma.puntatore, Puntatore::normale);
}

}  // namespace
}  // namespace ambra
