// The real disk, as it behaves on every platform.
#include <gtest/gtest.h>

#include <thread>

#include "core/disco.h"
#include "tests/supporto/drive_prova.h"

using namespace ambra;
using namespace std::chrono_literals;

namespace {

const std::string kTfr = "\\lumdir\\lumora\\lum001.tfr";

TEST(DiscoVero, NomiSenzaRiguardoAlleMaiuscole) {
    DriveProva dr;
    const auto vero = disco_vero(dr.radice.string());
    Disco& d = *vero;
    EXPECT_EQ(d.scrivi_tutto("\\lumdir\\lumora\\LUM007.FOR", "abc"), 0);
    EXPECT_TRUE(std::filesystem::exists(dr.radice / "LumDir" / "lumora" / "LUM007.FOR"));
    std::string s;
    EXPECT_EQ(d.leggi_tutto("\\LUMDIR\\LUMORA\\lum007.for", s), 0);
    EXPECT_EQ(s, "abc");
    // written again under another case: the same file
    EXPECT_EQ(d.scrivi_tutto("\\lumdir\\lumora\\lum007.for", "def"), 0);
    EXPECT_EQ(dr.nomi(), 1);
    EXPECT_EQ(d.leggi_tutto("\\lumdir\\lumora\\Lum007.For", s), 0);
    EXPECT_EQ(s, "def");
}

TEST(DiscoVero, NumeriDegliErrori) {
    DriveProva dr;
    const auto vero = disco_vero(dr.radice.string());
    Disco& d = *vero;
    std::unique_ptr<FileAperto> f;
    std::string s;
    EXPECT_EQ(d.apri("\\lumdir\\lumora\\manca", Apertura::lettura, f), 53);
    EXPECT_EQ(d.apri("\\nessuna\\manca", Apertura::scambio, f), 76);
    EXPECT_EQ(d.apri("\\lumdir\\lumora", Apertura::scambio, f), 75);
    EXPECT_EQ(d.crea_cartella("\\lumdir"), 75);
    EXPECT_EQ(d.elimina("\\lumdir\\lumora\\manca"), 53);
    EXPECT_EQ(d.apri("\\lumdir\\lumora\\nuovo", Apertura::scambio, f), 0);
    EXPECT_TRUE(std::filesystem::exists(dr.radice / "LumDir" / "lumora" / "nuovo"));
}

TEST(DiscoVero, LUnitaAEUnaCartellaDellaRadice) {
    DriveProva dr;
    const auto vero = disco_vero(dr.radice.string());
    Disco& d = *vero;
    EXPECT_EQ(d.scrivi_tutto("a:lumxp001.txt", "x"), 76);
    EXPECT_EQ(d.crea_cartella("a:"), 0);
    EXPECT_EQ(d.scrivi_tutto("a:lumxp001.txt", "x"), 0);
    EXPECT_TRUE(std::filesystem::exists(dr.radice / "a" / "lumxp001.txt"));
}

TEST(DiscoVero, LaRadiceEQuellaConLumdirVersoLAlto) {
    DriveProva dr;
    std::filesystem::create_directories(dr.radice / "uno" / "due");
    const auto prima = std::filesystem::current_path();
    std::filesystem::current_path(dr.radice / "uno" / "due");
    EXPECT_EQ(radice_corrente(), dr.radice.string());
    std::filesystem::current_path(prima);
}

// Two programs are two discs: each has its own open file.
TEST(Blocchi, UnAltroProgrammaRestaFuori) {
    const DriveProva dr;
    dr.metti("LUM001.TFR", std::string(140, 'x'));
    const auto uno = disco_vero(dr.radice.string()), due = disco_vero(dr.radice.string());
    EXPECT_EQ(uno->blocca(kTfr, 1, 0ms), 0);
    EXPECT_EQ(uno->blocca(kTfr, 1, 0ms), 0) << "one's own lock is no obstacle";
    EXPECT_EQ(due->blocca(kTfr, 1, 0ms), 70);
    EXPECT_EQ(due->blocca(kTfr, 2, 0ms), 0) << "another section";
    due->sblocca(kTfr, 1);
    EXPECT_EQ(due->blocca(kTfr, 1, 0ms), 70) << "nobody gives back what another holds";
    EXPECT_EQ(uno->blocca(kTfr, 2, 0ms), 70);
    uno->sblocca("\\LUMDIR\\lumora\\LUM001.tfr", 1);
    EXPECT_EQ(due->blocca(kTfr, 1, 0ms), 0);
    EXPECT_EQ(dr.byte("LUM001.TFR"), std::string(140, 'x'));
    EXPECT_EQ(dr.nomi(), 1);
}

TEST(Blocchi, NonCadeQuandoIlFileSiChiudeAltrove) {
    const DriveProva dr;
    dr.metti("lum001.tfr", "x");
    const auto uno = disco_vero(dr.radice.string()), due = disco_vero(dr.radice.string());
    ASSERT_EQ(uno->blocca(kTfr, 1, 0ms), 0);
    std::unique_ptr<FileAperto> f;
    ASSERT_EQ(uno->apri(kTfr, Apertura::scambio, f), 0);
    f.reset();
    std::string s;
    ASSERT_EQ(uno->leggi_tutto(kTfr, s), 0);
    EXPECT_EQ(due->blocca(kTfr, 1, 0ms), 70);
}

TEST(Blocchi, SiAspettaFinoAllaPazienza) {
    const DriveProva dr;
    dr.metti("lum001.tfr", "x");
    const auto uno = disco_vero(dr.radice.string()), due = disco_vero(dr.radice.string());
    ASSERT_EQ(uno->blocca(kTfr, 3, 0ms), 0);
    const auto prima = std::chrono::steady_clock::now();
    EXPECT_EQ(due->blocca(kTfr, 3, 60ms), 70);
    EXPECT_GE(std::chrono::steady_clock::now() - prima, 60ms);
    std::thread altrove([&] {
        std::this_thread::sleep_for(100ms);
        uno->sblocca(kTfr, 3);
    });
    EXPECT_EQ(due->blocca(kTfr, 3, 30s), 0);
    EXPECT_LT(std::chrono::steady_clock::now() - prima, 20s);
    altrove.join();
}

TEST(Blocchi, UnProgrammaCheFinisceLasciaTutto) {
    const DriveProva dr;
    dr.metti("lum001.tfr", "x");
    const auto due = disco_vero(dr.radice.string());
    {
        const auto uno = disco_vero(dr.radice.string());
        ASSERT_EQ(uno->blocca(kTfr, 1, 0ms), 0);
        ASSERT_EQ(due->blocca(kTfr, 1, 0ms), 70);
    }
    EXPECT_EQ(due->blocca(kTfr, 1, 0ms), 0);
}

TEST(Blocchi, UnFileCheMancaNonSiFaENonSiBlocca) {
    const DriveProva dr;
    const auto uno = disco_vero(dr.radice.string()), due = disco_vero(dr.radice.string());
    EXPECT_EQ(uno->blocca(kTfr, 1, 0ms), 0);
    EXPECT_EQ(due->blocca(kTfr, 1, 0ms), 0);
    EXPECT_EQ(due->blocca("\\manca\\lum001.tfr", 1, 0ms), 0);
    EXPECT_EQ(dr.nomi(), 0);
    uno->sblocca(kTfr, 1);
    dr.metti("lum001.tfr", "x");  // from now on it can be
    EXPECT_EQ(uno->blocca(kTfr, 1, 0ms), 0);
    EXPECT_EQ(due->blocca(kTfr, 1, 0ms), 70);
}

TEST(Blocchi, ChiTieneUnFileLoPuoTogliere) {
    const DriveProva dr;
    dr.metti("lum001.tfr", "x");
    const auto uno = disco_vero(dr.radice.string()), due = disco_vero(dr.radice.string());
    ASSERT_EQ(uno->blocca(kTfr, 1, 0ms), 0);
    EXPECT_EQ(uno->elimina(kTfr), 0);
    EXPECT_EQ(dr.nomi(), 0);
    uno->sblocca(kTfr, 1);
    dr.metti("lum001.tfr", "y");
    EXPECT_EQ(due->blocca(kTfr, 1, 0ms), 0);
}

// A lock on what once bore the name would exclude nobody.
TEST(Blocchi, ValeIlFileCheAdessoPortaIlNome) {
    const DriveProva dr;
    dr.metti("lum001.tfr", "x");
    const auto uno = disco_vero(dr.radice.string()), due = disco_vero(dr.radice.string());
    ASSERT_EQ(uno->blocca(kTfr, 1, 0ms), 0);
    uno->sblocca(kTfr, 1);
    ASSERT_EQ(due->scrivi_tutto(kTfr, "nuovo"), 0);
    ASSERT_EQ(uno->blocca(kTfr, 1, 0ms), 0);
    EXPECT_EQ(due->blocca(kTfr, 1, 0ms), 70);
}

}  // namespace
