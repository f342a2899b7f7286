// The merge of two changes of one record, field by field.
#include <gtest/gtest.h>

#include "archivio/fondi.h"
#include "tests/archivio/due_programmi.h"

using namespace ambra;

namespace {

// Every pair of what here and there do to one field, and what stands in the end.
TEST(Fondi, OgniCampoPerSe) {
    const FormatoRecord& formato = *formato_di_file("ftr");
    const auto byte = [](const RecFattura& f) { return std::as_bytes(std::span(&f, 1)); };
    RecFattura visto = fattura(1, "1"), base = visto, mio = visto, disco = visto, esito{};
    base.pdf = "base";  // what an untouched screen would write
    mio.pdf = "base";
    mio.dver[1] = "01012024";
    mio.dver[2] = "02012024";
    disco.dver[2] = "03012024";
    disco.ver[3] = 7;
    disco.riservati5.b[3] = 9;
    mio.riservati1.b[0] = static_cast<unsigned char>(visto.riservati1.b[0] + 1);
    ASSERT_TRUE(fondi(formato, {}, byte(visto), byte(base), byte(mio), byte(disco),
                      std::as_writable_bytes(std::span(&esito, 1))));
    EXPECT_EQ(esito.pdf.rifilato(), "base") << "nobody moved it: as the screen writes it";
    EXPECT_EQ(esito.dver[1].testo(), "01012024");
    EXPECT_EQ(esito.dver[2].testo(), "02012024") << "both changed it: the screen's";
    EXPECT_EQ(esito.ver[3], 7) << "untouched here: the disc's";
    EXPECT_EQ(esito.riservati5.b[3], 9);
    EXPECT_EQ(esito.riservati1.b[0], visto.riservati1.b[0])
        << "nobody's bytes: the disc's, whoever has them otherwise";
    disco.pdf = "altro";
    ASSERT_TRUE(fondi(formato, {}, byte(visto), byte(base), byte(mio), byte(disco),
                      std::as_writable_bytes(std::span(&esito, 1))));
    EXPECT_EQ(esito.pdf.rifilato(), "altro");
}

TEST(Fondi, CioCheContaComeUno) {
    const FormatoRecord& formato = *formato_di_file("ftr");
    const auto byte = [](const RecFattura& f) { return std::as_bytes(std::span(&f, 1)); };
    constexpr std::string_view kInsieme[] = {"impon", "sca"};
    RecFattura visto = fattura(1, "1"), mio = visto, disco = visto, esito{};
    const auto prova = [&] {
        return fondi(formato, kInsieme, byte(visto), byte(visto), byte(mio), byte(disco),
                     std::as_writable_bytes(std::span(&esito, 1)));
    };
    disco.impon[3] = 5;
    EXPECT_TRUE(prova());
    EXPECT_EQ(esito.impon[3], 5);
    mio.sca[1] = 6;
    EXPECT_FALSE(prova());
    disco = visto;
    EXPECT_TRUE(prova());
    EXPECT_EQ(esito.sca[1], 6);
}

}  // namespace
