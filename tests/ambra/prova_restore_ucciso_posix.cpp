// The real `ambra restore` killed right before each of its operations on files: the archive is the old one,
// the new one, or says that it is in between, and the next restore puts it right.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <map>

#include "ambra/archivio_compresso.h"
#include "core/impostazioni.h"
#include "maintenance/ripristino.h"
#include "tests/supporto/uccisione.h"

using namespace ambra;
namespace fs = std::filesystem;

namespace {

using Foto = std::map<std::string, std::string>;

const Foto kSalvata = {{"lum002.ftr", "fatture"},
                       {"lum002.for", "fornitori"},
                       {"lum002.srf", "indice"},
                       {"lum002.tfr", "contatori"},
                       {"lumora.pag", "pagamenti"}};
const Foto kPrima = {{"lum002.ftr", "altre"},
                     {"lum002.for", "altri"},
                     {"lum002.$$$", "copia"},
                     {"lum002.tfr", "altri"},
                     {"lumora.pag", ""}};

struct Cantiere {
    fs::path casa;
    Cantiere() {
        char modello[] = "/tmp/ucciso-XXXXXX";
        casa = ::mkdtemp(modello);
    }
    ~Cantiere() { fs::remove_all(casa); }
    fs::path archivio() const { return casa / "lumdir" / "lumora"; }
    void metti(const Foto& f) const {
        fs::remove_all(casa / "lumdir");
        fs::create_directories(archivio());
        for (const auto& [n, c] : f) std::ofstream(archivio() / n) << c;
    }
    /// The files of the archive, without what a restore works with.
    Foto foto() const {
        Foto f;
        for (const auto& v : fs::directory_iterator(archivio())) {
            if (!v.is_regular_file() || v.path().extension() == ".~~~") continue;
            std::ifstream s(v.path(), std::ios::binary);
            f[v.path().filename().string()] = std::string(std::istreambuf_iterator<char>(s), {});
        }
        return f;
    }
    std::vector<std::string> comando(const char* che, const std::string& resto) const {
        return {fs::read_symlink("/proc/self/exe").parent_path() / "ambra", che, "--drive", casa.string(),
                resto};
    }
};

TEST(RestoreUcciso, PrimaDiOgniOperazione) {
    const Cantiere c;
    const auto vero = disco_vero(c.casa.string());
    Disco& disco = *vero;
    c.metti(kSalvata);
    std::vector<FileSalvato> file;
    ASSERT_EQ(raccogli(disco, "002", file), "");
    const std::string salvataggio = (c.casa / "s.tar.gz").string();
    ASSERT_EQ(scrivi_compresso(salvataggio, file), "");
    int uccisi = 0, detti = 0;
    for (int n = 1;; ++n, ++uccisi) {
        c.metti(kPrima);
        int stato = -1;
        const Sorte sorte = uccidi_prima_di(c.comando("restore", salvataggio), n, stato);
        if (sorte == Sorte::negato) GTEST_SKIP() << "no program can be watched here";
        const Foto dopo = c.foto();
        if (sorte == Sorte::finito) {
            EXPECT_EQ(stato, 0);
            EXPECT_EQ(dopo, kSalvata);
            break;
        }
        if (!ripristino_interrotto(disco).empty()) {
            ++detti;
            // Who opens the building now is told so, and no file of his appears.
            ASSERT_EQ(uccidi_prima_di(c.comando("batch", "002"), 100000, stato), Sorte::finito);
            ASSERT_EQ(stato, 2) << n;
            ASSERT_EQ(c.foto(), dopo) << n;
        } else {
            ASSERT_TRUE(dopo == kPrima || dopo == kSalvata)
                << "a mixture without a word before operation " << n;
        }
        ASSERT_EQ(riprendi_ripristino(disco), "") << n;
        const Foto ripreso = c.foto();
        ASSERT_TRUE(ripreso == kPrima || ripreso == kSalvata) << n;
        ASSERT_EQ(uccidi_prima_di(c.comando("restore", salvataggio), 100000, stato), Sorte::finito);
        ASSERT_EQ(stato, 0) << n;
        ASSERT_EQ(c.foto(), kSalvata) << n;
    }
    EXPECT_GT(uccisi, 30);
    EXPECT_GT(detti, 20);
}

}  // namespace
