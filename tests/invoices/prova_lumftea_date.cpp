// The dates of the invoice screen as they are typed or picked, and the way of Enter through its fields.
#include "tests/invoices/reazioni.h"

using namespace ambra;

namespace {

TEST_F(Reazioni, DateRiordinate) {
    Lumftea& s = nuova();
    const struct {
        const char* digitata;
        bool esce;
        const char* dopo;
    } casi[] = {{"01-02-2024", true, "01/02/2024"},
                {"01.02.2024", true, "01/02/2024"},
                {"01/02/2024", true, "01/02/2024"},
                {"abcdefghij", true, "ab/de/ghij"},
                {"", true, ""},
                {"1/2/2024", false, "1/2/2024"},
                {"1", false, "1"},
                {"010220240", false, "010220240"},
                {"ieri", true, "ieri"},
                {"0", true, "0"},
                {"-5", true, "-5"},
                {"01/02/2024 ", false, "01/02/2024 "}};
    for (std::size_t k = 0; k < s.dsca.size(); ++k)
        for (const auto& c : casi) {
            digita(s.dsca[k], c.digitata);
            EXPECT_EQ(s.dsca[k].lascia(), c.esce) << c.digitata;
            EXPECT_EQ(s.dsca[k].testo(), c.dopo);
        }
}

TEST_F(Reazioni, CalendariAccantoAlleDate) {
    Lumftea& s = nuova(2);
    for (const auto& d : s.dsc) EXPECT_EQ(d.testo(), "15/03/2024");
    EXPECT_EQ(s.dsca[0].testo(), "15/04/2024") << "a picker set by the program writes nothing";
    for (std::size_t k = 0; k < s.dsc.size(); ++k) {
        digita(s.dsc[k], "0" + std::to_string(k + 1) + "/09/2024");
        EXPECT_EQ(s.dsca[k].testo(), "0" + std::to_string(k + 1) + "/09/2024");
    }
    digita(s.dsca[1], "01/12/2024");
    EXPECT_EQ(s.dsc[1].testo(), "02/09/2024");
}

TEST_F(Reazioni, InvioScorreICampi) {
    Lumftea& s = nuova();
    EXPECT_EQ(s.fuoco(), &s.Text2[0]);
    std::vector<Controllo*> strada = {&s.Text2[0], &s.text1[0], &s.text1[1]};
    for (std::size_t i = 0; i < 8; ++i)
        strada.insert(strada.end(), {&s.impon[i], &s.ivai[i], &s.rac[i], &s.esent[i]});
    for (std::size_t k = 0; k < 4; ++k) strada.insert(strada.end(), {&s.dsca[k], &s.sca[k]});
    strada.push_back(&s.sca[3]);  // and there it stays
    for (std::size_t i = 0; i + 1 < strada.size(); ++i) {
        s.fuoco(*strada[i]);
        fai([&] { strada[i]->premi_invio(); });
        EXPECT_EQ(s.fuoco(), strada[i + 1]) << strada[i]->nome();
    }
}

}  // namespace
