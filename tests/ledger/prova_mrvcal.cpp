// The screens of the due dates where stories do not reach: one pass, sums against the documents, discs that
// fail.
#include <gtest/gtest.h>

#include <random>

#include "core/numeri.h"
#include "core/testo.h"
#include "ledger/lumpgr.h"
#include "ledger/mrvcal.h"
#include "ledger/mrvcau.h"
#include "tests/supporto/banco.h"
#include "tests/supporto/seme.h"

using namespace ambra;

namespace {

RecFattura pagata(const std::string& numero, double base, double aliquota, const char* data,
                  int fornitore = 1) {
    RecFattura f = fattura_vuota();
    f.numfor = fornitore;
    f.numdoc = numero;
    f.datareg = f.datadoc = "20260105";
    f.impon[0] = base;
    f.rac[0] = base * aliquota / 100;
    f.sca[0] = f.ver[0] = base - f.rac[0];
    f.dver[0] = data;
    return f;
}

struct Tavolo : Banco {
    explicit Tavolo(const std::vector<RecFattura>& documenti) {
        RecFornitore snc = fornitore_vuoto("VERDI SNC");
        fornitori({fornitore_vuoto("ROSSI SRL"), snc});
        fatture(documenti);
        piattaforma.oggi = {15, 3, 2026};
        avvia();
    }
    Mrvcal& apri() {
        prog.schermi.apri("mrvcal");
        return schermo<Mrvcal>("mrvcal");
    }
    static std::string riga(const Griglia& g, int r) {
        std::string s;
        for (int c = 0; c < g.quante_colonne(); ++c) s += unisci(c ? "|" : "", g.vista(r, c));
        return s;
    }
};

double somma_colonna(const Griglia& g, int colonna) {
    double s = 0;
    for (int r = 1; r < g.righe(); ++r) s += valimporto_di(g.vista(r, colonna));
    return s;
}

// All the tax of every document that is settled with dates is in the list; every payment once.
TEST(Mrvcal, DocumentiACaso) {
    std::mt19937 caso(seme_di_prova());
    const auto fra = [&](int a, int b) { return std::uniform_int_distribution(a, b)(caso); };
    for (int giro = 0; giro < 30; ++giro) {
        std::vector<RecFattura> tutte;
        double dovuto = 0;
        for (int i = fra(1, 60); i > 0; --i) {
            RecFattura f = pagata(std::to_string(i), fra(100, 200000) / 100.0, fra(0, 1) ? 4 : 20, "10032026",
                                  fra(1, 2));
            const double rac = static_cast<double>(centesimi(f.rac[0])) / 100;
            f.rac[0] = rac;
            const int parti = fra(1, 4);
            const double netto = f.sca[0];
            for (int k = 0; k < 4; ++k) {
                f.sca[k] = f.ver[k] = k < parti ? netto / parti : 0;
                const std::string data = con_zeri(fra(1, 28), 2) + con_zeri(fra(1, 12), 2);
                f.dver[k] = data + std::to_string(fra(2016, 2027));
            }
            f.tipodc = fra(0, 5) == 0 ? 1 : 0;
            if (fra(0, 6) == 0)
                f.dverrit = "16042026";
            else
                dovuto += rac * segno(f);
            tutte.push_back(f);
        }
        Tavolo t(tutte);
        const Mrvcal& s = t.apri();
        EXPECT_NEAR(somma_colonna(s.elenco, 4), dovuto, 0.001);
        EXPECT_FALSE(s.senza.visible());
        double dettagli = 0;
        for (int r = 1; r < s.elenco.righe(); ++r) {
            t.schermo<Mrvcal>("mrvcal").elenco.scegli(r, 0);
            EXPECT_NEAR(somma_colonna(s.dettaglio, 5), valimporto_di(s.elenco.vista(r, 4)), 0.001);
            dettagli += somma_colonna(s.dettaglio, 5);
        }
        EXPECT_NEAR(dettagli, dovuto, 0.001);
    }
}

TEST(Mrvcal, UnaPassataENessunaScrittura) {
    std::vector<RecFattura> tutte;
    for (int i = 0; i < 3000; ++i)
        tutte.push_back(pagata(std::to_string(i), 100, i % 2 ? 4 : 20, "10032026"));
    Tavolo t(tutte);
    int letture = 0;
    t.disco.guasto = [&](Operazione cosa, std::string_view file) {
        EXPECT_NE(cosa, Operazione::scrivi);
        if (cosa == Operazione::leggi && file.ends_with(".ftr")) ++letture;
        return 0;
    };
    const Mrvcal& s = t.apri();
    EXPECT_EQ(s.elenco.righe(), 3);
    EXPECT_GT(letture, 0);
    EXPECT_LT(letture, 30) << "3000 records in blocks, once";
    t.prog.schermi.apri("mrvcau");
}

TEST(Mrvcal, UnDiscoCheNonLeggeDaUnElencoVuoto) {
    Tavolo t({pagata("1", 1000, 4, "10032026")});
    for (const char* quale : {".ftr", ".tfr", ".for"}) {
        t.disco.guasto = [&](Operazione cosa, std::string_view file) {
            return cosa == Operazione::leggi && file.ends_with(quale) ? errore::dispositivo : 0;
        };
        const Mrvcal& s = t.apri();
        EXPECT_EQ(s.elenco.righe(), std::string_view(quale) == ".for" ? 2 : 1) << quale;
        EXPECT_EQ(t.piattaforma.puntatore, Puntatore::normale);
        t.prog.schermi.chiudi("mrvcal");
    }
}

// The list follows what was paid over on lumpgr, and the choice stays where it was.
TEST(Mrvcal, DopoIlVersamentoLElencoSiRifa) {
    Tavolo t({pagata("1", 1000, 20, "10012026"), pagata("2", 1000, 20, "10022026"),
              pagata("3", 1000, 4, "10022026", 2)});
    Mrvcal& s = t.apri();
    ASSERT_EQ(s.elenco.righe(), 4);
    s.elenco.scegli(2, 0);
    EXPECT_EQ(s.dettaglio.testo(1, 1), "2");
    s.segna.premi();
    auto& versamento = t.schermo<Lumpgr>("lumpgr");
    EXPECT_EQ(versamento.txt.testo(), "200,00");
    t.piattaforma.risposte = {Risposta::si, Risposta::no};
    versamento.stampante.premi();
    ASSERT_EQ(s.elenco.righe(), 3);
    EXPECT_EQ(t.riga(s.elenco, 1), "16/02/2026|1040|01|2026|200,00|1|scaduta|");
    EXPECT_EQ(t.riga(s.elenco, 2),
              "16/06/2026|1019|02|2026|40,00|1|in formazione|da controllare: 3 VERDI SNC");
    EXPECT_EQ(s.finora.caption(), "finora 40,00: a 500,00 o il 16/06/2026");
    EXPECT_EQ(s.scelto.caption(), "Scadenza del 16/02/2026, ritenute sui compensi: 200,00");
    // a choice that is still there stays
    s.elenco.scegli(2, 0);
    s.comandi.command3d2.premi();
    EXPECT_EQ(s.dettaglio.testo(1, 1), "3");
}

// Rows of the shown list may be of another archive by now: what is marked is what is there.
TEST(Mrvcal, SegnaGuardaLArchivioDiAdesso) {
    Tavolo t({pagata("1", 1000, 20, "10012026"), pagata("2", 900, 20, "10012026")});
    Mrvcal& s = t.apri();
    std::string& ftr = t.file("ftr");
    ftr = ftr.substr(522) + ftr.substr(0, 522);
    RecFattura f{};
    leggi(t.prog.arc.ftr, 1, f);
    f.dverrit = "16022026";
    scrivi(t.prog.arc.ftr, 1, f);
    s.segna.premi();
    EXPECT_EQ(t.schermo<Lumpgr>("lumpgr").txt.testo(), "200,00");
}

TEST(Mrvcal, SenzaRitenuteNonCeNullaDaSegnare) {
    Tavolo t({});
    Mrvcal& s = t.apri();
    EXPECT_EQ(s.scelto.caption(), "Nessuna ritenuta da versare.");
    EXPECT_FALSE(s.segna.enabled());
    s.segna.premi();
    EXPECT_EQ(t.prog.schermi.caricato("lumpgr"), nullptr);
    s.elenco.scegli(0, 0);
    s.elenco.scegli(1, 0);
    t.piattaforma.risposte = {Risposta::si};
    s.comandi.stampante.premi();
    EXPECT_TRUE(t.piattaforma.lavori.empty());
}

TEST(Mrvcau, UnAltroAnnoRifaLElencoELaCausaleResta) {
    RecFattura mezza = pagata("3", 1000, 20, "10122025");
    mezza.sca[0] = mezza.ver[0] = 300;
    mezza.sca[1] = mezza.ver[1] = 500;
    mezza.dver[1] = "10012026";
    Tavolo t({pagata("1", 1000, 20, "10012026"), pagata("2", 500, 4, "10022026"), mezza});
    t.prog.schermi.apri("mrvcau");
    auto& s = t.schermo<Mrvcau>("mrvcau");
    ASSERT_EQ(s.elenco.righe(), 4);
    EXPECT_EQ(t.riga(s.elenco, 1), "ROSSI SRL||W|500,00||500,00|20,00|1020||20,00");
    EXPECT_EQ(t.riga(s.elenco, 2), "ROSSI SRL||A|1.625,00||1.625,00|325,00|1040||325,00");
    EXPECT_EQ(t.riga(s.elenco, 3), "Totale|||2.125,00||2.125,00|345,00|||345,00");
    for (const char* c : {"M", "W", "Z", "A", "M"}) {
        s.elenco.scegli(2, 2);
        EXPECT_EQ(s.elenco.testo(2, 2), c);
    }
    s.elenco.scegli(2, 1);  // another column
    s.elenco.scegli(3, 2);  // the total
    s.elenco.scegli(0, 2);  // the heading
    s.anno.digita("202");
    EXPECT_EQ(s.elenco.righe(), 4) << "not a year yet";
    s.anno.digita("2025");
    EXPECT_EQ(t.riga(s.elenco, 1), "ROSSI SRL||M|375,00||375,00|75,00|1040||75,00");
    s.anno.digita("2024");
    EXPECT_EQ(s.elenco.righe(), 1);
}

}  // namespace
