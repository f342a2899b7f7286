// Label files: kinds, defaults, every cut of a file, rubbish; the places on a sheet.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "core/impostazioni.h"
#include "core/testo.h"
#include "forms/etichette.h"
#include "forms/foglio_etichette.h"
#include "forms/mrvteti.h"
#include "tests/supporto/banco.h"

using namespace ambra;

namespace {

TEST(Etichette, OgniGenereHaIlSuoFile) {
    EXPECT_EQ(file_etichette(1), kCartella + "lumeria.eti");
    EXPECT_EQ(file_etichette(2), kCartella + "lumeria.eta");
    EXPECT_EQ(file_etichette(3), kCartella + "lumeria.etf");
    EXPECT_EQ(file_etichette(4), "");
    EXPECT_EQ(file_etichette(-1), "");
}

TEST(Etichette, CampiDiOgniGenere) {
    ASSERT_EQ(campi_etichetta(1).size(), 17u);
    ASSERT_EQ(campi_etichetta(2).size(), 17u);
    ASSERT_EQ(campi_etichetta(3).size(), 10u);
    EXPECT_TRUE(campi_etichetta(4).empty());
    EXPECT_EQ(a_utf8(campi_etichetta(1)[2]), "Città condomino");
    EXPECT_EQ(campi_etichetta(1)[7], "Dicitura Egr.Sig / Spett.");
    EXPECT_EQ(campi_etichetta(1)[16], "Campo libero riga 5");
    EXPECT_EQ(campi_etichetta(2)[7], "E-Mail");
    EXPECT_EQ(campi_etichetta(2)[11], "Note riga 4");
    EXPECT_EQ(a_utf8(campi_etichetta(3)[4]), "Città");
}

struct Posto {
    int tipo, riga;
    const char *x, *y;
};

TEST(Etichette, PostiPredefiniti) {
    const Posto posti[] = {{1, 1, "5", "10"},  {1, 2, "5", "15"}, {1, 3, "5", "20"},  {1, 4, "5", "25"},
                           {1, 5, "15", "25"}, {1, 6, "", ""},    {2, 5, "15", "25"}, {3, 1, "5", "10"},
                           {3, 2, "5", "15"},  {3, 3, "", ""},    {3, 6, "15", "20"}, {3, 13, "5", "20"},
                           {4, 1, "5", "5"},   {4, 2, "5", "9"},  {4, 4, "5", "24"},  {4, 7, "15", "13"},
                           {4, 14, "5", "13"}};
    for (const auto& p : posti) {
        const Etic e = etichette_predefinite(p.tipo);
        EXPECT_EQ(e(p.riga, 1), p.x) << p.tipo << " " << p.riga;
        EXPECT_EQ(e(p.riga, 2), p.y) << p.tipo << " " << p.riga;
        EXPECT_EQ(e(p.riga, 4), p.tipo == 4 && p.riga == 4 ? "8" : "9");
        EXPECT_EQ(e(p.riga, 3), "Arial");
        EXPECT_EQ(e(p.riga, 7), "&h000000");
    }
    EXPECT_EQ(etichette_predefinite(1)(28, 1), "");
    EXPECT_EQ(etichette_predefinite(3)(28, 1), "Euro");
    EXPECT_EQ(etichette_predefinite(4)(28, 1), "Euro");
    EXPECT_EQ(etichette_predefinite(3)(30, 2), "297");
    EXPECT_EQ(etichette_di_stampa()(28, 1), "");
    EXPECT_EQ(etichette_di_stampa()(5, 2), "25");
    EXPECT_EQ(etichette_di_stampa()(6, 1), "");
}

TEST(Etichette, OgniTaglioDelFile) {
    DiscoMemoria disco;
    Errore err;
    const Etic intera = etichette_predefinite(3);
    ASSERT_TRUE(salva_etichette(disco, err, 3, intera));
    const std::string file = disco.contenuto(file_etichette(3));
    EXPECT_EQ(std::count(file.begin(), file.end(), '\n'), 210);
    for (std::size_t n = 0; n <= file.size(); ++n) {
        disco.contenuto(file_etichette(3)) = file.substr(0, n);
        Etic e;
        const bool bene = leggi_etichette(disco, err, 3, e);
        // The last line is empty: its end alone makes it.
        ASSERT_EQ(bene, n > file.size() - 2) << n;
    }
}

TEST(Etichette, GiroCompletoConServaTutto) {
    DiscoMemoria disco;
    Errore err;
    std::mt19937 caso(5);
    Etic e;
    for (int riga = 1; riga <= 30; ++riga)
        for (int v = 1; v <= 7; ++v)
            for (int k = std::uniform_int_distribution<>(0, 12)(caso); k > 0; --k)
                e(riga, v) += static_cast<char>(std::uniform_int_distribution<>(32, 255)(caso));
    ASSERT_TRUE(salva_etichette(disco, err, 2, e));
    Etic letta;
    ASSERT_TRUE(leggi_etichette(disco, err, 2, letta));
    for (int riga = 1; riga <= 30; ++riga)
        for (int v = 1; v <= 7; ++v) ASSERT_EQ(letta(riga, v), e(riga, v));
}

TEST(Etichette, Colori) {
    EXPECT_EQ(testo_colore(0), "&h000000");
    EXPECT_EQ(testo_colore(255), "&h0000FF");
    EXPECT_EQ(testo_colore(0xABCDEF), "&hABCDEF");
    EXPECT_EQ(leggi_colore("&h0000ff"), 255);
    EXPECT_EQ(leggi_colore(" &HFF&"), 255);
    EXPECT_EQ(leggi_colore("&h"), 0);
    EXPECT_EQ(leggi_colore("&hzz"), 0);
    EXPECT_EQ(leggi_colore("16711680"), 16711680);
    EXPECT_EQ(leggi_colore("-3"), 0);
    EXPECT_EQ(leggi_colore("1e9"), 1);
    EXPECT_EQ(leggi_colore("&hFFFFFFFFFFFFFFFFFFFFFFFF"), 0);
    EXPECT_EQ(leggi_colore(""), 0);
}

TEST(Etichette, GenereTenutoDallApertura) {
    Banco b;
    b.avvia();
    b.prog.tipomodulo = 1;
    auto& s = b.schermo<Mrvteti>("mrvteti");
    EXPECT_EQ(s.campo[0].caption(), "Nome condomino");
    EXPECT_EQ(s.VScroll1.massimo(), 12);
    b.prog.recfornitore = 3;  // one variable with the kind: another screen sets it meanwhile
    Registro::Turno turno(b.prog.schermi);
    s.indice[0].premi();
    EXPECT_TRUE(b.memoria.esiste(file_etichette(1)));
    EXPECT_FALSE(b.memoria.esiste(file_etichette(3)));
}

TEST(Etichette, ScorrereOvunqueNonCambiaNulla) {
    Banco b;
    b.avvia();
    Etic e = etichette_predefinite(1);
    for (int riga = 1; riga <= 17; ++riga) {
        e(riga, 1) = std::to_string(riga);
        e(riga, 2) = std::to_string(100 + riga);
    }
    Errore err;
    ASSERT_TRUE(salva_etichette(b.memoria, err, 1, e));
    const std::string prima = b.memoria.contenuto(file_etichette(1));
    b.prog.tipomodulo = 1;
    auto& s = b.schermo<Mrvteti>("mrvteti");
    std::mt19937 caso(3);
    for (int i = 0; i < 60; ++i) s.VScroll1.scorri(std::uniform_int_distribution<>(0, 12)(caso));
    Registro::Turno turno(b.prog.schermi);
    s.indice[0].premi();
    EXPECT_EQ(b.memoria.contenuto(file_etichette(1)), prima);
}

}  // namespace
