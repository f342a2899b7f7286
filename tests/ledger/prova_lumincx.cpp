// Postings: what they leave in the ledger, also when the disc fails in the middle.
#include <gtest/gtest.h>

#include <map>

#include "tests/ledger/tavolo_ledger.h"

using namespace ambra;

namespace {

const char* const kFile[] = {"mov", "tot", "pia", "cnd", "cn2", "cns"};

std::map<std::string, std::string> fotografia(TavoloLedger& t) {
    std::map<std::string, std::string> r;
    for (const char* f : kFile) r[f] = t.file(f);
    return r;
}

// What a posting may never touch, whatever fails.
void aspetta_byte_altrui(TavoloLedger& t, std::map<std::string, std::string> prima) {
    EXPECT_EQ(t.file("cn2"), prima["cn2"]);
    EXPECT_EQ(t.file("cns"), prima["cns"]);
    const auto conto = [](RecConto& c) { c.csaldo = 0; };
    EXPECT_EQ(senza<RecConto>(t.file("pia"), conto), senza<RecConto>(prima["pia"], conto));
    const auto condomino = [](RecCondomino& c) { c.dquota = c.daddebiti = 0; };
    EXPECT_EQ(senza<RecCondomino>(t.file("cnd"), condomino), senza<RecCondomino>(prima["cnd"], condomino));
    const auto totali = [](RecTotaliLedger& c) { c.tmovimenti = 0; };
    EXPECT_EQ(senza<RecTotaliLedger>(t.file("tot"), totali), senza<RecTotaliLedger>(prima["tot"], totali));
    EXPECT_EQ(t.file("mov").substr(0, prima["mov"].size()), prima["mov"]);
}

}  // namespace

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

TEST(Lumincx, OgniScritturaFallitaSiSalta) {
    TavoloLedger bene;
    const auto prima = fotografia(bene);
    int scritture = 0;
    bene.disco.guasto = [&](Operazione op, std::string_view) {
        if (op == Operazione::scrivi) ++scritture;
        return 0;
    };
    bene.posta(TavoloLedger::uscita(12.34, true));
    const auto dopo = fotografia(bene);
    // the movement, the counters, two balances, the charge, and every share
    ASSERT_EQ(scritture, 5 + TavoloLedger::kCondomini);

    for (int rotta = 1; rotta <= scritture; ++rotta) {
        TavoloLedger t;
        int n = 0;
        t.disco.guasto = [&](Operazione op, std::string_view) {
            return op == Operazione::scrivi && ++n == rotta ? errore::disco_pieno : 0;
        };
        EXPECT_EQ(t.posta(TavoloLedger::uscita(12.34, true)), 1) << rotta;
        EXPECT_EQ(n, scritture) << "the steps after write " << rotta << " still run";
        aspetta_byte_altrui(t, prima);
        // Each record is the old one or the new one; shares may rest on a balance that was not written.
        for (const char* f : {"mov", "tot", "pia"}) {
            const std::string& ora = t.file(f);
            const std::size_t lungo = f == std::string("mov")   ? sizeof(RecMovimento)
                                      : f == std::string("tot") ? sizeof(RecTotaliLedger)
                                                                : sizeof(RecConto);
            for (std::size_t k = 0; k < ora.size(); k += lungo) {
                const std::string r = ora.substr(k, lungo);
                EXPECT_TRUE(r == prima.at(f).substr(k, lungo) || r == dopo.at(f).substr(k, lungo))
                    << f << " at " << k << ", write " << rotta;
            }
        }
        EXPECT_EQ(t.file("mov") == dopo.at("mov"), rotta != 1);
        EXPECT_EQ(t.file("tot") == dopo.at("tot"), rotta != 2);
        EXPECT_EQ(t.saldo(3961) == bene.saldo(3961), rotta != 3);
        EXPECT_EQ(t.saldo(4159) == bene.saldo(4159), rotta != 4);
    }
}

TEST(Lumincx, ContabilitaInSolaLettura) {
    TavoloLedger t;
    const auto prima = fotografia(t);
    t.memoria.sola_lettura = true;
    EXPECT_EQ(t.posta(TavoloLedger::uscita(5)), 1);
    EXPECT_EQ(fotografia(t), prima);
    EXPECT_EQ(t.prog.schermi.caricato("lumincx"), nullptr);
    EXPECT_EQ(t.piattaforma.puntatore, Puntatore::normale);
    EXPECT_TRUE(t.piattaforma.messaggi.empty());
}

TEST(Lumincx, UnaLetturaFallitaLasciaIlRecordInMano) {
    // The account cannot be read: what is written is the record in hand, the last of the list.
    TavoloLedger t;
    const auto in_mano = record_di<RecConto>(t.file("pia"), 3960);
    t.posta(TavoloLedger::uscita(5), [&](Lumincx&) {
        bool primo = true;
        t.disco.guasto = [primo](Operazione op, std::string_view f) mutable {
            if (op != Operazione::leggi || !f.ends_with("pia") || !primo) return 0;
            primo = false;
            return errore::dispositivo;
        };
    });
    const auto scritto = record_di<RecConto>(t.file("pia"), 1);
    EXPECT_EQ(scritto.cnome.grezzo(), in_mano.cnome.grezzo());
    EXPECT_EQ(scritto.csaldo, t.prog.arrotonda(in_mano.csaldo + 5));
    EXPECT_EQ(t.prog.tornada, 1);
}

TEST(Lumincx, OgniLetturaFallitaSiSalta) {
    int letture = 0;
    {
        TavoloLedger t;
        t.posta(TavoloLedger::uscita(5, true), [&](Lumincx&) {
            t.disco.guasto = [&](Operazione op, std::string_view) {
                letture += op == Operazione::leggi;
                return 0;
            };
        });
    }
    ASSERT_GT(letture, 5);
    for (int rotta = 1; rotta <= letture; ++rotta) {
        TavoloLedger t;
        int n = 0;
        t.posta(TavoloLedger::uscita(5, true), [&](Lumincx&) {
            t.disco.guasto = [&](Operazione op, std::string_view) {
                return op == Operazione::leggi && ++n == rotta ? errore::dispositivo : 0;
            };
        });
        t.disco.guasto = nullptr;
        EXPECT_EQ(t.prog.tornada, 1);
        EXPECT_EQ(t.file("pia").size(), kConti * sizeof(RecConto));
        EXPECT_EQ(t.movimenti(), TavoloLedger::kMovimenti + 1) << rotta;
        EXPECT_EQ(t.file("mov").size() / sizeof(RecMovimento), TavoloLedger::kMovimenti + 1u);
    }
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
