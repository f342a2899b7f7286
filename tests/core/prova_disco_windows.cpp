// The real disk on Windows: where paths lie, what is shared with whom, what is replaced while somebody has it
// open.
#include <gtest/gtest.h>

#include <windows.h>

#include "core/disco.h"
#include "core/disco_blocchi.h"
#include "core/disco_file_windows.h"
#include "core/errori.h"
#include "core/percorsi_windows.h"
#include "tests/supporto/drive_prova.h"

using namespace ambra;
using namespace std::chrono_literals;

namespace {

constexpr std::uint32_t kC = 1u << 2;

TEST(PercorsiWindows, DoveSta) {
    struct Caso {
        const char *radice, *percorso, *posto;
    };
    const Caso casi[] = {
        {"L:\\", "\\lumdir\\lumora\\lum001.ftr", "L:\\lumdir\\lumora\\lum001.ftr"},
        {"L:", "\\lumdir\\lumora\\lum001.ftr", "L:\\lumdir\\lumora\\lum001.ftr"},
        {"l:/prove/", "\\x", "l:\\prove\\x"},
        {"L:\\", "", "L:\\"},
        {"\\\\pc\\dati\\", "\\lumdir\\x", "\\\\pc\\dati\\lumdir\\x"},
        {"L:\\", "c:\\Documenti\\f.pdf", "c:\\Documenti\\f.pdf"},
        {"L:\\", "C:f.pdf", "C:f.pdf"},
        {"L:\\", "a:lumxp001.txt", "L:\\a\\lumxp001.txt"},
        {"L:\\", "a:\\lumxp001.txt", "L:\\a\\lumxp001.txt"},
        {"L:\\", "a:", "L:\\a"},
        {"L:\\", "\\\\altro\\dati\\f.pdf", "\\\\altro\\dati\\f.pdf"},
        {"L:\\", "/lumdir//lumora/x", "L:\\lumdir\\lumora\\x"},
        {"disco", "\\x", "disco\\x"},
    };
    for (const auto& c : casi) EXPECT_EQ(posto_windows(radice_windows(c.radice), c.percorso, kC), c.posto);
}

TEST(PercorsiWindows, ILunghiSonoSegnati) {
    const std::string lungo(250, 'x');
    EXPECT_EQ(per_windows("C:\\corto"), L"C:\\corto");
    EXPECT_EQ(per_windows("C:\\" + lungo), L"\\\\?\\C:\\" + std::wstring(250, L'x'));
    EXPECT_EQ(per_windows("\\\\pc\\dati\\" + lungo), L"\\\\?\\UNC\\pc\\dati\\" + std::wstring(250, L'x'));
}

// A file as another program opens it.
Maniglia come_altri(const DriveProva& dr, const char* nome, DWORD accesso, DWORD condiviso) {
    Maniglia m;
    EXPECT_EQ(apri_regolare(dr.vero(nome).wstring(), accesso, condiviso, OPEN_EXISTING, m), 0u);
    return m;
}

TEST(DiscoWindows, ChiNonCondivideELAltroCheRiprova) {
    DriveProva dr;
    dr.metti("x", "abc");
    const auto d = disco_vero(dr.radice.string());
    EXPECT_FALSE(d->in_uso(kCasa + "x"));
    std::unique_ptr<FileAperto> f;
    std::string s;
    {
        const Maniglia altri = come_altri(dr, "x", GENERIC_READ, 0);
        EXPECT_TRUE(d->in_uso(kCasa + "x"));
        EXPECT_EQ(d->apri(kCasa + "x", Apertura::scambio, f), errore::gia_aperto);
        EXPECT_EQ(d->leggi_tutto(kCasa + "x", s), errore::gia_aperto);
    }
    EXPECT_EQ(d->apri(kCasa + "x", Apertura::scambio, f), 0);
}

TEST(DiscoWindows, UnFileTenutoNonSiPuoTogliere) {
    DriveProva dr;
    dr.metti("x", "abc");
    dr.metti("y", "nuovo");
    const auto d = disco_vero(dr.radice.string());
    std::unique_ptr<FileAperto> f;
    ASSERT_EQ(d->apri(kCasa + "x", Apertura::scambio, f), 0);
    EXPECT_FALSE(DeleteFileW(dr.vero("x").c_str()));
    EXPECT_NE(d->rinomina(kCasa + "y", kCasa + "x"), 0);
    EXPECT_EQ(dr.byte("x"), "abc");
    // another of ours has it, too, and both see what is written
    std::unique_ptr<FileAperto> g;
    ASSERT_EQ(d->apri(kCasa + "x", Apertura::scambio, g), 0);
    ASSERT_EQ(f->scrivi(1, std::as_bytes(std::span("ZZ", 2))), 0);
    char b[3];
    std::size_t letti = 0;
    ASSERT_EQ(g->leggi(0, std::as_writable_bytes(std::span(b)), letti), 0);
    EXPECT_EQ(std::string(b, letti), "aZZ");
    f.reset(), g.reset();
    EXPECT_EQ(d->rinomina(kCasa + "y", kCasa + "x"), 0);
    EXPECT_EQ(dr.byte("x"), "nuovo");
}

TEST(DiscoWindows, UnFileApertoDaAltriERiscrittoSulPosto) {
    DriveProva dr;
    dr.metti("x", "un testo lungo");
    const auto d = disco_vero(dr.radice.string());
    const Maniglia altri = come_altri(dr, "x", GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE);
    EXPECT_EQ(d->scrivi_tutto(kCasa + "x", "corto"), 0);
    EXPECT_EQ(dr.byte("x"), "corto");
    EXPECT_EQ(dr.nomi(), 1);
    {
        const Maniglia chiuso = come_altri(dr, "x", GENERIC_READ, FILE_SHARE_READ);
        EXPECT_NE(d->scrivi_tutto(kCasa + "x", "altro"), 0);
    }
    EXPECT_EQ(dr.byte("x"), "corto");
    EXPECT_EQ(dr.nomi(), 1);
}

TEST(DiscoWindows, SolaLettura) {
    DriveProva dr;
    dr.metti("x", "abc");
    SetFileAttributesW(dr.vero("x").c_str(), FILE_ATTRIBUTE_READONLY);
    const auto d = disco_vero(dr.radice.string());
    EXPECT_EQ(d->scrivi_tutto(kCasa + "x", "def"), errore::permesso_negato);
    if (std::ofstream(dr.vero("x"), std::ios::app))
        GTEST_SKIP() << "a superuser under Wine is refused nothing";
    std::unique_ptr<FileAperto> f;
    ASSERT_EQ(d->apri(kCasa + "x", Apertura::scambio, f), 0);
    EXPECT_EQ(f->scrivi(0, std::as_bytes(std::span("Z", 1))), errore::permesso_negato);
    EXPECT_EQ(dr.byte("x"), "abc");
    f.reset();
    SetFileAttributesW(dr.vero("x").c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST(DiscoWindows, LungoEAccentato) {
    DriveProva dr;
    const auto d = disco_vero(dr.radice.string());
    std::string cartella = kCasa;
    for (int i = 0; i < 6; ++i) {
        cartella += std::string(60, static_cast<char>('a' + i)) + "\xe8";
        ASSERT_EQ(d->crea_cartella(cartella), 0) << i;
        cartella += '\\';
    }
    EXPECT_EQ(d->scrivi_tutto(cartella + "citt\xe0.pdf", "x"), 0);
    std::vector<std::string> nomi;
    EXPECT_EQ(d->elenca(cartella, nomi), 0);
    EXPECT_EQ(nomi, std::vector<std::string>{"citt\xe0.pdf"});
    EXPECT_EQ(d->elimina(cartella + "citt\xe0.pdf"), 0);
}

// The bytes that are locked are those that other kinds of machine lock.
TEST(DiscoWindows, IlPostoDeiBlocchi) {
    DriveProva dr;
    dr.metti("x", "abc");
    const auto d = disco_vero(dr.radice.string());
    ASSERT_EQ(d->blocca(kCasa + "x", 2, 0ms), 0);
    const Maniglia altri =
        come_altri(dr, "x", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE);
    const auto prova = [&](DWORD basso) {
        OVERLAPPED o{};
        o.Offset = basso;
        o.OffsetHigh = 0x3FFFFFFF;
        return LockFileEx(*altri, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &o) != 0;
    };
    EXPECT_TRUE(prova(0xFFFFF001));
    EXPECT_FALSE(prova(0xFFFFF002));
    d->sblocca(kCasa + "x", 2);
    EXPECT_TRUE(prova(0xFFFFF002));
    EXPECT_EQ(d->blocca(kCasa + "x", 1, 0ms), errore::permesso_negato);
    EXPECT_EQ(dr.byte("x"), "abc");
}

}  // namespace
