// Dated copies: one for each state of the archive, the last ten, and back byte for byte.
#include <gtest/gtest.h>

#include <filesystem>

#include "core/impostazioni.h"
#include "core/testo.h"
#include "maintenance/copie_datate.h"
#include "maintenance/ripristino.h"
#include "tests/supporto/disco_guasto.h"
#include "tests/supporto/disco_memoria.h"

using namespace ambra;

namespace {

class Copie : public testing::Test {
  protected:
    void SetUp() override {
        disco.contenuto(kCartella + "lum007.ftr") = "fatture";
        disco.contenuto(kCartella + "lum007.tfr") = std::string(140, '\0');
        disco.contenuto(kCartella + "lumora.pag") = "a\r\n\r\nb";
    }
    std::string fai(const std::string& momento, Motivo m = Motivo::riordino) {
        return fai_copia(disco, fuori, "007", m, momento);
    }
    void lavora(const std::string& che) { disco.contenuto(kCartella + "lum007.ftr") += che; }
    DiscoMemoria disco, fuori;
};

TEST_F(Copie, UnaPerOgniStatoDellArchivio) {
    ASSERT_EQ(fai("20240315-101502"), "");
    ASSERT_EQ(fai("20240315-101503"), "");
    EXPECT_EQ(copie_di(fuori, "007").size(), 1u) << "nothing has changed since";
    lavora("x");
    ASSERT_EQ(fai("20240316-080000", Motivo::azzeramento), "");
    lavora("y");
    ASSERT_EQ(fai("20240316-080000", Motivo::azzeramento), "") << "twice in a second";
    const auto copie = copie_di(fuori, "007");
    ASSERT_EQ(copie.size(), 3u);
    EXPECT_EQ(copie[0].momento, "16/03/2024 08:00");
    EXPECT_EQ(copie[0].motivo, "prima dell'azzeramento");
    EXPECT_EQ(copie[2].momento, "15/03/2024 10:15");
    EXPECT_EQ(copie[2].motivo, "prima del riordino");
    EXPECT_TRUE(copie_di(fuori, "008").empty());
    std::vector<std::string> nomi;
    disco.elenca(kCartella, nomi);
    EXPECT_EQ(nomi.size(), 3u) << "never in the archive";
}

TEST_F(Copie, RestanoLeUltimeDieci) {
    fuori.contenuto("\\008-20200101-000000-riordino.copia") = "di un altro";
    fuori.contenuto("\\007-appunti.txt") = "miei";
    for (int i = 10; i < 35; ++i) {
        lavora("x");
        ASSERT_EQ(fai("202403" + std::to_string(i) + "-101502"), "");
    }
    const auto copie = copie_di(fuori, "007");
    ASSERT_EQ(copie.size(), kCopieTenute);
    EXPECT_EQ(copie.back().file, "007-20240325-101502-riordino.copia");
    EXPECT_TRUE(fuori.esiste("\\008-20200101-000000-riordino.copia"));
    EXPECT_TRUE(fuori.esiste("\\007-appunti.txt"));
}

TEST_F(Copie, TornaByteABte) {
    const std::string prima = disco.contenuto(kCartella + "lum007.ftr");
    ASSERT_EQ(fai("20240315-101502"), "");
    lavora("x");
    std::vector<FileSalvato> file;
    const auto copia = copie_di(fuori, "007").at(0).file;
    ASSERT_EQ(leggi_copia(fuori, "007", copia, file), "");
    ASSERT_EQ(ripristina(disco, file, "007", nuovo_deposito(disco, "20240315-101600")), "");
    EXPECT_EQ(disco.contenuto(kCartella + "lum007.ftr"), prima);
    EXPECT_EQ(disco.contenuto(kCartella + "sostituiti-20240315-101600\\lum007.ftr"), prima + "x");

    EXPECT_EQ(leggi_copia(fuori, "008", copia, file), "una copia di un altro stabile: 007");
    fuori.contenuto("\\" + copia).pop_back();
    EXPECT_NE(leggi_copia(fuori, "007", copia, file), "");
    EXPECT_EQ(leggi_copia(fuori, "007", "manca", file), "il file manca (errore 53)");
}

TEST_F(Copie, UnaCopiaCheNonRiesceLoDiceENeTieneLeAltre) {
    ASSERT_EQ(fai("20240315-101502"), "");
    lavora("x");
    DiscoGuasto pieno(fuori);
    pieno.guasto = [](Operazione op, std::string_view) { return op == Operazione::scrivi_nuovo ? 61 : 0; };
    EXPECT_EQ(fai_copia(disco, pieno, "007", Motivo::indice, "20240315-101503"), "disco pieno (errore 61)");
    EXPECT_EQ(copie_di(fuori, "007").size(), 1u);
    EXPECT_EQ(fai_copia(disco, fuori, "009", Motivo::indice, "20240315-101503"), "lo stabile manca");
}

}  // namespace
