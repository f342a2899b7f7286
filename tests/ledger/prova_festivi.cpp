#include <gtest/gtest.h>

#include "ledger/festivi.h"

using namespace ambra;

namespace {

std::string quando(const Data& d) {
    return testo_data(d);
}

TEST(Festivi, PasquaPerTabella) {
    const char* casi[] = {"27/03/2016", "16/04/2017", "01/04/2018", "21/04/2019", "12/04/2020", "04/04/2021",
                          "17/04/2022", "09/04/2023", "31/03/2024", "20/04/2025", "05/04/2026", "28/03/2027",
                          "16/04/2028", "01/04/2029", "21/04/2030", "25/04/2038", "23/03/1913", "19/04/1981",
                          "18/04/1954", "22/03/1818", "25/04/1943", "12/04/1998"};
    for (const char* c : casi) {
        const Data d = *data_valida(c);
        EXPECT_EQ(quando(pasqua(d.anno)), c);
    }
}

TEST(Festivi, OgniPasquaEUnaDomenicaFraIDueLimiti) {
    for (int anno = 1583; anno <= 4099; ++anno) {
        const Data d = pasqua(anno);
        ASSERT_EQ(giorno_settimana(d), 0) << anno;
        const int giorno = d.mese * 100 + d.giorno;
        ASSERT_TRUE(giorno >= 322 && giorno <= 425) << anno;
    }
}

TEST(Festivi, PerTabella) {
    const struct {
        const char* giorno;
        bool festivo;
    } casi[] = {{"01/01/2026", true},  {"06/01/2026", true},  {"25/04/2026", true},  {"01/05/2026", true},
                {"02/06/2026", true},  {"15/08/2026", true},  {"01/11/2026", true},  {"08/12/2026", true},
                {"25/12/2026", true},  {"26/12/2026", true},  {"06/04/2026", true},  {"07/04/2026", false},
                {"17/04/2028", true},  {"18/04/2028", false}, {"04/10/2025", false}, {"04/10/2026", true},
                {"04/10/2030", true},  {"05/10/2026", false}, {"02/01/2026", false}, {"24/12/2026", false},
                {"16/08/2026", false}, {"29/03/2027", true},  {"02/04/2018", true}};
    for (const auto& c : casi) EXPECT_EQ(festivo(*data_valida(c.giorno)), c.festivo) << c.giorno;
}

TEST(Festivi, GiornoLavorativo) {
    const struct {
        const char *giorno, *lavorativo;
    } casi[] = {{"15/04/2026", "15/04/2026"}, {"16/05/2026", "18/05/2026"},
                {"17/05/2026", "18/05/2026"}, {"16/04/2028", "18/04/2028"},  // Easter, then its Monday
                {"31/12/2027", "31/12/2027"},                                // a Friday
                {"01/01/2028", "03/01/2028"},                                // a Saturday
                {"25/12/2026", "28/12/2026"},                                // Friday, Saturday and Sunday
                {"24/12/2027", "24/12/2027"}, {"25/12/2027", "27/12/2027"},
                {"04/10/2027", "05/10/2027"},  // a Monday, a holiday again
                {"04/10/2021", "04/10/2021"},  // a Monday, not yet one
                {"30/06/2018", "02/07/2018"}, {"28/02/2026", "02/03/2026"}};
    for (const auto& c : casi)
        EXPECT_EQ(quando(giorno_lavorativo(*data_valida(c.giorno))), c.lavorativo) << c.giorno;
}

}  // namespace
