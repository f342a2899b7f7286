// Where amounts and texts begin to be impossible ones.
#include <cmath>
#include <cstddef>

#include "tests/maintenance/archivio_check.h"

using namespace ambra;

namespace {

// What no amount can be, and what is next to it, at both ends of the runs of amounts of a record.
TEST_F(Check, ConfiniDegliImporti) {
    const struct {
        double valore;
        const char* atteso;  // "" where it is a possible one
    } casi[] = {{1e12, "un importo possibile"},
                {-1e12, "un importo possibile"},
                {INFINITY, "un importo possibile"},
                {-NAN, "un importo possibile"},
                {999999999999.0, ""},
                {-999999999999.0, ""},
                {9.9e-10, "0"},
                {-5e-324, "0"},
                {1e-9, ""},
                {0.0, ""},
                {-0.0, ""}};
    for (const char* campo : {"impon(1)", "esent(8)", "ver(4)", "rac(1)", "rac(8)"})
        for (const auto& c : casi) {
            SetUp();
            cambia<RecFattura>("lum001.ftr", 2, [&](RecFattura& f) {
                const std::string_view s = campo;
                auto& quale = s == "impon(1)"   ? f.impon[0]
                              : s == "esent(8)" ? f.esent[7]
                              : s == "ver(4)"   ? f.ver[3]
                              : s == "rac(1)"   ? f.rac[0]
                                                : f.rac[7];
                quale = c.valore;
            });
            std::string detto;
            for (const Rilievo& r : verifica(disco).rilievi)
                if (r.campo == campo && (r.atteso == "0" || r.atteso == "un importo possibile"))
                    detto = r.atteso;
            EXPECT_EQ(detto, c.atteso) << campo << " " << c.valore;
        }
}

TEST_F(Check, ConfiniDeiTesti) {
    for (const std::size_t posto : {offsetof(RecFattura, numdoc), offsetof(RecFattura, numdoc) + 9,
                                    offsetof(RecFattura, pdf), offsetof(RecFattura, pdf) + 37})
        for (const auto& [c, male] : {std::pair('\x01', true),
                                      {'\x1F', true},
                                      {'\xFF', true},
                                      {'\0', false},
                                      {' ', false},
                                      {'\x7F', false},
                                      {'\x80', false},
                                      {'\xFE', false}}) {
            SetUp();
            file("lum001.ftr")[sizeof(RecFattura) + posto] = c;
            const Giro g = verifica(disco);
            EXPECT_EQ(g.dice("lum001.ftr", posto < 12 ? "numdoc" : "pdf"), male)
                << posto << " " << int(c) << "\n"
                << g.elenco();
        }
}

}  // namespace
