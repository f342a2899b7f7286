// The watchman: the demo archive is clean, nothing is ever written, what cannot be read or is rubbish brings
// nobody down.
#include <random>

#include "tests/maintenance/archivio_check.h"
#include "tests/supporto/disco_guasto.h"

using namespace ambra;

namespace {

TEST_F(Check, DemoPulito) {
    const Giro g = verifica(disco);
    EXPECT_EQ(g.stato, 0) << g.elenco();
    EXPECT_TRUE(g.rilievi.empty());
}

TEST_F(Check, NonScriveMai) {
    DiscoGuasto spia(disco);
    spia.guasto = [](Operazione op, std::string_view dove) {
        EXPECT_TRUE(op == Operazione::apri || op == Operazione::leggi || op == Operazione::leggi_tutto ||
                    op == Operazione::cosa_c_e || op == Operazione::elenca)
            << static_cast<int>(op) << dove;
        return 0;
    };
    std::vector<std::string> prima, dopo;
    disco.elenca(kCartella, prima);
    verifica(spia);
    disco.elenca(kCartella, dopo);
    EXPECT_EQ(prima, dopo);
}

TEST_F(Check, QuelloCheNonSiLegge) {
    for (const char* nome : {"lum001.ftr", "lum002.for", "lum003.pia", "lumora.tot", "lumora.pag"}) {
        DiscoGuasto guasto(disco);
        guasto.guasto = [&](Operazione op, std::string_view dove) {
            return dove == kCartella + nome && (op == Operazione::leggi || op == Operazione::leggi_tutto) ? 57
                                                                                                          : 0;
        };
        EXPECT_EQ(verifica(guasto).stato, 2) << nome;
    }
    DiscoGuasto guasto(disco);
    guasto.guasto = [](Operazione op, std::string_view) { return op == Operazione::elenca ? 76 : 0; };
    EXPECT_EQ(verifica(guasto).stato, 2);
}

TEST_F(Check, UnoStabileMaiApertoNonERotto) {
    for (const char* e : {"tfr", "for", "srf", "ftr"}) disco.elimina(kCartella + "lum002." + e);
    const Giro g = verifica(disco);
    EXPECT_EQ(g.stato, 0) << g.elenco();
}

TEST_F(Check, RecordOltreIlContatoreCiPossonoStare) {
    file("lum001.ftr") += std::string(3 * sizeof(RecFattura), '\xEE');
    EXPECT_EQ(verifica(disco).stato, 0);
}

TEST_F(Check, OgniFileTagliatoACasoTrovato) {
    std::mt19937 caso(11);
    for (const char* e : {"for", "srf", "tot", "cnd", "cn2", "cns", "pia", "mov", "tab", "ftr"}) {
        const std::string nome = std::string("lum001.") + e;
        const std::string prima = file(nome);
        for (int giro = 0; giro < 8; ++giro) {
            file(nome) =
                prima.substr(0, std::uniform_int_distribution<std::size_t>(0, prima.size() - 1400)(caso) *
                                    (std::string_view(e) == "tot" ? 0 : 1));
            EXPECT_EQ(verifica(disco).stato, 1) << nome << " cut to " << file(nome).size();
        }
        file(nome) = prima;
    }
}

TEST_F(Check, ByteACasoNonFannoCadere) {
    std::mt19937 caso(12);
    std::vector<std::string> nomi;
    disco.elenca(kCartella, nomi);
    for (const auto& n : nomi) {
        const std::string prima = file(n);
        for (char& c : file(n)) c = static_cast<char>(std::uniform_int_distribution<>(0, 255)(caso));
        verifica(disco);
        file(n) = prima;
    }
}

TEST_F(Check, NomiDeiFile) {
    // The disc in memory minds no case, so this looks at the real one's way of telling names.
    struct Maiuscolo : DiscoMemoria {
        int elenca(std::string_view, std::vector<std::string>& nomi) override {
            nomi = {"LUM001.FOR", "lum001.for", "lum001.tfr"};
            return 0;
        }
    } d;
    std::vector<Rilievo> r;
    Verifica v(d, [&](const Rilievo& x) { r.push_back(x); });
    v.globali();
    ASSERT_GE(r.size(), 2u);
    EXPECT_EQ(r[0].trovato, "LUM001.FOR");
    EXPECT_EQ(r[0].gravita, Gravita::avviso);
    EXPECT_EQ(r[1].trovato, "due file con questo nome");
    EXPECT_EQ(r[1].gravita, Gravita::errore);
}

}  // namespace
