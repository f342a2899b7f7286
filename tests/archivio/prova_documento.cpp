// The road of a document back to its file: merge, search, and what two programs do to each other.
#include <gtest/gtest.h>

#include "archivio/documento.h"
#include "archivio/fondi.h"
#include "tests/supporto/banco.h"

using namespace ambra;

namespace {

using Esito = DocumentoInMano::Esito;

RecFattura fattura(int fornitore, const std::string& numero) {
    RecFattura f = fattura_vuota();
    f.numfor = fornitore;
    f.numdoc = numero;
    f.datadoc = f.datareg = "20240105";
    f.impon[0] = 100;
    return f;
}

struct Due : Banco {
    DiscoMemoria altra{memoria.altro_programma()};
    PiattaformaProva piattaforma2;
    Programma prog2{altra, piattaforma2, "1"};

    void apri(const std::vector<RecFattura>& tutte) {
        fornitori({fornitore_vuoto("A")});
        fatture(tutte);
        prog.apriarchivi();
        prog2.apriarchivi();
    }
    RecFattura letta(int n) {
        RecFattura f{};
        leggi(prog.arc.ftr, n, f);
        return f;
    }
};

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

TEST(DocumentoInMano, SpostatoAltroveSiRitrova) {
    Due b;
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
    Due b;
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
    Due b;
    b.apri({fattura(9, "0"), fattura(1, "1"), fattura(1, "1")});
    DocumentoInMano d(b.prog.arc);
    ASSERT_TRUE(d.prendi(2));
    scrivi(b.prog2.arc.ftr, 2, fattura(9, "0"));
    scrivi(b.prog2.arc.ftr, 1, fattura(1, "1"));
    EXPECT_EQ(d.ritrova(), Esito::sparito);
}

TEST(DocumentiVisti, CioCheIlRiordinoTolseNonSiCercaAltrove) {
    Due b;
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
    Due b;
    const RecFattura una = fattura(1, "1"), altra = fattura(2, "2");
    b.apri({altra, una});
    DocumentiVisti v(b.prog.arc);
    const int chiave = v.aggiungi(1, una);
    v.scritta(1, altra, altra);
    RecFattura f{};
    EXPECT_EQ(v.ritrova(chiave, f), 2);
}

TEST(DocumentoInMano, DietroIlContatoreNonCEPiu) {
    Due b;
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
    Due b;
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
    Due b;
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
    Due b;
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

TEST(Sezione, ContataERestituita) {
    Due b;
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
