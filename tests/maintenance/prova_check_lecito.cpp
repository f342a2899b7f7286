// What the watchman says once of one cause, and what is no breach at all.
#include "records/condomino.h"
#include "records/conto.h"
#include "records/fornitore.h"
#include "records/nome.h"
#include "records/totali.h"
#include "tests/maintenance/archivio_check.h"

using namespace ambra;

namespace {

TEST_F(Check, UnaCausaUnRilievo) {
    // Every share was left where it was when the balances went on.
    const auto condomini = static_cast<long>(file("lum001.cnd").size() / sizeof(RecCondomino));
    for (long n = 1; n <= condomini; ++n)
        cambia<RecCondomino>("lum001.cnd", n, [](RecCondomino& r) { r.dquota = r.dquota + 1; });
    Giro g = verifica(disco);
    ASSERT_EQ(g.rilievi.size(), 1u) << g.elenco();
    EXPECT_EQ(g.rilievi[0].volte, condomini);
    EXPECT_EQ(g.rilievi[0].record, 1);

    // A balance that is wrong: not the shares too, which still follow the right one.
    SetUp();
    cambia<RecConto>("lum001.pia", 1, [](RecConto& r) { r.csaldo = r.csaldo + 100; });
    g = verifica(disco);
    ASSERT_EQ(g.rilievi.size(), 1u) << g.elenco();
    EXPECT_EQ(g.rilievi[0].campo, "csaldo");

    // Lost counters: not every document that then belongs to nobody, nor every balance.
    SetUp();
    const std::string zero(2, '\0');
    file("lum001.tfr").replace(0, 2, zero);
    file("lum001.tot").replace(6, 2, zero);
    g = verifica(disco);
    EXPECT_EQ(g.rilievi.size(), 2u) << g.elenco();

    // Neither does a count that is none say that others lie behind it, nor a name that is wrong that the next
    // is out of order.
    SetUp();
    file("lum001.tfr").replace(sizeof(RecTotali), 2, "\xFD\xFF");
    EXPECT_EQ(verifica(disco).rilievi.size(), 1u) << verifica(disco).elenco();
    SetUp();
    cambia<RecNome>("lum001.srf", 6, [](RecNome& r) { r.nome = "ZZZ"; });
    EXPECT_EQ(verifica(disco).rilievi.size(), 1u) << verifica(disco).elenco();
}

// A file that is gone is one finding: not all that refers to its records too.
TEST_F(Check, UnFileCheMancaEUnRilievo) {
    for (const char* e : {"tot", "cnd", "cns", "pia", "mov", "cn2", "tab", "tfr", "for", "srf", "ftr"}) {
        SetUp();
        disco.elimina(nome_file("001", e));
        const Giro g = verifica(disco);
        ASSERT_EQ(g.rilievi.size(), 1u) << e << "\n" << g.elenco();
        EXPECT_EQ(g.rilievi[0].file, std::string("lum001.") + e);
        EXPECT_EQ(g.rilievi[0].trovato, "manca");
        EXPECT_EQ(g.stato, 1);
    }
}

TEST_F(Check, LeAzioniDiTuttiIGiorniNonSonoGuasti) {
    const auto nome = [&](long n, const std::string& scheda, const std::string& indice, bool cancellato) {
        cambia<RecFornitore>("lum001.for", n, [&](RecFornitore& f) {
            f.inte1 = scheda;
            f.cancellata = cancellato;
        });
        const long quanti = static_cast<long>(file("lum001.srf").size() / sizeof(RecNome));
        for (long i = 1; i <= quanti; ++i)
            cambia<RecNome>("lum001.srf", i, [&](RecNome& r) {
                if (r.numero == n) r.nome = indice;
            });
        // The index wants sorting.
        cambia<RecTotali>("lum001.tfr", 1, [](RecTotali& t) { t.parola[1] = 1; });
    };
    nome(1, "\xFFRossi & figli", "\xFFRossi & figli", true);
    nome(2,
         "\xFF"
         "Bianchi & figli",
         "\xFF\xFF"
         "BIANCHI & FIGLI",
         true);
    nome(3, "Verdi di un altro stabile", "Verdi di un altro stabile", false);
    const std::string lungo = "\xFF" + std::string(39, 'x');
    nome(4, lungo, "\xFF\xFF" + std::string(38, 'X'), true);
    const Giro g = verifica(disco);
    EXPECT_EQ(g.stato, 0) << g.elenco();
    nome(1, "Rossi & figli", "rossi & FIGLI", false);
    EXPECT_EQ(verifica(disco).stato, 1);
    nome(1, "Rossi & figli", "\xFFROSSI & FIGLI", false);
    EXPECT_EQ(verifica(disco).stato, 1) << "only a deleted one bears a mark";
}

TEST_F(Check, DietroAlConteggioRestaQuelCheIlRiordinoELAzzeramentoLasciano) {
    const auto intera = file("lum001.ftr");
    const long quante = static_cast<long>(intera.size() / sizeof(RecFattura));
    const auto conta = [&](long n) {
        cambia<RecTotali>("lum001.tfr", 2, [&](RecTotali& t) { t.parola[0] = int(n); });
    };
    // The reorganisation drops the first ten: the rest moves up, the copy holds what there was.
    file("lum001.$$$") = intera;
    file("lum001.ftr") = intera.substr(10 * sizeof(RecFattura)) +
                         intera.substr((static_cast<std::size_t>(quante) - 10) * sizeof(RecFattura));
    conta(quante - 10);
    EXPECT_EQ(verifica(disco).stato, 0);
    // Three of the last are deleted and dropped by another one, which wrote the copy anew.
    conta(quante - 13);
    file("lum001.$$$") = file("lum001.ftr");
    EXPECT_EQ(verifica(disco).stato, 0);
    // The reset leaves no copy; what it kept stands in front too.
    disco.elimina(kCartella + "lum001.$$$");
    conta(quante - 10);
    EXPECT_EQ(verifica(disco).stato, 0);
}

}  // namespace
