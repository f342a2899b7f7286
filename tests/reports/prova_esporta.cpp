// The export on discs that refuse it, and the table of sums at its ends.
#include "reports/esporta.h"

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

#include "core/testo.h"
#include "reports/lumstcx.h"
#include "reports/lumstcy.h"
#include "tests/supporto/banco.h"

namespace ambra {
namespace {

const std::string kFile = "a:lumxp001.txt";

struct Esportazione : testing::Test {
    Banco b;
    Lumstcx* s = nullptr;

    void apri(int quanti) {
        std::vector<RecFornitore> f;
        std::vector<RecFattura> d;
        for (int k = 1; k <= quanti; ++k) {
            f.push_back(fornitore_vuoto("FORNITORE " + std::to_string(k)));
            RecFattura x = fattura_vuota();
            x.numfor = k;
            x.datareg = x.datadoc = "20240301";
            x.impon[0] = 1000;
            d.push_back(x);
        }
        b.fornitori(f);
        b.fatture(d);
        b.avvia();
        s = &b.schermo<Lumstcx>("lumstcx");
    }
    // The n-th writing of the export fails with `numero`, and all later ones.
    void guasta(int n, int numero) {
        b.disco.guasto = [n, numero, conta = 0](Operazione op, std::string_view percorso) mutable {
            return op == Operazione::scrivi_tutto && percorso == kFile && ++conta >= n ? numero : 0;
        };
    }
    void esporta() {
        b.piattaforma.messaggi.clear();
        b.piattaforma.risposte = {Risposta::ok};
        s->Label1[0].premi();
    }
    std::string detto() { return b.piattaforma.messaggi.size() == 2 ? b.piattaforma.messaggi[1].testo : ""; }
};

TEST_F(Esportazione, UnaRigaAFornitore) {
    apri(3);
    esporta();
    EXPECT_EQ(b.piattaforma.messaggi.size(), 1u);
    EXPECT_EQ(b.memoria.contenuto(kFile).size(),
              3u * (16 + 40 * 3 + 16 + 40 * 2 + 10 + 40 + 2 + 40 + 2 + 40 + 5 + 16 * 3 + 8 + 2));
    EXPECT_EQ(s->dove.caption(), "Dati esportati in " + kFile);
    EXPECT_EQ(b.piattaforma.puntatore, Puntatore::normale);
}

TEST_F(Esportazione, DischettoPieno) {
    apri(3);
    guasta(2, errore::disco_pieno);
    esporta();
    EXPECT_EQ(detto(), "Si è verificato l'errore 61"_it);
    EXPECT_EQ(b.memoria.contenuto(kFile), "");
    EXPECT_EQ(s->dove.caption(), "");
}

TEST_F(Esportazione, ProtettoInScrittura) {
    apri(3);
    guasta(1, errore::permesso_negato);
    esporta();
    EXPECT_EQ(detto(), "Si è verificato l'errore 52"_it) << "the writes to a file that is not open fail last";
    EXPECT_FALSE(b.memoria.esiste(kFile));
}

TEST_F(Esportazione, NienteDischettoENessunFornitore) {
    apri(0);
    guasta(1, errore::disco_non_pronto);
    esporta();
    EXPECT_EQ(detto(), "Si è verificato l'errore 71"_it);
}

TEST_F(Esportazione, UnErroreDiIeriNonSiDice) {
    apri(1);
    b.prog.err.numero = errore::dispositivo;
    esporta();
    EXPECT_EQ(b.piattaforma.messaggi.size(), 1u);
}

TEST_F(Esportazione, UnaCartellaGiaFattaNonEUnErrore) {
    apri(1);
    b.disco.guasto = [](Operazione op, std::string_view) {
        return op == Operazione::crea_cartella ? errore::accesso : 0;
    };
    esporta();
    EXPECT_EQ(b.piattaforma.messaggi.size(), 1u);
    EXPECT_TRUE(b.memoria.esiste(kFile));
}

TEST(TabellaFornitori, LimitiDaZeroAMille) {
    TabellaFornitori t;
    for (const int n : {-32768, -1, 0, 1, 999, 1000, 1001, 32767}) {
        t.aggiungi(n, 2, 5);
        t.aggiungi(n, 2, 7);
        EXPECT_EQ(t(n, 2), n >= 0 && n <= 1000 ? 12 : 0) << n;
        t.metti(n, 0, 3);
        EXPECT_EQ(t(n, 0), n >= 0 && n <= 1000 ? 3 : 0) << n;
    }
    t.azzera();
    EXPECT_EQ(t(1000, 2), 0);
}

// Where the last supplier ends exactly at the foot of a page the row counter is at 0, and "Totale" is not
// printed. Two suppliers are ten rows; the page is made to hold `capienza` of them.
TEST(Riepilogo, TotaleTaciutoAPiedePagina) {
    for (const auto& [capienza, totali_attesi, pagine_attese] :
         {std::tuple{11, 1, 1}, {10, 0, 1}, {9, 1, 2}, {5, 0, 2}, {4, 1, 3}, {2, 0, 5}, {1, 0, 10}}) {
        Banco b;
        b.fornitori({fornitore_vuoto("UNO"), fornitore_vuoto("DUE")});
        std::vector<RecFattura> documenti(2, fattura_vuota());
        for (int k = 0; k < 2; ++k) {
            auto& x = documenti[static_cast<std::size_t>(k)];
            x.numfor = k + 1;
            x.datareg = x.datadoc = "20240301";
            x.impon[0] = 1000;
        }
        b.fatture(documenti);
        b.avvia();
        auto& lavoro = b.prog.imp.tabstampa[0];
        const double alta = b.piattaforma.stampante.height(), su = std::floor(alta * lavoro.paginasu / 1000);
        // The pen after row n stands one line (9 points) below its top; the page ends past y2 - row - 100.
        const double dopo = su + 1300 + lavoro.rigaalt * (capienza - 1) + 1.15 * 9 * 20;
        lavoro.paginagiu = static_cast<int>((dopo + lavoro.rigaalt + 100 - 1) * 1000 / alta);
        auto& s = b.schermo<Lumstcx>("lumstcx");
        b.piattaforma.risposte = {Risposta::si};
        s.comandi.stampante.premi();
        ASSERT_EQ(b.piattaforma.lavori.size(), 1u);
        int totali = 0;
        for (const auto& p : b.piattaforma.lavori[0].pagine)
            for (const auto& o : p.operazioni) totali += o.testo == "Totale";
        EXPECT_EQ(totali, totali_attesi) << capienza;
        EXPECT_EQ(b.piattaforma.lavori[0].pagine.size(), static_cast<std::size_t>(pagine_attese)) << capienza;
    }
}

}  // namespace
}  // namespace ambra
