// Whether the supplier that a screen shows is still the one that stands in his record.
#include <gtest/gtest.h>

#include "archivio/fornitore_visto.h"
#include "tests/supporto/banco.h"

using namespace ambra;

namespace {

RecFornitore beta(int cancellata = 0) {
    RecFornitore f = fornitore_vuoto("Beta");
    f.codfis = "BBBBBB00B00B000B";
    f.piva = "00000000002";
    f.cancellata = cancellata;
    return f;
}

RecFornitore delta() {
    RecFornitore f = fornitore_vuoto("Delta");
    f.codfis = "DDDDDD00D00D000D";
    f.piva = "00000000004";
    return f;
}

struct Caso {
    const char* nome;
    RecFornitore visto, ora;
    bool ancora;
};

TEST(FornitoreVisto, DiFronteACioCheStaNelRecord) {
    RecFornitore trasferita = beta(), rinominata = beta();
    trasferita.codfis = "ZZZZZZ00Z00Z000Z";
    trasferita.inte2 = "via Nuova 2";
    rinominata.inte1 = "Beta e figli";
    const Caso casi[] = {
        {"as it was", beta(), beta(), true},           {"another code", beta(), trasferita, true},
        {"another name", beta(), rinominata, true},    {"another firm", beta(), delta(), false},
        {"deleted elsewhere", beta(), beta(1), false}, {"deleted, and still so", beta(1), beta(1), true},
        {"live again", beta(1), beta(), false},
    };
    for (const auto& c : casi) {
        Banco b;
        b.fornitori({fornitore_vuoto("A"), c.visto});
        b.prog.apriarchivi();
        FornitoreVisto v(b.prog.arc);
        v.vedi(2, c.visto);
        b.file("for").replace(sizeof(RecFornitore), sizeof(RecFornitore), byte_di(c.ora));
        RecFornitore ora{};
        EXPECT_EQ(v.ancora_lui(ora), c.ancora) << c.nome;
        EXPECT_EQ(byte_di(ora), byte_di(c.ora)) << c.nome;
    }
}

TEST(FornitoreVisto, SenzaRecordOSenzaLetturaRestaLui) {
    Banco b;
    b.fornitori({beta()});
    b.prog.apriarchivi();
    FornitoreVisto v(b.prog.arc);
    RecFornitore ora = delta();
    EXPECT_TRUE(v.ancora_lui(ora)) << "none seen";
    v.vedi(1, beta());
    b.disco.guasto = [](Operazione op, std::string_view) {
        return op == Operazione::leggi ? errore::dispositivo : 0;
    };
    EXPECT_TRUE(v.ancora_lui(ora));
    EXPECT_EQ(byte_di(ora), byte_di(delta())) << "a failed read leaves it alone";
}

// What this program writes is one's own doing, but for another firm in the place of one deleted.
TEST(FornitoreVisto, SegueCioCheSiScriveQui) {
    Banco b;
    b.fornitori({beta()});
    b.prog.apriarchivi();
    FornitoreVisto v(b.prog.arc);
    v.vedi(1, beta());
    b.file("for") = byte_di(beta(1));
    annuncia(b.prog.arc, 1, beta(), beta(1));
    RecFornitore ora{};
    EXPECT_TRUE(v.ancora_lui(ora)) << "deleted here";
    b.file("for") = byte_di(delta());
    annuncia(b.prog.arc, 1, beta(1), delta());
    EXPECT_FALSE(v.ancora_lui(ora)) << "and his place taken here";
}

}  // namespace
