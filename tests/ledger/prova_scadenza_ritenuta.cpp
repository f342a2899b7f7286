#include <gtest/gtest.h>

#include "core/date.h"
#include "core/testo.h"
#include "ledger/scadenza_ritenuta.h"

using namespace ambra;

namespace {

TEST(ScadenzaRitenuta, PerTabella) {
    const struct {
        const char *pagata, *scade;
    } casi[] = {{"14/03/2024", "16/04/2024"},  // a Tuesday
                {"01/05/2024", "17/06/2024"},  // 16/06/2024 is a Sunday
                {"31/05/2024", "17/06/2024"}, {"10/08/2025", "16/09/2025"},
                {"24/12/2023", "16/01/2024"}, {"24/12/2026", "18/01/2027"},  // 16/01/2027 is a Saturday
                {"31/12/2021", "17/01/2022"},                                // 16/01/2022 is a Sunday
                {"15/10/2024", "18/11/2024"},                                // 16/11/2024 is a Saturday
                {"14-03-2024", "16/04/2024"}, {"14/99/2024", "16/01/2025"}};
    for (const auto& c : casi) EXPECT_EQ(scadenza_ritenuta(c.pagata), c.scade) << c.pagata;
}

// Every day of forty years, against a count of days that knows no formula for the weekday.
TEST(ScadenzaRitenuta, OgniGiornoDiQuarantAnni) {
    // 01/01/1990 was a Monday. The weekday of the 16th of each month, by counting.
    int giorno = 1;
    std::vector<std::vector<int>> del_16;
    for (int anno = 1990; anno <= 2031; ++anno) {
        del_16.emplace_back(13);
        for (int mese = 1; mese <= 12; ++mese) {
            del_16.back()[static_cast<std::size_t>(mese)] = (giorno + 15) % 7;
            giorno = (giorno + giorni_del_mese(mese, anno)) % 7;
        }
    }
    for (int anno = 1990; anno <= 2030; ++anno)
        for (int mese = 1; mese <= 12; ++mese) {
            const int m = mese == 12 ? 1 : mese + 1, a = mese == 12 ? anno + 1 : anno;
            const int quale = del_16[static_cast<std::size_t>(a - 1990)][static_cast<std::size_t>(m)];
            const std::string voluta = testo_data({quale == 0 ? 17 : quale == 6 ? 18 : 16, m, a});
            for (int g = 1; g <= giorni_del_mese(mese, anno); ++g)
                ASSERT_EQ(scadenza_ritenuta(testo_data({g, mese, anno})), voluta) << g << '/' << mese;
        }
}

// A date in the middle of typing, or no date at all, is answered and never fails.
TEST(ScadenzaRitenuta, TestiCheNonSonoDate) {
    const struct {
        const char *pagata, *scade;
    } casi[] = {
        {"14/03/", "16/04/0000"}, {"abc", "16/01/0000"}, {"", "16/01/0000"}, {"14/-5/2024", "16/-4/2024"}};
    for (const auto& c : casi) EXPECT_EQ(scadenza_ritenuta(c.pagata), c.scade) << c.pagata;
    EXPECT_EQ(scadenza_ritenuta(std::string(1000, '9')).size(), 10u);
}

}  // namespace
