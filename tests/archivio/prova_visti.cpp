// The documents of a list, and the sections that guard them.
#include <gtest/gtest.h>

#include "archivio/documento.h"
#include "tests/archivio/due_programmi.h"

using namespace ambra;

namespace {

TEST(DocumentiVisti, CioCheIlRiordinoTolseNonSiCercaAltrove) {
    DueProgrammi b;
    const RecFattura una = fattura(1, "1"), altra = fattura(2, "2");
    b.apri({altra, una});  // a twin of the one that went
    DocumentiVisti v(b.prog.arc);
    const int chiave = v.aggiungi(1, una), seconda = v.aggiungi(2, una);
    const Impronta vecchi[] = {Impronta::di(una), Impronta::di(altra)};
    const long nuovi[] = {0, 1};
    v.spostate(vecchi, nuovi);
    RecFattura f{};
    EXPECT_EQ(v.posto(chiave), 0);
    EXPECT_EQ(v.ritrova(chiave, f), 0);
    EXPECT_EQ(v.posto(seconda), 2) << "what moved from there was another";
}

TEST(DocumentiVisti, UnaScritturaAltruiNelSuoPostoNonERicordata) {
    DueProgrammi b;
    const RecFattura una = fattura(1, "1"), altra = fattura(2, "2");
    b.apri({altra, una});
    DocumentiVisti v(b.prog.arc);
    const int chiave = v.aggiungi(1, una);
    v.scritta(1, altra, altra);
    RecFattura f{};
    EXPECT_EQ(v.ritrova(chiave, f), 2);
}

TEST(Sezione, ContataERestituita) {
    DueProgrammi b;
    b.apri({});
    int consolidate = 0;
    b.prog.arc.serratura.lasciate = [&] { ++consolidate; };
    {
        const Sezione una(b.prog.arc.serratura, Serratura::fornitori);
        const Sezione due(b.prog.arc.serratura, Serratura::documenti);
        const Sezione ancora(b.prog.arc.serratura, Serratura::documenti);
        EXPECT_EQ(b.prog.arc.sezioni_prese(), 3);
        EXPECT_NE(b.altra.blocca(nome_file("001", "tfr"), Serratura::documenti, {}), 0);
        EXPECT_EQ(consolidate, 0);
    }
    EXPECT_EQ(consolidate, 1);
    EXPECT_EQ(b.altra.blocca(nome_file("001", "tfr"), Serratura::documenti, {}), 0);
}

}  // namespace
