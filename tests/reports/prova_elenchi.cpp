// The lists where stories do not reach: the room of the schedule, one pass over the files, a disc that fails.
#include <gtest/gtest.h>

#include "core/testo.h"
#include "ledger/lumstca.h"
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

TEST(Scadenziario, NonHaUnLimiteDiRighe) {
    Banco b;
    b.fornitori({fornitore_vuoto("ROSSI")});
    b.fatture(std::vector<RecFattura>(8000, fattura(1, "1", 1, 4)));
    b.avvia();
    auto& s = b.schermo<Lumstcd>("lumstcd");
    EXPECT_EQ(s.nrighe, 32002);
    EXPECT_EQ(s.elenco.righe(), 32002);
    EXPECT_EQ(s.elenco.testo(31000, 5), "1,00");
    EXPECT_EQ(s.elenco.testo(32001, 2), "Totale");
}

// Whatever the keys of the data say, the total stays behind them and the blank rows behind it.
template <class S>
void il_totale_resta_in_fondo(const char* nome, std::initializer_list<std::size_t> etichette) {
    Banco b;
    b.fornitori({fornitore_vuoto("\xC8SEDRA SRL"), fornitore_vuoto("zzzzzzzzz"), fornitore_vuoto("ALFA")});
    const char* numeri[] = {"FT/12", "9999999999", "zzzzzzzzzz", "7"};
    std::vector<RecFattura> tutte;
    for (int i = 0; i < 8; ++i) {
        tutte.push_back(fattura(i % 3 + 1, numeri[i % 4], i % 5 + 1, 1));
        tutte.back().rac[0] = 1;
        tutte.back().datadoc = "zzzzzzzz";
        tutte.back().dscarit = "01022024";
        tutte.back().modpag = 39;
    }
    b.fatture(tutte);
    b.avvia();
    auto& s = b.schermo<S>(nome);
    for (const std::size_t e : etichette) {
        s.srx[e].premuto();
        for (int r = 1; r <= 8; ++r) EXPECT_NE(rifila(s.elenco.vista(r, 2)), "") << nome << e << ' ' << r;
        for (int r = 1; r <= 8; ++r) EXPECT_NE(s.elenco.vista(r, 2), "Totale") << nome << e << ' ' << r;
        EXPECT_EQ(s.elenco.vista(9, 2), "Totale") << nome << e;
        EXPECT_EQ(s.elenco.vista(10, 2), "") << nome << e;
    }
}

TEST(Elenchi, IlTotaleRestaInFondo) {
    il_totale_resta_in_fondo<Lumstcf>("lumstcf", {0, 1, 2});
    il_totale_resta_in_fondo<Lumstcd>("lumstcd", {0, 2, 4, 6});
    il_totale_resta_in_fondo<Lumstca>("lumstca", {0, 1, 2, 5});
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
