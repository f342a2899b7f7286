#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/filerecord.h"
#include "core/filetesto.h"
#include "core/impostazioni.h"
#include "records/nome.h"
#include "tests/supporto/disco_guasto.h"
#include "tests/supporto/disco_memoria.h"

using namespace ambra;

namespace {

RecNome nome(const std::string& s, int n) {
    RecNome r{};
    r.nome = s;
    r.numero = n;
    return r;
}

TEST(FileRecord, ScriveELeggePerNumero) {
    DiscoMemoria d;
    Errore err;
    FileDi<RecNome> f(err, 23);
    ASSERT_TRUE(f.apri(d, "\\lumdir\\lumora\\x.srf"));
    EXPECT_TRUE(scrivi(f, 2, nome("ROSSI", 7)));
    EXPECT_EQ(d.contenuto("\\lumdir\\lumora\\x.srf").size(), 84u);
    RecNome r{};
    EXPECT_TRUE(leggi(f, 2, r));
    EXPECT_EQ(r.nome.rifilato(), "ROSSI");
    EXPECT_EQ(int(r.numero), 7);
    EXPECT_TRUE(leggi(f, 9, r));  // past the end: zero bytes, no error
    EXPECT_EQ(r.nome.grezzo(), std::string_view(std::string(40, '\0')));
    EXPECT_EQ(err.numero, 0);
}

TEST(FileRecord, IlRecordZeroNonEsiste) {
    DiscoMemoria d;
    Errore err;
    FileDi<RecNome> f(err, 23);
    f.apri(d, "x");
    RecNome r = nome("RESTA", 1);
    EXPECT_FALSE(leggi(f, 0, r));
    EXPECT_EQ(err.numero, 63);
    EXPECT_EQ(r.nome.rifilato(), "RESTA");
    EXPECT_FALSE(scrivi(f, -3, r));
}

TEST(FileRecord, LetturaFallitaLasciaIlRecord) {
    DiscoMemoria d;
    DiscoGuasto g(d);
    Errore err;
    FileDi<RecNome> f(err, 23);
    f.apri(g, "x");
    g.guasto = [](Operazione op, std::string_view) { return op == Operazione::leggi ? 57 : 0; };
    RecNome r = nome("RESTA", 1);
    EXPECT_FALSE(leggi(f, 1, r));
    EXPECT_EQ(err.numero, 57);
    EXPECT_EQ(r.nome.rifilato(), "RESTA");
    f.chiudi();
    EXPECT_FALSE(leggi(f, 1, r));
    EXPECT_EQ(err.numero, 52);
}

TEST(FileRecord, PassataESchedarioDannoGliStessiByte) {
    DiscoMemoria d;
    Errore err;
    FileDi<RecNome> f(err, 23);
    f.apri(d, "x");
    for (int i = 1; i <= 7000; ++i) scrivi(f, i, nome("N" + std::to_string(i), i % 30000));
    d.contenuto("x").resize(d.contenuto("x").size() - 20);  // the last one is cut off
    Passata<RecNome> passata(f);
    Schedario<RecNome> schede(f);
    for (int i = 1; i <= 7005; ++i) {
        RecNome a{}, b{}, c{};
        EXPECT_TRUE(leggi(f, i, a) && passata.leggi(i, b) && schede.leggi(i, c));
        EXPECT_EQ(std::memcmp(&a, &b, 42), 0) << i;
        EXPECT_EQ(std::memcmp(&a, &c, 42), 0) << i;
    }
    for (const int i : {7000, 1, 3500, 9999}) {
        RecNome a{}, c{};
        EXPECT_TRUE(leggi(f, i, a) && schede.leggi(i, c));
        EXPECT_EQ(std::memcmp(&a, &c, 42), 0) << i;
    }
    RecNome r = nome("RESTA", 1);
    EXPECT_FALSE(schede.leggi(0, r));
    EXPECT_EQ(r.nome.rifilato(), "RESTA");
}

// What a pass has shown stays while reads fail, and while the next block is looked at.
TEST(FileRecord, IlRecordVistoResta) {
    DiscoMemoria d;
    DiscoGuasto g(d);
    Errore err;
    FileDi<RecNome> f(err, 23);
    f.apri(g, "x");
    for (int i = 1; i <= 7000; ++i) scrivi(f, i, nome("N" + std::to_string(i), i));
    Passata<RecNome> passata(f);
    const RecNome* visto = passata.vista(1);
    ASSERT_NE(visto, nullptr);
    g.guasto = [](Operazione op, std::string_view) { return op == Operazione::leggi ? 57 : 0; };
    EXPECT_EQ(passata.vista(5000), nullptr);
    EXPECT_EQ(err.numero, 57);
    EXPECT_EQ(visto->nome.rifilato(), "N1");
    g.guasto = nullptr;
    const RecNome* dopo = passata.vista(5000);
    ASSERT_NE(dopo, nullptr);
    EXPECT_EQ(dopo->nome.rifilato(), "N5000");
    EXPECT_EQ(visto->nome.rifilato(), "N1");
}

TEST(FileRecord, UnaScritturaSenzaFileSiDiceAlDisco) {
    struct Conta : DiscoMemoria {
        std::vector<std::string> rifiuti;
        void conta_rifiuto(std::string_view percorso, int numero) override {
            rifiuti.push_back(std::string(percorso) + " " + std::to_string(numero));
        }
    };
    Conta d;
    DiscoGuasto g(d);
    Errore err;
    FileDi<RecNome> f(err, 23);
    EXPECT_FALSE(scrivi(f, 1, nome("MAI APERTO", 1)));
    EXPECT_EQ(err.numero, 52);
    g.guasto = [](Operazione, std::string_view) { return 70; };
    EXPECT_FALSE(f.apri(g, "x.srf"));
    EXPECT_TRUE(d.rifiuti.empty()) << "an opening is no write";
    RecNome r{};
    leggi(f, 1, r);
    EXPECT_TRUE(d.rifiuti.empty());
    scrivi(f, 1, r);
    scrivi_campo(f, 1, r, r.numero);
    EXPECT_EQ(d.rifiuti, (std::vector<std::string>{"x.srf 52", "x.srf 52"}));
}

TEST(FileRecord, SiConsolidaSoloCioCheSiEScritto) {
    DiscoMemoria d;
    Errore err;
    FileDi<RecNome> f(err, 23);
    f.apri(d, "x");
    int volte = 0;
    d.prima_di = [&](Operazione op, std::string_view) { volte += op == Operazione::consolida; };
    EXPECT_TRUE(f.consolida());
    EXPECT_EQ(volte, 0);
    scrivi(f, 1, nome("A", 1));
    scrivi(f, 2, nome("B", 2));
    EXPECT_TRUE(f.consolida());
    EXPECT_TRUE(f.consolida());
    EXPECT_EQ(volte, 1);
    const RecNome r = nome("C", 3);
    scrivi_campo(f, 2, r, r.numero);
    EXPECT_TRUE(f.consolida());
    EXPECT_EQ(volte, 2);
}

TEST(FileTesto, RigheECampi) {
    DiscoMemoria d;
    Errore err;
    d.contenuto("t") = "uno\r\ndue\ntre\r\r\n 5 , -7\r\nabc,99999\r\n\"a,b\",x\r\nfine";
    LettoreTesto f(err);
    std::string s;
    EXPECT_FALSE(f.riga(s));
    EXPECT_EQ(err.numero, 52);
    err.azzera();
    ASSERT_TRUE(f.apri(d, "t"));
    for (const char* r : {"uno", "due", "tre", ""}) {
        EXPECT_TRUE(f.riga(s));
        EXPECT_EQ(s, r);
    }
    int v = 3;
    EXPECT_TRUE(f.campo_intero(v));
    EXPECT_EQ(v, 5);
    EXPECT_TRUE(f.campo_intero(v));
    EXPECT_EQ(v, -7);
    EXPECT_TRUE(f.campo_intero(v));
    EXPECT_EQ(v, 0);
    EXPECT_FALSE(f.campo_intero(v));
    EXPECT_EQ(err.numero, 6);
    EXPECT_EQ(v, 0);
    EXPECT_TRUE(f.campo_testo(s));
    EXPECT_EQ(s, "a,b");
    EXPECT_TRUE(f.campo_testo(s));
    EXPECT_TRUE(f.riga(s));
    EXPECT_EQ(s, "fine");
    err.azzera();
    EXPECT_FALSE(f.riga(s));
    EXPECT_EQ(err.numero, 62);
    EXPECT_EQ(s, "fine");
}

}  // namespace
