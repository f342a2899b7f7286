// Backup and restore: byte for byte, all or none, whatever happens to the archive or the disc.
#include <gtest/gtest.h>

#include <archive.h>
#include <archive_entry.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <random>

#include "ambra/archivio_compresso.h"
#include "ambra/demo.h"
#include "core/impostazioni.h"
#include "core/testo.h"
#include "maintenance/ripristino.h"
#include "maintenance/sha256.h"
#include "tests/supporto/cartella_prova.h"
#include "tests/supporto/disco_guasto.h"
#include "tests/supporto/disco_memoria.h"

using namespace ambra;
namespace fs = std::filesystem;

namespace {

using Foto = std::map<std::string, std::string>;

Foto foto(DiscoMemoria& d) {
    std::vector<std::string> nomi;
    d.elenca(kCartella, nomi);
    Foto f;
    for (const auto& n : nomi) f[n] = d.contenuto(kCartella + n);
    return f;
}

class Salvataggio : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(demo::crea(disco, {{15, 3, 2024}, false}));
        ASSERT_EQ(raccogli(disco, "002", file), "");
    }

    std::string archivio() const { return (dove / "s.tar.gz").string(); }
    // Changes what a year of work would change, and adds a file that the backup lacks.
    void rovina() {
        disco.contenuto(kCartella + "lum002.ftr") += "altro";
        disco.contenuto(kCartella + "lum002.tfr")[28] ^= 3;
        disco.elimina(kCartella + "lum002.srf");
        disco.contenuto(kCartella + "lum002.$$$") = "copia";
        disco.contenuto(kCartella + "lumora.pag") = "vuota\r\n";
    }

    DiscoMemoria disco;
    std::vector<FileSalvato> file;
    CartellaProva casa;
    const fs::path& dove = casa.dove();
};

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

// ---- archives for restore that are none ----

TEST_F(Salvataggio, ArchivioTagliatoOvunqueRifiutato) {
    ASSERT_EQ(scrivi_compresso(archivio(), file), "");
    std::ifstream f(archivio(), std::ios::binary);
    const std::string dati(std::istreambuf_iterator<char>(f), {});
    std::mt19937 caso(4);
    for (int giro = 0; giro < 120; ++giro) {
        const auto quanti = std::uniform_int_distribution<std::size_t>(0, dati.size() - 9)(caso);
        std::ofstream(archivio(), std::ios::binary | std::ios::trunc) << dati.substr(0, quanti);
        std::vector<FileSalvato> letti;
        std::string nnn;
        std::string male = leggi_compresso(archivio(), letti);
        if (male.empty()) male = difetto(letti, nnn);
        ASSERT_NE(male, "") << quanti << " of " << dati.size();
    }
}

TEST_F(Salvataggio, ArchivioAlteratoRifiutatoOUguale) {
    ASSERT_EQ(scrivi_compresso(archivio(), file), "");
    std::ifstream f(archivio(), std::ios::binary);
    const std::string dati(std::istreambuf_iterator<char>(f), {});
    std::mt19937 caso(5);
    int rifiutati = 0;
    for (int giro = 0; giro < 120; ++giro) {
        std::string altri = dati;
        const auto dove_ = std::uniform_int_distribution<std::size_t>(0, dati.size() - 1)(caso);
        altri[dove_] = static_cast<char>(altri[dove_] ^ (1 << std::uniform_int_distribution<>(0, 7)(caso)));
        std::ofstream(archivio(), std::ios::binary | std::ios::trunc) << altri;
        std::vector<FileSalvato> letti;
        std::string nnn;
        std::string male = leggi_compresso(archivio(), letti);
        if (male.empty()) male = difetto(letti, nnn);
        if (!male.empty()) {
            ++rifiutati;
            continue;
        }
        // A bit that carries nothing (a padding, a date): then every file is what was saved.
        ASSERT_EQ(letti.size(), file.size());
        for (std::size_t i = 0; i < file.size(); ++i) ASSERT_EQ(letti[i].contenuto, file[i].contenuto);
    }
    EXPECT_GT(rifiutati, 80);
}

TEST_F(Salvataggio, ContenutoCambiatoConTuttiIControlliDelFormatoInRegola) {
    file[3].contenuto += "x";
    std::string nnn;
    EXPECT_EQ(difetto(file, nnn), "un file alterato: " + file[3].nome);
}

