#include <gtest/gtest.h>

#include "core/testo.h"
#include "ledger/termini_ritenute.h"

using namespace ambra;

namespace {

using Pagamenti = std::vector<std::pair<const char*, Centesimi>>;

std::vector<Trattenuta> di(Famiglia f, const Pagamenti& p) {
    std::vector<Trattenuta> t;
    for (const auto& [giorno, c] : p) t.push_back({*data_valida(giorno), f, c});
    return t;
}

std::string parole(const std::vector<Termine>& termini) {
    std::string s;
    for (const Termine& t : termini)
        s += unisci(s.empty() ? "" : ", ", std::to_string(t.importo), " il ", testo_data(t.scadenza));
    return s;
}

struct Caso {
    Pagamenti pagamenti;
    const char* termini;
};
void prova(Famiglia f, const std::vector<Caso>& casi) {
    for (const Caso& c : casi)
        EXPECT_EQ(parole(termini(di(f, c.pagamenti))), c.termini) << c.pagamenti[0].first;
}

TEST(TerminiRitenute, QuattroPerCentoConLaSoglia) {
    prova(Famiglia::lavori,
          {
              {{{"10/02/2026", 40000}, {"10/03/2026", 40000}}, "80000 il 16/04/2026"},
              {{{"10/02/2026", 30000}, {"10/03/2026", 19999}}, "49999 il 16/06/2026"},
              {{{"10/02/2026", 30000}, {"10/03/2026", 20000}}, "50000 il 16/04/2026"},
              {{{"03/07/2026", 60000}}, "60000 il 20/08/2026"},
              {{{"29/05/2026", 1000}}, "1000 il 16/06/2026"},
              {{{"31/05/2026", 1000}}, "1000 il 16/06/2026"},
              {{{"01/06/2026", 1000}}, "1000 il 16/12/2026"},
              {{{"30/11/2026", 1000}}, "1000 il 16/12/2026"},
              {{{"01/12/2026", 1000}}, "1000 il 18/01/2027"},
              {{{"31/12/2026", 30000}, {"02/01/2027", 30000}}, "30000 il 18/01/2027, 30000 il 16/06/2027"},
              {{{"31/07/2028", 50000}}, "50000 il 21/08/2028"},
              {{{"15/03/2028", 50000}}, "50000 il 18/04/2028"},
              // what was due leaves nothing to be cumulated with
              {{{"10/02/2026", 50000}, {"10/03/2026", 100}}, "50000 il 16/03/2026, 100 il 16/06/2026"},
              {{{"10/05/2026", 49999}, {"10/06/2026", 1}}, "49999 il 16/06/2026, 1 il 16/12/2026"},
              {{{"10/11/2026", 49999}, {"10/12/2026", 49999}}, "49999 il 16/12/2026, 49999 il 18/01/2027"},
              // one month counts as a whole, in whatever order it is told
              {{{"20/02/2026", 25000}, {"01/01/2026", 1}, {"03/02/2026", 25000}}, "50001 il 16/03/2026"},
              // a credit note lowers what was cumulated
              {{{"10/02/2026", 40000}, {"10/03/2026", -10000}, {"10/04/2026", 19999}}, "49999 il 16/06/2026"},
              {{{"10/02/2026", -10000}}, "-10000 il 16/06/2026"},
          });
}

TEST(TerminiRitenute, QuattroPerCentoPrimaDelleDateDiOggi) {
    prova(Famiglia::lavori,
          {
              // until 2016 each month by itself
              {{{"10/11/2016", 1}, {"31/12/2016", 2}, {"01/01/2017", 3}},
               "1 il 16/12/2016, 2 il 16/01/2017, 3 il 30/06/2017"},
              {{{"10/03/2016", -5}, {"10/04/2016", 60000}}, "-5 il 18/04/2016, 60000 il 16/05/2016"},
              {{{"10/07/2016", 1}}, "1 il 22/08/2016"},  // 20/08/2016 is a Saturday
                                                         // from 2017 to 2023: 30 June, 20 December
              {{{"31/05/2017", 49999}}, "49999 il 30/06/2017"},
              {{{"31/05/2017", 50000}}, "50000 il 16/06/2017"},
              {{{"01/06/2017", 1}}, "1 il 20/12/2017"},
              {{{"30/11/2017", 50000}}, "50000 il 18/12/2017"},  // 16/12/2017 is a Saturday
              {{{"31/12/2017", 1}}, "1 il 16/01/2018"},
              {{{"01/02/2018", 1}}, "1 il 02/07/2018"},  // 30/06/2018 is a Saturday
              {{{"01/02/2019", 1}}, "1 il 01/07/2019"},  // a Sunday
              {{{"01/06/2020", 1}}, "1 il 21/12/2020"},  // a Sunday
              {{{"01/06/2023", 1}}, "1 il 20/12/2023"},
              {{{"01/12/2023", 1}}, "1 il 16/01/2024"},
              // from 2024: 16 June, 16 December
              {{{"01/01/2024", 1}}, "1 il 17/06/2024"},  // a Sunday
              {{{"01/06/2024", 1}}, "1 il 16/12/2024"},
          });
}

TEST(TerminiRitenute, Compensi) {
    prova(Famiglia::compensi,
          {
              {{{"10/03/2026", 10000}}, "10000 il 16/12/2026"},
              {{{"10/03/2026", 10001}}, "10001 il 16/04/2026"},
              {{{"10/03/2026", 6000}, {"10/04/2026", 5000}}, "11000 il 18/05/2026"},
              {{{"10/03/2026", 6000}, {"10/04/2026", 4000}, {"10/10/2026", 1}}, "10001 il 16/11/2026"},
              {{{"10/11/2026", 1}, {"10/12/2026", 2}}, "1 il 16/12/2026, 2 il 18/01/2027"},
              {{{"31/12/2026", 5000}, {"01/01/2027", 6000}}, "5000 il 18/01/2027, 6000 il 16/12/2027"},
              {{{"03/07/2026", 60000}}, "60000 il 20/08/2026"},
              // no threshold before 2024
              {{{"10/03/2023", 1}, {"10/04/2023", 2}}, "1 il 17/04/2023, 2 il 16/05/2023"},
              {{{"31/12/2023", 1}, {"01/01/2024", 2}}, "1 il 16/01/2024, 2 il 16/12/2024"},
              {{{"10/03/2016", 1}}, "1 il 18/04/2016"},
          });
}

// The two families do not add up, and each keeps its own dates.
TEST(TerminiRitenute, LeDueFamiglieStannoDaSole) {
    std::vector<Trattenuta> t = di(Famiglia::lavori, {{"10/02/2026", 30000}});
    t.push_back({{10, 2, 2026}, Famiglia::compensi, 30000});
    t.push_back({{10, 5, 2026}, Famiglia::compensi, 10001});
    const auto e = termini(t);
    EXPECT_EQ(parole(e), "30000 il 16/03/2026, 30000 il 16/06/2026, 10001 il 16/06/2026");
    EXPECT_EQ(e[1].famiglia, Famiglia::lavori);
    EXPECT_TRUE(termini({}).empty());
}

// What was paid over counts in the months at whose end it was still owed, and in no later one.
TEST(TerminiRitenute, CioCheFuVersatoContaFinoAdAllora) {
    const struct {
        const char *versata, *termini;
    } casi[] = {{"", "70000 il 16/04/2026"},
                {"16/04/2026", "70000 il 16/04/2026"},  // the rest stays overdue with it
                {"01/04/2026", "70000 il 16/04/2026"},
                {"31/03/2026", "70000 il 16/06/2026"},  // paid over early: the rest waits on its own
                {"16/03/2026", "70000 il 16/06/2026"}};
    for (const auto& c : casi) {
        std::vector<Trattenuta> t = di(Famiglia::lavori, {{"10/02/2026", 30000}, {"10/03/2026", 40000}});
        if (*c.versata) t[0].versata = data_valida(c.versata);
        EXPECT_EQ(parole(termini(t)), c.termini) << c.versata;
    }
}

TEST(TerminiRitenute, Soglia) {
    EXPECT_EQ(soglia(Famiglia::lavori, 2016), 0);
    EXPECT_EQ(soglia(Famiglia::lavori, 2017), 50000);
    EXPECT_EQ(soglia(Famiglia::lavori, 2030), 50000);
    EXPECT_EQ(soglia(Famiglia::compensi, 2023), 0);
    EXPECT_EQ(soglia(Famiglia::compensi, 2024), 10001);
}

TEST(TerminiRitenute, Stato) {
    using enum StatoTermine;
    const struct {
        Famiglia famiglia;
        Pagamenti pagamenti;
        const char* oggi;
        StatoTermine stato;
    } casi[] = {
        {Famiglia::lavori, {{"10/02/2026", 30000}}, "10/02/2026", in_formazione},
        {Famiglia::lavori, {{"10/02/2026", 30000}}, "30/04/2026", in_formazione},
        // what is withheld in May is due on 16 June in any case
        {Famiglia::lavori, {{"10/02/2026", 30000}}, "01/05/2026", da_versare},
        {Famiglia::lavori, {{"10/02/2026", 30000}}, "16/06/2026", da_versare},
        {Famiglia::lavori, {{"10/02/2026", 30000}}, "17/06/2026", scaduto},
        {Famiglia::lavori, {{"10/02/2023", 30000}}, "31/05/2023", in_formazione},
        {Famiglia::lavori, {{"10/02/2023", 30000}}, "01/06/2023", da_versare},
        {Famiglia::lavori, {{"10/07/2026", 30000}}, "31/10/2026", in_formazione},
        {Famiglia::lavori, {{"10/07/2026", 30000}}, "01/11/2026", da_versare},
        {Famiglia::lavori, {{"10/07/2026", 50000}}, "10/07/2026", da_versare},
        {Famiglia::lavori, {{"10/12/2026", 1}}, "10/12/2026", da_versare},
        {Famiglia::lavori, {{"10/07/2016", 1}}, "10/07/2016", da_versare},
        {Famiglia::compensi, {{"10/02/2026", 5000}}, "10/02/2026", da_versare},
        {Famiglia::compensi, {{"10/02/2026", 5000}}, "17/12/2026", scaduto},
    };
    for (const auto& c : casi)
        EXPECT_EQ(stato(termini(di(c.famiglia, c.pagamenti)).at(0), *data_valida(c.oggi)), c.stato)
            << c.pagamenti[0].first << " oggi " << c.oggi;
}

}  // namespace
