// Which documents are registered already: by what two of them are the same, and that the index stays fresh.
#include <gtest/gtest.h>

#include "core/testo.h"
#include "invoices/registrate.h"
#include "tests/supporto/banco.h"

using namespace ambra;

namespace {

RecFornitore fornitore(const char* nome, const char* piva) {
    RecFornitore f = fornitore_vuoto(nome);
    f.piva = piva;
    return f;
}

RecFattura documento(int fornitore, const char* numero, const char* data = "20261005", int tipo = 0) {
    RecFattura f = fattura_vuota();
    f.numfor = fornitore;
    f.numdoc = numero;
    f.datadoc = data;
    f.tipodc = tipo;
    return f;
}

struct Tavolo : Banco {
    Tavolo() {
        fornitori({fornitore("ROSSI", "01234567897"), fornitore("ROSSI BIS", "01234567897"),
                   fornitore("SENZA", ""), fornitore("SENZA BIS", "")});
    }
    long cerca(const ChiaveDocumento& k, long escluso = 0) {
        RecFattura f{};
        return Registrate::di(prog).cerca(k, escluso, f);
    }
    long ultima(long fornitore) {
        RecFattura f{};
        return Registrate::di(prog).ultima(fornitore, f);
    }
};

TEST(Registrate, NumeroConfrontabile) {
    const std::pair<const char*, const char*> casi[] = {
        {"12/a", "12/A"},  {" 0012 / 026 ", "12/26"},         {"000", "0"},
        {"A0B00", "A0B0"}, {"IT23-94115I-790", "94115I-790"}, {"", ""}};
    for (const auto& [numero, atteso] : casi) EXPECT_EQ(numero_confrontabile(numero), atteso) << numero;
}

TEST(Registrate, CheCosaFaLoStessoDocumento) {
    Tavolo t;
    RecFattura morta = documento(1, "77");
    morta.cancellata = 1;
    t.fatture({documento(1, "12/26"), documento(1, "12/26", "20261005", 1), morta, documento(3, "5")});
    t.avvia();
    t.prog.err.azzera();
    EXPECT_EQ(t.cerca({1, "0012/26", "2026", false}), 1);
    EXPECT_EQ(t.cerca({2, "12/26", "2026", false}), 1);  // the same VAT number
    EXPECT_EQ(t.cerca({1, "12/26", "2026", true}), 2);
    EXPECT_EQ(t.cerca({1, "12/26", "2025", false}), 0);
    EXPECT_EQ(t.cerca({1, "13/26", "2026", false}), 0);
    EXPECT_EQ(t.cerca({1, "77", "2026", false}), 0);
    EXPECT_EQ(t.cerca({3, "5", "2026", false}), 4);
    EXPECT_EQ(t.cerca({4, "5", "2026", false}), 0);  // no VAT number is nobody's
    EXPECT_EQ(t.cerca({1, "12/26", "2026", false}, 1), 0);
    EXPECT_EQ(t.cerca({1, "", "2026", false}), 0);
    EXPECT_EQ(t.cerca({0, "12/26", "2026", false}), 0);
    EXPECT_EQ(t.prog.err.numero, 0);
}

TEST(Registrate, LUltimoDocumentoDelFornitore) {
    Tavolo t;
    RecFattura morta = documento(1, "3");
    morta.cancellata = 1;
    t.fatture({documento(1, "1"), documento(1, "2"), morta, documento(3, "4")});
    t.avvia();
    EXPECT_EQ(t.ultima(1), 2);
    EXPECT_EQ(t.ultima(3), 4);
    EXPECT_EQ(t.ultima(2), 0);
}

// What another program adds, deletes or changes is seen at the next question.
TEST(Registrate, SiRilegge) {
    Tavolo t;
    t.fatture({documento(1, "1"), documento(1, "2")});
    t.avvia();
    EXPECT_EQ(t.cerca({1, "3", "2026", false}), 0);
    t.fatture({documento(1, "3")});
    EXPECT_EQ(t.cerca({1, "3", "2026", false}), 3);
    EXPECT_EQ(t.ultima(1), 3);
    std::string& byte = t.file("ftr");
    RecFattura morta = documento(1, "3");
    morta.cancellata = 1;
    byte.replace(2 * sizeof morta, sizeof morta, byte_di(morta));
    EXPECT_EQ(t.cerca({1, "3", "2026", false}), 0);
    EXPECT_EQ(t.ultima(1), 2);
}

// Two records become one supplier, and two again, by the VAT number that the register is given.
TEST(Registrate, LaPartitaIvaDelRegistro) {
    Tavolo t;
    t.fatture({documento(3, "5")});
    t.avvia();
    EXPECT_EQ(t.cerca({4, "5", "2026", false}), 0);
    for (const auto& [piva, atteso] : {std::pair{"09999999999", 1L}, {"", 0L}}) {
        for (const long n : {3L, 4L}) {
            const RecFornitore prima = fornitore("PRIMA", piva[0] ? "" : "09999999999");
            const RecFornitore dopo = fornitore("DOPO", piva);
            ASSERT_TRUE(scrivi(t.prog.arc.fornitori, n, dopo));
            annuncia(t.prog.arc, n, prima, dopo);
        }
        EXPECT_EQ(t.cerca({4, "5", "2026", false}), atteso);
    }
}

}  // namespace
