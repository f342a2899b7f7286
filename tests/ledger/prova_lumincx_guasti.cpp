// Postings on a disc that fails: what they leave in the ledger.
#include "tests/ledger/foto_contabile.h"

using namespace ambra;

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
