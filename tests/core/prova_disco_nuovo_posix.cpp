// The real disc's steps that replace nothing, tell what stands there, and write outside of the drive.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "core/disco.h"
#include "core/errori.h"
#include "tests/supporto/disco_memoria.h"

using namespace ambra;
namespace fs = std::filesystem;

namespace {

class NienteDiSostituito : public testing::Test {
  protected:
    void SetUp() override {
        char modello[] = "/tmp/nuovo-XXXXXX";
        casa = ::mkdtemp(modello);
        std::ofstream(casa / "Pieno") << "caro";
        fs::create_symlink("Pieno", casa / "legato");
        fs::create_symlink("nulla", casa / "appeso");
        fs::create_directory(casa / "cartella");
    }
    void TearDown() override { fs::remove_all(casa); }
    std::string dentro(const char* nome) const {
        std::ifstream f(casa / nome);
        return std::string(std::istreambuf_iterator<char>(f), {});
    }
    fs::path casa;
};

TEST_F(NienteDiSostituito, UnFileNuovoENuovo) {
    const auto vero = disco_vero(casa.string());
    Disco& d = *vero;
    for (const char* c_e : {"\\Pieno", "\\PIENO", "\\legato", "\\appeso", "\\cartella"})
        EXPECT_EQ(d.scrivi_nuovo(c_e, "altro"), errore::accesso) << c_e;
    EXPECT_EQ(dentro("Pieno"), "caro");
    EXPECT_FALSE(fs::exists(casa / "nulla")) << "never through a link";
    EXPECT_EQ(d.scrivi_nuovo("\\nuovo", "suo"), 0);
    EXPECT_EQ(dentro("nuovo"), "suo");
    EXPECT_EQ(d.scrivi_nuovo("\\manca\\nuovo", "suo"), errore::percorso_mancante);
    DiscoMemoria m;
    m.contenuto("\\pieno") = "caro";
    EXPECT_EQ(m.scrivi_nuovo("\\Pieno", "altro"), errore::accesso);
    EXPECT_EQ(m.contenuto("\\pieno"), "caro");
}

TEST_F(NienteDiSostituito, UnoSpostamentoNonCopreNulla) {
    const auto vero = disco_vero(casa.string());
    Disco& d = *vero;
    std::ofstream(casa / "altro") << "mio";
    for (const char* c_e : {"\\PIENO", "\\appeso", "\\cartella"})
        EXPECT_EQ(d.sposta("\\altro", c_e), errore::accesso) << c_e;
    EXPECT_EQ(d.sposta("\\altro", "\\via"), 0);
    EXPECT_EQ(dentro("via"), "mio");
    EXPECT_FALSE(fs::exists(casa / "altro"));
    EXPECT_EQ(d.sposta("\\manca", "\\via2"), errore::file_mancante);
    DiscoMemoria m;
    m.contenuto("\\a") = "a";
    m.contenuto("\\b") = "b";
    EXPECT_EQ(m.sposta("\\a", "\\B"), errore::accesso);
    EXPECT_EQ(m.sposta("\\a", "\\c"), 0);
}

TEST_F(NienteDiSostituito, CheCosaCE) {
    const auto vero = disco_vero(casa.string());
    Disco& d = *vero;
    const auto che = [&](const char* p) {
        Cosa c{};
        return d.cosa_c_e(p, c) == 0 ? c : Cosa::altro;
    };
    EXPECT_EQ(che("\\pieno"), Cosa::file);
    EXPECT_EQ(che("\\legato"), Cosa::collegamento);
    EXPECT_EQ(che("\\appeso"), Cosa::collegamento);
    EXPECT_EQ(che("\\cartella"), Cosa::cartella);
    EXPECT_EQ(che("\\manca"), Cosa::niente);
    EXPECT_EQ(che("\\manca\\manca"), Cosa::niente);
    Cosa c{};
    EXPECT_EQ(d.cosa_c_e("\\pieno\\manca", c), errore::percorso_mancante) << "not told is not missing";
}

TEST_F(NienteDiSostituito, FuoriDallArchivio) {
    const std::string qui = (casa / "Pieno").string();
    EXPECT_EQ(scrivi_fuori(qui, "nuovo"), 0);
    EXPECT_EQ(dentro("Pieno"), "nuovo");
    EXPECT_EQ(scrivi_fuori((casa / "legato").string(), "suo"), 0);
    EXPECT_EQ(dentro("Pieno"), "nuovo") << "never through a link";
    EXPECT_NE(scrivi_fuori((casa / "cartella").string(), "x"), 0);
    EXPECT_EQ(scrivi_fuori((casa / "manca" / "x").string(), "x"), errore::percorso_mancante);
    EXPECT_EQ(std::distance(fs::directory_iterator(casa), {}), 4) << "nothing is left of a refused one";
    ASSERT_EQ(::mkfifo((casa / "tubo").c_str(), 0600), 0);
    EXPECT_EQ(scrivi_fuori((casa / "tubo").string(), "x"), errore::accesso);
    EXPECT_TRUE(fs::is_fifo(casa / "tubo"));
}

TEST(Errori, InParole) {
    EXPECT_EQ(in_parole(70), "permesso negato (errore 70)");
    EXPECT_EQ(in_parole(54), "il file è in sola lettura (errore 54)"_it);
    EXPECT_EQ(in_parole(99), "errore 99");
    for (const int e : {53, 54, 55, 57, 61, 62, 67, 70, 71, 75, 76})
        EXPECT_NE(in_parole(e), "errore " + std::to_string(e));
}

}  // namespace
