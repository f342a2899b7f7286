// Postings: what they leave in the ledger, and the life of their screen.
#include "tests/ledger/foto_contabile.h"

using namespace ambra;

TEST(Lumincx, LaSommaDeiSaldiResta) {
    TavoloLedger t(7);
    const long long prima = t.cent();
    const auto foto = fotografia(t);
    for (int i = 1; i <= 60; ++i) {
        const double importo = static_cast<double>(static_cast<long>(t.caso() % 200000) - 100000) / 100;
        if (importo == 0) continue;
        const bool singolo = t.caso() % 3 == 0;
        const int mossi = t.movimenti();
        const int esito = t.posta(TavoloLedger::uscita(importo, singolo), [&](Lumincx& s) {
            std::vector<int> usabili;
            for (int r = 1; r < s.elenco.righe(); ++r)
                if (!s.elenco.vista(r, 3).empty()) usabili.push_back(r);
            s.elenco.scegli(usabili[t.caso() % usabili.size()], 1);
            s.Combo1.scegli(static_cast<int>(t.caso() % 99));
            if (singolo) s.condom.scegli(static_cast<int>(t.caso() % s.condom.voci().size()));
        });
        ASSERT_EQ(esito, 1);
        EXPECT_EQ(t.movimenti(), mossi + 1);
        EXPECT_EQ(t.file("mov").size(), sizeof(RecMovimento) * static_cast<std::size_t>(mossi + 1));
        ASSERT_EQ(t.cent(), prima) << "posting " << i << " of " << importo;
    }
    aspetta_byte_altrui(t, foto);
}

TEST(Lumincx, LUnicoCondominoAddebitato) {
    TavoloLedger t;
    t.posta(TavoloLedger::uscita(3.5, true), [](Lumincx& s) { s.condom.scegli(2); });
    const auto m = record_di<RecMovimento>(t.file("mov"), TavoloLedger::kMovimenti + 1);
    TavoloLedger intatto;
    for (std::size_t n = 1; n <= TavoloLedger::kCondomini; ++n) {
        const double prima = record_di<RecCondomino>(intatto.file("cnd"), n).daddebiti;
        const double dopo = record_di<RecCondomino>(t.file("cnd"), n).daddebiti;
        EXPECT_NEAR(dopo - prima, int(m.mcondomino) == static_cast<int>(n) ? 3.5 : 0, 1e-9);
    }
    EXPECT_EQ(m.mcondomino, 9);  // 12 is left out: 11, 10, 9
}

TEST(Lumincx, IMovimentiSiFermanoA32767) {
    TavoloLedger t;
    auto tot = record_di<RecTotaliLedger>(t.file("tot"), 1);
    tot.tmovimenti = 32767;
    metti_record(t.file("tot"), 1, tot);
    const std::string totali = t.file("tot");
    t.posta(TavoloLedger::uscita(5));
    EXPECT_EQ(t.file("tot"), totali);
    EXPECT_EQ(t.file("mov").size(), 32768 * sizeof(RecMovimento));
    EXPECT_EQ(t.prog.err.numero, errore::overflow);
}

TEST(Lumincx, TornareDavantiRifaLElencoERiseleziona) {
    TavoloLedger t;
    t.posta(TavoloLedger::uscita(5), [&](Lumincx& s) {
        EXPECT_EQ(s.conto.caption(), "Conto 1");
        s.elenco.scegli(2, 0);
        EXPECT_NE(s.conto.caption(), "Conto 1");
        auto c = record_di<RecConto>(t.file("pia"), 1);
        c.cnome = "Cambiato";
        metti_record(t.file("pia"), 1, c);
        t.prog.schermi.apri("lumincx");
        EXPECT_EQ(s.conto.caption(), "Cambiato");
        // no row matches now: the account in use persists
        t.prog.contodefault = 4200;
        t.prog.schermi.apri("lumincx");
        EXPECT_EQ(s.conto.caption(), "Cambiato");
    });
    EXPECT_EQ(record_di<RecMovimento>(t.file("mov"), TavoloLedger::kMovimenti + 1).mconto, 1);
}

TEST(Lumincx, OgniVoltaUnoSchermoNuovo) {
    TavoloLedger t;
    t.posta(
        TavoloLedger::uscita(5), [](Lumincx& s) { s.text1[3].testo("resto"); }, 0);
    EXPECT_EQ(t.prog.tornada, -1);
    EXPECT_EQ(t.prog.schermi.caricato("lumincx"), nullptr);
    t.posta(
        TavoloLedger::uscita(6, false, 4200),
        [](Lumincx& s) {
            EXPECT_EQ(s.text1[3].testo(), "");
            EXPECT_EQ(s.text1[4].testo(), "6");
            EXPECT_EQ(s.conto.caption(), "Nessun conto selezionato");
        },
        0);
    EXPECT_EQ(t.movimenti(), TavoloLedger::kMovimenti);
}

TEST(Lumincx, IlSecondoClicNonMemorizzaDueVolte) {
    TavoloLedger t;
    t.posta(TavoloLedger::uscita(5), [&](Lumincx& s) {
        // the interface lives on while the shares are worked out
        t.disco.guasto = [&](Operazione op, std::string_view f) {
            if (op == Operazione::scrivi && f.ends_with("cnd")) {
                s.b_fine[1].premi();
                s.b_fine[0].premi();
            }
            return 0;
        };
    });
    EXPECT_EQ(t.prog.tornada, 1);
    EXPECT_EQ(t.movimenti(), TavoloLedger::kMovimenti + 1);
}

TEST(Lumincx, ImportiAssurdi) {
    for (const char* testo :
         {"1e300", "99999999999999999999", "-0.005", "1.5.5", "NaN", "inf", "0x10", "1,5"}) {
        TavoloLedger t;
        const double letto = leggi_numero(testo);
        const double prima = t.saldo(1);
        t.posta(TavoloLedger::uscita(1), [&](Lumincx& s) {
            s.text1[4].digita(testo);
            if (letto == 0) {
                s.b_fine[1].premi();
                EXPECT_EQ(t.piattaforma.messaggi.size(), 1u) << testo;
                s.text1[4].digita("1");
            }
        });
        const double importo = letto == 0 ? 1 : letto;
        EXPECT_EQ(record_di<RecMovimento>(t.file("mov"), TavoloLedger::kMovimenti + 1).mimporto, importo);
        EXPECT_EQ(t.saldo(1), t.prog.arrotonda(prima + importo)) << testo;
    }
}
