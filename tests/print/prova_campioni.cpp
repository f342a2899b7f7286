// Marks in real documents: every program's file has those of its letter, and what replaces one looks like it.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>

#include "print/testoricco.h"

namespace ambra {
namespace {

namespace fs = std::filesystem;

const fs::path kCartella = "tests/campioni";
const std::string kValore = "D'AMICO \xE8 Figli S.n.c.";

std::string contenuto(const fs::path& p) {
    std::ostringstream s;
    s << std::ifstream(p, std::ios::binary).rdbuf();
    return s.str();
}

std::vector<fs::path> documenti() {
    std::vector<fs::path> tutti;
    for (const auto& f : fs::recursive_directory_iterator(kCartella))
        if (f.path().extension() == ".rtf") tutti.push_back(f.path());
    std::sort(tutti.begin(), tutti.end());
    return tutti;
}

std::set<std::string> marche(const std::string& testo) {
    static const std::regex kMarca(R"(\$\$\$2[5-7]\d\$\$\$)");
    std::set<std::string> codici;
    for (std::sregex_iterator i(testo.begin(), testo.end(), kMarca), fine; i != fine; ++i)
        codici.insert(i->str());
    return codici;
}

// The words that a word processor shows, without where they stand: "y: x word x word ...".
std::string parole_viste(const fs::path& p) {
    std::istringstream righe(contenuto(p));
    std::string tutte;
    for (std::string riga; std::getline(righe, riga);) {
        std::istringstream pezzi(riga);
        std::string y, x, parola;
        pezzi >> y;
        while (pezzi >> x >> parola) tutte += parola;
    }
    return tutte;
}

std::uint32_t formato(const rtf::Documento& d, std::size_t n) {
    for (const rtf::Tratto& t : d.tratti) {
        if (n < t.n) return t.formato;
        n -= t.n;
    }
    return 0;
}

TEST(Campioni, TreProgrammiAlmeno) {
    std::set<fs::path> programmi;
    for (const fs::path& p : documenti()) programmi.insert(p.parent_path());
    programmi.erase(kCartella / "a-mano");
    EXPECT_GE(programmi.size(), 3u);
}

// Also where a program divided a mark between runs of different formats.
TEST(Campioni, OgniProgrammaHaLeMarcheDellaLettera) {
    for (const fs::path& p : documenti()) {
        TestoRicco t;
        t.carica(contenuto(p));
        const auto viste = marche(parole_viste(fs::path(p).replace_extension(".atteso")));
        EXPECT_FALSE(viste.empty()) << p;
        EXPECT_EQ(marche(t.text()), viste) << p;
    }
}

TEST(Campioni, IlTestoSostituitoTieneIlFormatoDellaMarca) {
    for (const fs::path& p : documenti()) {
        TestoRicco t;
        t.carica(contenuto(p));
        for (const std::string& marca : marche(t.text())) {
            for (std::size_t da = t.text().find(marca); da != std::string::npos; da = t.text().find(marca)) {
                const std::uint32_t prima = formato(t.documento(), da);
                const std::size_t lungo = t.text().size();
                t.sel_start(da);
                t.sel_length(marca.size());
                t.sel_text(kValore);
                ASSERT_EQ(t.text().substr(da, kValore.size()), kValore) << p;
                ASSERT_EQ(t.text().size(), lungo - marca.size() + kValore.size()) << p;
                for (std::size_t i = 0; i < kValore.size(); ++i)
                    ASSERT_EQ(formato(t.documento(), da + i), prima) << p << ' ' << marca << ' ' << i;
            }
        }
        EXPECT_TRUE(marche(t.text()).empty()) << p;
    }
}

}  // namespace
}  // namespace ambra