struct Insieme {
    const char* nome;
    std::function<void(std::vector<FileSalvato>&)> cambia;
    std::string_view difetto;
};

TEST_F(Salvataggio, InsiemiCheNonSonoUnSalvataggio) {
    constexpr std::string_view kAltroNumero = "file in numero diverso dal manifesto";
    const Insieme casi[] = {
        {"empty", [](auto& f) { f.clear(); }, "manca il manifesto"},
        {"no manifest", [](auto& f) { f.erase(f.begin()); }, "manca il manifesto"},
        {"empty manifest", [](auto& f) { f[0].contenuto.clear(); }, "il manifesto non si legge"},
        {"no building", [](auto& f) { f[0].contenuto.replace(19, 3, "abc"); },
         "il manifesto non dice lo stabile"},
        {"another building", [](auto& f) { f[0].contenuto.replace(19, 3, "001"); },
         "un file che non appartiene allo stabile: "},
        {"a file less", [](auto& f) { f.pop_back(); }, kAltroNumero},
        {"a file more",
         [](auto& f) {
             f.push_back({"lum002.$$$", ""});
         },
         kAltroNumero},
        {"a stranger",
         [](auto& f) {
             f.push_back({"lum002.zzz", ""});
         },
         "un file che non appartiene allo stabile: lum002.zzz"},
        {"twice", [](auto& f) { f.push_back(f[2]); }, "un file doppio: "},
        {"a manifest and nothing else",
         [](auto& f) {
             f.resize(1);
             f[0].contenuto = "Kit Ambra, stabile 002\r\n";
         },
         "non contiene nessun file dello stabile"},
        {"two manifests", [](auto& f) { f.push_back(f[0]); }, "un file che non appartiene allo stabile: "},
        {"trailing bytes", [](auto& f) { f[0].contenuto += "\r\n"; }, kAltroNumero},
    };
    for (const auto& c : casi) {
        auto altro = file;
        c.cambia(altro);
        std::string nnn;
        EXPECT_TRUE(difetto(altro, nnn).starts_with(c.difetto)) << c.nome << ": " << difetto(altro, nnn);
    }
}

TEST_F(Salvataggio, NomiCheNonSonoDiUnoStabile) {
    for (const char* nome :
         {"../lum002.ftr", "/etc/passwd", "..\\lum002.ftr", "lum002.ftr/../../x", "a/lum002.ftr",
          "lum001.ftr", "C:lum002.ftr", "lum002.ftr\n", "", "LUM002.exe.ftr", ".ftr", "autoexec.bat",
          "lum002.exe", "lumora.bat", "vexoral.001x", "lumoral.ftr"}) {
        auto altro = file;
        altro[2].nome = nome;
        // A manifest that agrees with the bad name: only the name can be refused.
        std::string m = "Kit Ambra, stabile 002\r\n";
        for (std::size_t i = 1; i < altro.size(); ++i)
            m += sha256(altro[i].contenuto) + " " + std::to_string(altro[i].contenuto.size()) + " " +
                 altro[i].nome + "\r\n";
        altro[0].contenuto = m;
        std::string nnn;
        EXPECT_NE(difetto(altro, nnn), "") << nome;
    }
}

TEST_F(Salvataggio, CollegamentiECartelleRifiutati) {
    for (const unsigned tipo : {unsigned(AE_IFLNK), unsigned(AE_IFDIR)}) {
        archive* a = archive_write_new();
        archive_write_add_filter_gzip(a);
        archive_write_set_format_ustar(a);
        ASSERT_EQ(archive_write_open_filename(a, archivio().c_str()), ARCHIVE_OK);
        archive_entry* e = archive_entry_new();
        archive_entry_set_pathname(e, "lum002.ftr");
        archive_entry_set_filetype(e, tipo);
        if (tipo == AE_IFLNK) archive_entry_set_symlink(e, "/etc/passwd");
        archive_write_header(a, e);
        archive_entry_free(e);
        archive_write_free(a);
        std::vector<FileSalvato> letti;
        EXPECT_EQ(leggi_compresso(archivio(), letti), "non contiene solo file");
    }
    std::vector<FileSalvato> letti;
    EXPECT_NE(leggi_compresso((dove / "manca").string(), letti), "");
}

}  // namespace
