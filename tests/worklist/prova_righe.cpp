// What the worklist can do with a row beside its clicks: bring a deleted document back, put payments back.
#include <gtest/gtest.h>

#include "tests/supporto/banco.h"
#include "worklist/vexoraf.h"

using namespace ambra;

namespace {

RecFattura fattura(const char* numero, double importo, double versato) {
    RecFattura f = fattura_vuota();
    f.numfor = 1;
    f.numdoc = numero;
    f.datareg = f.datadoc = "20240105";
    f.impon[0] = f.sca[0] = importo;
    f.ver[0] = versato;
    if (versato > 0) f.dver[0] = "10012024";
    f.pagata = versato == importo;
    return f;
}

struct Tavolo : Banco {
    Tavolo() {
        fornitori({fornitore_vuoto("ROSSI")});
        fatture({fattura("1", 100, 0), fattura("2", 200, 200)});
        avvia();
    }
    Vexoraf& s() { return schermo<Vexoraf>("vexoraf"); }
    RecFattura doc(long n) {
        RecFattura f{};
        leggi(prog.arc.ftr, n, f);
        return f;
    }
    RecTotali contatori() {
        RecTotali t{};
        leggi(prog.arc.tfr, 2, t);
        return t;
    }
};

}  // namespace

TEST(VoceElenco, IlSegnoEGliScaduti) {
    RecFattura f = fattura("1", 100, 0);
    f.sca[0] = 60;
    f.sca[1] = 30;
    f.sca[2] = 10;
    f.ver[0] = 20;
    f.dsca[0] = "14032024";
    f.dsca[1] = "15032024";
    EXPECT_DOUBLE_EQ(voce_di(f, "20240315").scoperto, 80);
    EXPECT_DOUBLE_EQ(voce_di(f, "20240315").scaduto, 40);
    EXPECT_DOUBLE_EQ(voce_di(f, "20240316").scaduto, 70);
    f.tipodc = 1;
    EXPECT_DOUBLE_EQ(voce_di(f, "20240315").totale, -100);
    EXPECT_DOUBLE_EQ(voce_di(f, "20240315").scaduto, -40);
    EXPECT_FALSE(voce_di(f, "20240315").pdf);
    f.pdf = "a.pdf";
    f.cancellata = 1;
    EXPECT_TRUE(voce_di(f, "20240315").pdf);
    EXPECT_TRUE(voce_di(f, "20240315").eliminata);
}

TEST(Ripristino, LaDomandaPoiIlDocumentoVivoEISegniDiUnaModifica) {
    Tavolo b;
    b.piattaforma.risposte = {Risposta::si};
    b.s().elenco.scegli(2, 8);
    ASSERT_EQ(b.doc(2).cancellata, 1);
    RecTotali t = b.contatori();
    t.parola[1] = 0;
    scrivi(b.prog.arc.tfr, 2, t);
    b.piattaforma.risposte = {Risposta::no};
    b.s().ripristina(2);
    EXPECT_EQ(b.doc(2).cancellata, 1);
    b.piattaforma.risposte = {Risposta::si};
    b.s().ripristina(2);
    EXPECT_EQ(b.piattaforma.messaggi.back().testo, "Confermi il ripristino della fattura?");
    const RecFattura prima = fattura("2", 200, 200);
    EXPECT_EQ(byte_di(b.doc(2)), byte_di(prima));
    EXPECT_EQ(b.contatori().parola[0], 2);
    EXPECT_EQ(b.contatori().parola[1], 1);
}

TEST(Ripristino, UnDocumentoVivoNonSiRipristina) {
    Tavolo b;
    const std::string prima = b.file("ftr");
    b.s().ripristina(1);
    EXPECT_EQ(b.piattaforma.messaggi.size(), 1u);
    b.s().ripristina(20);
    EXPECT_EQ(b.file("ftr"), prima);
}

TEST(SaldoAzzerato, SiRimetteComEra) {
    Tavolo b;
    const std::string prima = b.file("ftr");
    EXPECT_FALSE(b.s().azzerata(2));
    b.piattaforma.risposte = {Risposta::si};
    b.s().elenco.scegli(2, 9);
    EXPECT_EQ(double(b.doc(2).ver[0]), 0);
    EXPECT_TRUE(b.s().azzerata(2));
    EXPECT_FALSE(b.s().azzerata(1));
    b.s().aggiornalista();
    EXPECT_TRUE(b.s().azzerata(2));
    b.piattaforma.risposte = {Risposta::si};
    b.s().rimetti_saldo(2);
    EXPECT_EQ(b.file("ftr"), prima);
    EXPECT_FALSE(b.s().azzerata(2));
}

TEST(SaldoAzzerato, UnPagamentoNuovoNonSiCopre) {
    Tavolo b;
    b.piattaforma.risposte = {Risposta::si};
    b.s().elenco.scegli(2, 9);
    RecFattura f = b.doc(2);
    f.ver[0] = 50;
    scrivi(b.prog.arc.ftr, 2, f);
    b.piattaforma.risposte = {Risposta::si};
    b.s().rimetti_saldo(2);
    EXPECT_EQ(double(b.doc(2).ver[0]), 50);
    EXPECT_EQ(b.piattaforma.messaggi.back().testo,
              "Il documento è cambiato in archivio: aggiornare l'elenco"_it);
}
