// The record formats: fields follow one another without a gap, the document says the same as the headers,
// and a record read and written back keeps every byte.
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <random>
#include <sstream>

#include "core/filerecord.h"
#include "records/condomino.h"
#include "records/conto.h"
#include "records/descrizione.h"
#include "records/fattura.h"
#include "records/fornitore.h"
#include "records/movimento.h"
#include "records/nome.h"
#include "records/prospetto.h"
#include "records/stabile.h"
#include "records/totali.h"
#include "tests/supporto/disco_memoria.h"

using namespace ambra;

namespace {

TEST(Formati, CampiSenzaBuchi) {
    for (const auto& f : formati_record()) {
        std::size_t fine = 0;
        for (const auto& c : f.campi) {
            EXPECT_EQ(c.posto, fine) << f.nome << " " << c.nome;
            fine = c.posto + c.lungo * static_cast<std::size_t>(c.quanti);
        }
        EXPECT_EQ(fine, f.lunghezza) << f.nome;
    }
}

TEST(Formati, IlDocumentoDiceLoStesso) {
    std::ifstream file("docs/dev/formati.md");
    ASSERT_TRUE(file) << "run from the root of the sources";
    const std::string testo((std::istreambuf_iterator<char>(file)), {});
    const char* tipi[] = {"Integer", "Long", "Double", "text", "bytes"};
    for (const auto& f : formati_record()) {
        std::ostringstream titolo;
        titolo << "## `" << f.nome << "`, " << f.lunghezza << " bytes\n";
        const auto inizio = testo.find(titolo.str());
        ASSERT_NE(inizio, std::string::npos) << titolo.str();
        const std::string parte = testo.substr(inizio, testo.find("\n## ", inizio + 1) - inizio);
        for (const auto& c : f.campi) {
            std::ostringstream riga;
            riga << "| `" << c.nome << "` | " << c.posto << " | " << c.lungo << " | "
                 << tipi[static_cast<int>(c.tipo)] << " | " << c.quanti << " |\n";
            EXPECT_NE(parte.find(riga.str()), std::string::npos) << f.nome << ": " << riga.str();
        }
    }
}

template <class R>
void andata_e_ritorno(std::mt19937& caso) {
    DiscoMemoria d;
    Errore err;
    FileDi<R> f(err, 1);
    f.apri(d, "x");
    std::string& file = d.contenuto("x");
    file.resize(3 * sizeof(R));
    for (char& c : file) c = static_cast<char>(caso());
    const std::string prima = file;
    for (long n = 1; n <= 3; ++n) {
        R r{};
        ASSERT_TRUE(leggi(f, n, r));
        ASSERT_TRUE(scrivi(f, n, r));
    }
    EXPECT_EQ(file, prima);
}

TEST(Formati, LettoERiscrittoResta) {
    std::mt19937 caso(20240315);
    for (int i = 0; i < 50; ++i) {
        andata_e_ritorno<RecFattura>(caso);
        andata_e_ritorno<RecFornitore>(caso);
        andata_e_ritorno<RecNome>(caso);
        andata_e_ritorno<RecTotali>(caso);
        andata_e_ritorno<RecTotaliLedger>(caso);
        andata_e_ritorno<RecCondomino>(caso);
        andata_e_ritorno<RecCondomino2>(caso);
        andata_e_ritorno<RecConto>(caso);
        andata_e_ritorno<RecMovimento>(caso);
        andata_e_ritorno<RecStabile>(caso);
        andata_e_ritorno<RecStabile2>(caso);
        andata_e_ritorno<RecProspetto>(caso);
    }
}

TEST(Campi, NumeriLittleEndian) {
    Intero i;
    i = -2;
    EXPECT_EQ(i.b[0], 0xFE);
    EXPECT_EQ(i.b[1], 0xFF);
    EXPECT_EQ(int(i), -2);
    Lungo l;
    l = 0x01020304;
    EXPECT_EQ(l.b[0], 4);
    EXPECT_EQ(std::int32_t(l), 0x01020304);
    Doppio d;
    d = 1.0;
    EXPECT_EQ(d.b[7], 0x3F);
    EXPECT_EQ(d.b[6], 0xF0);
    EXPECT_EQ(double(d), 1.0);
    d = std::nan("");
    EXPECT_TRUE(std::isnan(double(d)));
}

TEST(Campi, IlContatorePienoResta) {
    Errore err;
    Intero i;
    i = 32766;
    EXPECT_TRUE(incrementa(i, err));
    EXPECT_FALSE(incrementa(i, err));
    EXPECT_EQ(int(i), 32767);
    EXPECT_EQ(err.numero, 6);
}

TEST(Campi, TestoTagliatoERiempito) {
    Testo<4> t{};
    EXPECT_EQ(t.testo(), "    ");  // zero bytes show as blanks
    EXPECT_EQ(t.grezzo(), std::string_view("\0\0\0\0", 4));
    t = "abcdef";
    EXPECT_EQ(t.grezzo(), "abcd");
    t = "a";
    EXPECT_EQ(t.grezzo(), "a   ");
    t = "";
    EXPECT_EQ(t.grezzo(), "    ");
}

}  // namespace
