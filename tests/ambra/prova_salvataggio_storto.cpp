// What is no backup is refused: cut, altered, made up, with names of others.
#include <archive.h>
#include <archive_entry.h>

#include <fstream>
#include <functional>
#include <random>

#include "maintenance/sha256.h"
#include "tests/ambra/stabile_salvato.h"

using namespace ambra;

namespace {

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
