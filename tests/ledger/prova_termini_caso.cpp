// The terms of withheld tax beside rules stated once more: every month, and payments at random.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

#include "ledger/festivi.h"
#include "ledger/termini_ritenute.h"
#include "tests/supporto/seme.h"

using namespace ambra;

namespace {

// The first and the last day of every month from 2016 to 2030, a cent below the threshold and on it; on the
// due day it is still to be paid, on the next overdue.
TEST(TerminiRitenute, OgniMeseAiDueLatiDellaSoglia) {
    const auto il = [](int giorno, int mese, int anno) {
        Data d{giorno, mese, anno};
        if (mese == 8 && giorno < 20) d.giorno = 20;
        return testo_data(giorno_lavorativo(d));
    };
    for (int anno = 2016; anno <= 2030; ++anno)
        for (int mese = 1; mese <= 12; ++mese) {
            const std::string dopo = mese == 12 ? il(16, 1, anno + 1) : il(16, mese + 1, anno);
            const std::string atteso = anno < 2017   ? dopo
                                       : mese == 12  ? dopo
                                       : mese <= 5   ? (anno < 2024 ? il(30, 6, anno) : il(16, 6, anno))
                                       : anno < 2024 ? il(20, 12, anno)
                                                     : il(16, 12, anno);
            const std::string compensi = anno < 2024 || mese == 12 ? dopo : il(16, 12, anno);
            for (const int giorno : {1, giorni_del_mese(mese, anno)}) {
                const auto scade = [&](Famiglia f, Centesimi c) {
                    const Trattenuta p{{giorno, mese, anno}, f, c};
                    const Termine t = termini({&p, 1}).at(0);
                    Data domani = t.scadenza;
                    ++domani.giorno;  // be it the 31st of June
                    EXPECT_EQ(stato(t, t.scadenza), StatoTermine::da_versare);
                    EXPECT_EQ(stato(t, domani), StatoTermine::scaduto);
                    return testo_data(t.scadenza);
                };
                EXPECT_EQ(scade(Famiglia::lavori, 49999), atteso) << giorno << '/' << mese << '/' << anno;
                EXPECT_EQ(scade(Famiglia::lavori, 50000), dopo) << giorno << '/' << mese << '/' << anno;
                EXPECT_EQ(scade(Famiglia::compensi, 10000), compensi) << giorno << '/' << mese << '/' << anno;
                EXPECT_EQ(scade(Famiglia::compensi, 10001), dopo) << giorno << '/' << mese << '/' << anno;
            }
        }
}

// The last date that the law leaves to what is withheld in a month.
Data ultima_data(Famiglia f, const Data& d) {
    const auto il = [](int giorno, int mese, int anno) { return giorno_lavorativo({giorno, mese, anno}); };
    const bool mensile = d.anno < (f == Famiglia::lavori ? 2017 : 2024);
    if (d.mese == 12) return il(16, 1, d.anno + 1);
    if (mensile) return il(d.mese == 7 ? 20 : 16, d.mese + 1, d.anno);
    if (f == Famiglia::lavori && d.mese <= 5) return il(d.anno < 2024 ? 30 : 16, 6, d.anno);
    return il(f == Famiglia::lavori && d.anno < 2024 ? 20 : 16, 12, d.anno);
}

TEST(TerminiRitenute, PagamentiACaso) {
    std::mt19937 caso(seme_di_prova());
    const auto fra = [&](int a, int b) { return std::uniform_int_distribution(a, b)(caso); };
    const auto giorni = [](const Data& d) { return (d.anno * 100 + d.mese) * 100 + d.giorno; };
    for (int giro = 0; giro < 300; ++giro) {
        std::vector<Trattenuta> t;
        for (int i = fra(0, 120); i > 0; --i) {
            const int anno = fra(2015, 2031), mese = fra(1, 12);
            t.push_back({{fra(1, giorni_del_mese(mese, anno)), mese, anno},
                         fra(0, 1) ? Famiglia::lavori : Famiglia::compensi,
                         fra(0, 9) ? fra(1, 40000) : -fra(1, 30000),
                         fra(0, 2) ? std::nullopt : std::optional(Data{16, fra(1, 12), anno + fra(0, 1)})});
        }
        const auto e = termini(t);
        Centesimi dei_termini = 0, dei_pagamenti = 0;
        std::set<std::size_t> visti;
        for (const Termine& x : e) {
            Centesimi suo = 0;
            for (const std::size_t i : x.trattenute) {
                ASSERT_TRUE(visti.insert(i).second) << "in two terms";
                ASSERT_EQ(t[i].famiglia, x.famiglia);
                suo += t[i].ritenuta;
                const int mese = numero_mese(t[i].pagata);
                ASSERT_TRUE(x.dal_mese <= mese && mese <= x.al_mese);
                ASSERT_LE(giorni(x.scadenza), giorni(ultima_data(x.famiglia, t[i].pagata)));
                ASSERT_GT(giorni(x.scadenza), giorni(t[i].pagata));
            }
            ASSERT_EQ(suo, x.importo);
            ASSERT_EQ(testo_data(giorno_lavorativo(x.scadenza)), testo_data(x.scadenza));
            dei_termini += suo;
        }
        for (const Trattenuta& x : t) dei_pagamenti += x.ritenuta;
        ASSERT_EQ(visti.size(), t.size());
        ASSERT_EQ(dei_termini, dei_pagamenti);
        ASSERT_TRUE(std::ranges::is_sorted(e, {}, [&](const Termine& x) { return giorni(x.scadenza); }));
    }
}

}  // namespace
