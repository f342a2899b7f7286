// Backup and restore: byte for byte, all or none, whatever happens to the archive or the disc.
#include <filesystem>
#include <fstream>

#include "maintenance/sha256.h"
#include "tests/ambra/stabile_salvato.h"
#include "tests/supporto/disco_guasto.h"

using namespace ambra;
namespace fs = std::filesystem;

namespace {

TEST(Sha256, ValoriNoti) {
    EXPECT_EQ(sha256(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    EXPECT_EQ(sha256("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_EQ(sha256("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
              "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
    EXPECT_EQ(sha256(std::string(1000000, 'a')),
              "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

TEST_F(Salvataggio, AndataERitornoByteABte) {
    const Foto prima = foto(disco);
    ASSERT_EQ(scrivi_compresso(archivio(), file), "");
    rovina();
    const Foto rovinata = foto(disco);
    std::vector<FileSalvato> letti;
    ASSERT_EQ(leggi_compresso(archivio(), letti), "");
    std::string nnn;
    ASSERT_EQ(difetto(letti, nnn), "");
    EXPECT_EQ(nnn, "002");
    ASSERT_EQ(ripristina(disco, letti, nnn, "sostituiti-x"), "");
    EXPECT_EQ(foto(disco), prima);
    // What was replaced is kept, the file of the building that the backup lacks too.
    for (const char* n : {"lum002.ftr", "lum002.tfr", "lum002.$$$", "lumora.pag"})
        EXPECT_EQ(disco.contenuto(kCartella + "sostituiti-x\\" + n), rovinata.at(n)) << n;
}

TEST_F(Salvataggio, SuUnDischettoNuovo) {
    DiscoMemoria nuovo;
    ASSERT_EQ(ripristina(nuovo, file, "002", "d"), "");
    Foto voluta = foto(disco);
    std::erase_if(
        voluta, [](const auto& x) { return x.first.starts_with("lum001") || x.first.starts_with("lum003"); });
    EXPECT_EQ(foto(nuovo), voluta);
}

TEST_F(Salvataggio, GliStessiFileDannoGliStessiByte) {
    ASSERT_EQ(scrivi_compresso(archivio(), file), "");
    ASSERT_EQ(scrivi_compresso(archivio() + "2", file), "");
    const auto leggi = [](const std::string& p) {
        std::ifstream f(p, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(f), {});
    };
    EXPECT_EQ(leggi(archivio()), leggi(archivio() + "2"));
    EXPECT_FALSE(fs::exists(archivio() + ".~~~"));
}

TEST_F(Salvataggio, UnoStabileCheNonCE) {
    EXPECT_EQ(raccogli(disco, "999", file), "lo stabile manca");
    // A form alone is no building.
    disco.contenuto(kCartella + "lum999.lay") = "0";
    EXPECT_EQ(raccogli(disco, "999", file), "lo stabile manca");
    DiscoGuasto guasto(disco);
    guasto.guasto = [](Operazione op, std::string_view p) {
        return op == Operazione::leggi_tutto && p.ends_with("lum002.ftr") ? 57 : 0;
    };
    EXPECT_EQ(raccogli(guasto, "002", file), "lum002.ftr: guasto del disco (errore 57)");
    disco.contenuto(kCartella + kGiornaleRipristino) = "d\r\n";
    EXPECT_NE(raccogli(disco, "002", file), "") << "a mixture is not saved";
}

TEST_F(Salvataggio, LeggeFincheDuePassateSonoUguali) {
    // Somebody registers while the first two passes run: the set is what stood still in the end.
    DiscoGuasto altri(disco);
    int letture = 0;
    altri.guasto = [&](Operazione op, std::string_view p) {
        if (op != Operazione::leggi_tutto || !p.ends_with("lum002.ftr") || ++letture > 2) return 0;
        disco.contenuto(kCartella + "lum002.tfr")[28] ^= 1;
        disco.contenuto(kCartella + "lum002.cnd") += "x";
        return 0;
    };
    int pause = 0;
    ASSERT_EQ(raccogli(altri, "002", file, [&] { ++pause; }), "");
    EXPECT_EQ(pause, 3);
    for (std::size_t i = 1; i < file.size(); ++i)
        EXPECT_EQ(file[i].contenuto, disco.contenuto(kCartella + file[i].nome)) << file[i].nome;

    // Somebody who never rests; and one who only ever makes and removes a file.
    altri.guasto = [&](Operazione op, std::string_view p) {
        if (op == Operazione::leggi_tutto && p.ends_with("lum002.ftr"))
            disco.contenuto(kCartella + "lum002.tfr")[28] ^= 1;
        return 0;
    };
    EXPECT_TRUE(raccogli(altri, "002", file).starts_with("l'archivio cambia di continuo"));
    int volte = 0;
    altri.guasto = [&](Operazione op, std::string_view) {
        if (op == Operazione::elenca && ++volte % 2 == 0) disco.contenuto(kCartella + "lum002.$$$") = "";
        if (op == Operazione::elenca && volte % 2 == 1) disco.elimina(kCartella + "lum002.$$$");
        return 0;
    };
    EXPECT_TRUE(raccogli(altri, "002", file).starts_with("l'archivio cambia di continuo"));
}

TEST_F(Salvataggio, QuelloCheNonSiRimetteNonSiSalva) {
    disco.contenuto(kCartella + "lum002.mov").resize(kMassimoFile + 1);
    EXPECT_EQ(raccogli(disco, "002", file), "lum002.mov: un file troppo grande");
}

TEST_F(Salvataggio, LaCopiaInUnPezzoEQuellaCompressaSonoLaStessa) {
    std::ofstream(archivio(), std::ios::binary) << in_un_pezzo(file);
    std::vector<FileSalvato> letti;
    ASSERT_EQ(leggi_compresso(archivio(), letti), "");
    std::string nnn;
    EXPECT_EQ(difetto(letti, nnn), "");
    EXPECT_EQ(in_un_pezzo(letti), in_un_pezzo(file));
    // Cut anywhere it is refused.
    const std::string intera = in_un_pezzo(file);
    for (std::size_t n = 0; n < intera.size(); n += 1 + intera.size() / 40)
        EXPECT_NE(difetto(da_un_pezzo(intera.substr(0, n)), nnn), "") << n;
    EXPECT_NE(difetto(da_un_pezzo(intera + "x"), nnn), "");
}

TEST_F(Salvataggio, NonSostituisceUnFileAltrui) {
    EXPECT_FALSE(altrui(archivio()));
    std::ofstream(archivio()) << "la tesi di laurea";
    EXPECT_TRUE(altrui(archivio()));
    ASSERT_EQ(scrivi_compresso(archivio(), file), "");
    EXPECT_FALSE(altrui(archivio()));
    EXPECT_TRUE(altrui(dove.string()));
}

TEST_F(Salvataggio, UnCollegamentoSiSostituisceENonSiSegue) {
    const auto vittima = dove / "vittima";
    std::ofstream(vittima) << "cara";
    std::error_code senza;
    fs::create_symlink(vittima, archivio(), senza);
    if (senza) GTEST_SKIP() << "no links here: " << senza.message();
    // What the process of before was called: names that a killed one left are passed over, links too.
    for (int n = 0; n < 40; ++n)
        fs::create_symlink(vittima, archivio() + ".~" + std::to_string(::getpid()) + "-" + std::to_string(n));
    ASSERT_EQ(scrivi_compresso(archivio(), file), "");
    EXPECT_EQ(fs::file_size(vittima), 4u);
    EXPECT_FALSE(fs::is_symlink(archivio()));
}

}  // namespace
