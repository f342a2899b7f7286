// The road of a document back to its file: search, counters, and what two programs do to each other.
#include <gtest/gtest.h>

#include "archivio/documento.h"
#include "tests/archivio/due_programmi.h"

using namespace ambra;

namespace {

using Esito = DocumentoInMano::Esito;

TEST(DocumentoInMano, SpostatoAltroveSiRitrova) {
    DueProgrammi b;
    b.apri({fattura(1, "1"), fattura(1, "2"), fattura(1, "2")});
    DocumentoInMano d(b.prog.arc);
    ASSERT_TRUE(d.prendi(1));
    RecFattura uno = b.letta(1), due = b.letta(2);
    scrivi(b.prog2.arc.ftr, 1, due);
    scrivi(b.prog2.arc.ftr, 2, uno);
    EXPECT_EQ(d.cambia([](RecFattura& f) { f.pdf = "x"; }), Esito::scritto);
    EXPECT_EQ(d.record(), 2);
    EXPECT_EQ(b.letta(2).pdf.rifilato(), "x");
    EXPECT_EQ(b.letta(1).pdf.rifilato(), "");
}

TEST(DocumentoInMano, FraDueGemelliDecideIlRecordIntero) {
    DueProgrammi b;
    RecFattura gemella = fattura(1, "1");
    gemella.impon[0] = 200;
    b.apri({fattura(9, "0"), fattura(1, "1"), gemella});
    DocumentoInMano d(b.prog.arc);
    ASSERT_TRUE(d.prendi(2));
    const RecFattura mia = b.letta(2);
    scrivi(b.prog2.arc.ftr, 2, fattura(9, "0"));
    scrivi(b.prog2.arc.ftr, 1, mia);
    EXPECT_EQ(d.ritrova(), Esito::scritto);
    EXPECT_EQ(d.record(), 1);
    scrivi(b.prog2.arc.ftr, 1, gemella);
    EXPECT_EQ(d.ritrova(), Esito::scritto) << "in its place stands one with its marks";
    scrivi(b.prog2.arc.ftr, 1, fattura(9, "0"));
    scrivi(b.prog2.arc.ftr, 2, gemella);
    EXPECT_EQ(d.ritrova(), Esito::sparito) << "two with its marks, none like it";
}

TEST(DocumentoInMano, FraDueUgualiNessuno) {
    DueProgrammi b;
    b.apri({fattura(9, "0"), fattura(1, "1"), fattura(1, "1")});
    DocumentoInMano d(b.prog.arc);
    ASSERT_TRUE(d.prendi(2));
    scrivi(b.prog2.arc.ftr, 2, fattura(9, "0"));
    scrivi(b.prog2.arc.ftr, 1, fattura(1, "1"));
    EXPECT_EQ(d.ritrova(), Esito::sparito);
}

TEST(DocumentoInMano, DietroIlContatoreNonCEPiu) {
    DueProgrammi b;
    b.apri({fattura(1, "1"), fattura(1, "2")});
    DocumentoInMano d(b.prog.arc);
    ASSERT_TRUE(d.prendi(2));
    RecTotali t{};
    leggi(b.prog2.arc.tfr, 2, t);
    t.parola[0] = 1;
    scrivi(b.prog2.arc.tfr, 2, t);
    EXPECT_EQ(d.cambia([](RecFattura& f) { f.pdf = "x"; }), Esito::sparito);
    EXPECT_EQ(b.letta(2).pdf.rifilato(), "");
}

TEST(DocumentoInMano, LeProprieScrittureSiVedonoDaTutteLeRighe) {
    DueProgrammi b;
    b.apri({fattura(1, "1"), fattura(1, "2")});
    DocumentiVisti righe(b.prog.arc);
    RecFattura f = b.letta(1);
    const int chiave = righe.aggiungi(1, f);
    DocumentoInMano d(b.prog.arc);
    d.prendi(1);
    ASSERT_EQ(d.scrivi([](RecFattura& r) { r.numdoc = "NUOVO"; }), Esito::scritto);
    EXPECT_EQ(righe.ritrova(chiave, f), 1);
    EXPECT_EQ(f.numdoc.rifilato(), "NUOVO");
    ASSERT_EQ(d.scrivi([](RecFattura& r) { r.numdoc = "ANCORA"; }), Esito::scritto);
    EXPECT_EQ(b.letta(1).numdoc.rifilato(), "ANCORA");
}

TEST(DocumentoInMano, ContatoriIlleggibiliNonSiIndovinano) {
    Banco b;
    b.fornitori({fornitore_vuoto("A")});
    b.fatture({fattura(1, "1"), fattura(1, "2")});
    b.prog.apriarchivi();
    DocumentoInMano nuovo(b.prog.arc), vecchio(b.prog.arc);
    nuovo.nuovo();
    ASSERT_TRUE(vecchio.prendi(2));
    const std::string prima = b.file("ftr"), contatori = b.file("tfr");
    // The first reading of the counters, where the document is found again, still works.
    int letture = 0;
    b.disco.guasto = [&](Operazione op, std::string_view f) {
        return op == Operazione::leggi && f.ends_with(".tfr") && ++letture > 1 ? errore::dispositivo : 0;
    };
    EXPECT_EQ(vecchio.cambia([](RecFattura& f) { f.pdf = "x"; }, DocumentoInMano::Contatori::modifica),
              Esito::scritto);
    EXPECT_EQ(b.file("tfr"), contatori);
    EXPECT_EQ(nuovo.scrivi([](RecFattura& f) { f = fattura(1, "9"); }), Esito::guasto);
    EXPECT_EQ(b.file("ftr").size(), prima.size());
    EXPECT_EQ(b.file("ftr").substr(0, 522), prima.substr(0, 522));
    EXPECT_EQ(b.file("tfr"), contatori);
}

TEST(DocumentoInMano, CioCheIlDiscoRifiutaEUnGuasto) {
    Banco b;
    b.fornitori({fornitore_vuoto("A")});
    b.fatture({fattura(1, "1")});
    b.prog.apriarchivi();
    DocumentoInMano d(b.prog.arc), nuovo(b.prog.arc);
    ASSERT_TRUE(d.prendi(1));
    nuovo.nuovo();
    b.disco.guasto = [](Operazione op, std::string_view f) {
        return op == Operazione::scrivi && f.ends_with(".ftr") ? errore::dispositivo : 0;
    };
    EXPECT_EQ(d.scrivi([](RecFattura& f) { f.pdf = "x"; }), Esito::guasto);
    EXPECT_EQ(d.cambia([](RecFattura& f) { f.pdf = "x"; }), Esito::guasto);
    EXPECT_EQ(nuovo.scrivi([](RecFattura& f) { f = fattura(1, "9"); }), Esito::guasto);
    b.disco.guasto = {};
    RecTotali t{};
    ASSERT_TRUE(leggi(b.prog.arc.tfr, 2, t));
    EXPECT_EQ(t.parola[0], 1) << "a document that is not there is not counted";
}

TEST(DocumentoInMano, IContatoriDiconoCheCosaESuccesso) {
    DueProgrammi b;
    b.apri({fattura(1, "1")});
    DocumentoInMano d(b.prog.arc);
    ASSERT_TRUE(d.prendi(1));
    RecTotali t{};
    ASSERT_EQ(d.scrivi([](RecFattura& f) { f.pdf = "x"; }, [](RecFattura& f) { f.pagata = 1; }),
              Esito::scritto);
    EXPECT_EQ(b.letta(1).pagata, 1);
    leggi(b.prog.arc.tfr, 2, t);
    EXPECT_EQ(t.parola[1], 1);
    EXPECT_EQ(t.parola[2], 0);
    ASSERT_EQ(d.elimina(DocumentoInMano::Contatori::eliminazione), Esito::scritto);
    leggi(b.prog.arc.tfr, 2, t);
    EXPECT_EQ(t.parola[2], 1);
}

TEST(DocumentoInMano, OccupatoNonScriveNulla) {
    DueProgrammi b;
    b.apri({fattura(1, "1")});
    ASSERT_EQ(b.altra.blocca(nome_file("001", "tfr"), Serratura::documenti, {}), 0);
    DocumentoInMano d(b.prog.arc);
    d.prendi(1);
    const std::string prima = b.file("ftr"), contatori = b.file("tfr");
    EXPECT_EQ(d.scrivi([](RecFattura& f) { f.pdf = "x"; }), Esito::occupato);
    d.nuovo();
    EXPECT_EQ(d.scrivi([](RecFattura& f) { f = fattura(1, "9"); }), Esito::occupato);
    EXPECT_EQ(b.file("ftr"), prima);
    EXPECT_EQ(b.file("tfr"), contatori);
    EXPECT_EQ(b.prog.arc.sezioni_prese(), 0);
}

}  // namespace
