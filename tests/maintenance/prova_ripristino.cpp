// Restore: all files or none, whatever dies, refuses or comes in between.
#include <gtest/gtest.h>

#include <map>

#include "core/impostazioni.h"
#include "core/testo.h"
#include "maintenance/ripristino.h"
#include "maintenance/verifica.h"
#include "tests/supporto/disco_guasto.h"
#include "tests/supporto/disco_memoria.h"

using namespace ambra;

namespace {

using Foto = std::map<std::string, std::string>;

Foto foto(DiscoMemoria& d) {
    std::vector<std::string> nomi;
    d.elenca(kCartella, nomi);
    Foto f;
    for (const auto& n : nomi) f[n] = d.contenuto(kCartella + n);
    return f;
}

void metti(DiscoMemoria& d, const Foto& f) {
    for (const auto& [n, c] : f) d.contenuto(kCartella + n) = c;
}

// What the archive's folder holds of the archive itself, without what a broken restore leaves.
Foto pulita(Foto f) {
    std::erase_if(f, [](const auto& x) { return x.first.ends_with(".~~~"); });
    return f;
}

const Foto kSalvata = {{"lum002.cnd", "condomini"}, {"lum002.ftr", "fatture"},   {"lum002.for", "fornitori"},
                       {"lum002.srf", "indice"},    {"lum002.tfr", "contatori"}, {"lumora.pag", "pagamenti"},
                       {"lumora.tot", "stabili"},   {"vexoral.001", "{\\rtf}"}};
// After a year of work: files changed, one gone, one that the backup lacks.
const Foto kPrima = {{"lum002.cnd", "condomini"}, {"lum002.ftr", "fatture di più"}, {"lum002.for", "altri"},
                     {"lum002.$$$", "copia"},     {"lum002.tfr", "altri"},          {"lumora.pag", ""},
                     {"lumora.tot", "stabili"},   {"vexoral.001", "{\\rtf}"},       {"lum001.ftr", "vicino"}};

Foto dopo_il_ripristino() {
    Foto f = kSalvata;
    f["lum001.ftr"] = "vicino";
    return f;
}

class RipristinoProva : public testing::Test {
  protected:
    void SetUp() override {
        DiscoMemoria d;
        metti(d, kSalvata);
        ASSERT_EQ(raccogli(d, "002", file), "");
        metti(disco, kPrima);
    }
    std::string fai(Disco& d) { return ripristina(d, file, "002", "deposito-1"); }
    Foto deposito(DiscoMemoria& d) {
        std::vector<std::string> nomi;
        d.elenca(kCartella + "deposito-1", nomi);
        Foto f;
        for (const auto& n : nomi) f[n] = d.contenuto(kCartella + "deposito-1\\" + n);
        return f;
    }

    DiscoMemoria disco;
    std::vector<FileSalvato> file;
};

TEST_F(RipristinoProva, TuttoAlSuoPostoEQuelloDiPrimaInDisparte) {
    ASSERT_EQ(fai(disco), "");
    EXPECT_EQ(foto(disco), dopo_il_ripristino());
    Foto tolti = kPrima;
    tolti.erase("lum001.ftr");
    EXPECT_EQ(deposito(disco), tolti);
    EXPECT_EQ(ripristino_interrotto(disco), "");
}

TEST_F(RipristinoProva, UnDiscoCheRifiutaUnPassoLasciaTuttoComEraOLoDice) {
    int casi = 0, detti = 0;
    for (int quale = 0;; ++quale, ++casi) {
        DiscoMemoria qui;
        metti(qui, kPrima);
        DiscoGuasto guasto(qui);
        int n = 0;
        bool toccato = false;
        guasto.guasto = [&](Operazione op, std::string_view) {
            if (op == Operazione::in_uso || n++ != quale) return 0;
            toccato = true;
            return 61;
        };
        const std::string male = fai(guasto);
        if (!toccato) break;
        const bool riuscito = foto(qui) == dopo_il_ripristino();
        if (!ripristino_interrotto(qui).empty()) {
            ASSERT_NE(male, "") << quale;
            ++detti;
            ASSERT_EQ(riprendi_ripristino(qui), "") << quale;
            ASSERT_TRUE(foto(qui) == dopo_il_ripristino() || pulita(foto(qui)) == kPrima) << quale;
            continue;
        }
        ASSERT_TRUE(riuscito ? male.empty() : pulita(foto(qui)) == kPrima && !male.empty())
            << "refused step " << quale << ": " << male;
    }
    EXPECT_GT(casi, 100);
    EXPECT_LT(detti, casi / 2);
}

TEST_F(RipristinoProva, MortoInOgniPuntoPoiRipreso) {
    int morti = 0, finiti = 0;
    for (int quale = 0;; ++quale) {
        DiscoMemoria qui;
        metti(qui, kPrima);
        DiscoGuasto guasto(qui);
        int n = 0;
        bool morto = false;
        guasto.guasto = [&](Operazione, std::string_view) {
            morto = morto || n++ >= quale;
            return morto ? 57 : 0;
        };
        fai(guasto);
        const Foto qua = pulita(foto(qui));
        if (qua != kPrima && qua != dopo_il_ripristino()) {
            ASSERT_NE(ripristino_interrotto(qui), "") << "a mixture without a word at step " << quale;
        }
        ASSERT_EQ(riprendi_ripristino(qui), "");
        const Foto dopo = pulita(foto(qui));
        ASSERT_TRUE(dopo == kPrima || dopo == dopo_il_ripristino()) << "dead at step " << quale;
        ASSERT_EQ(ripristino_interrotto(qui), "");
        if (dopo != kPrima) ++finiti;
        if (!morto) break;
        ++morti;
    }
    EXPECT_GT(morti, 100);
    EXPECT_GT(finiti, 20);
}

TEST_F(RipristinoProva, MortoDueVolte) {
    // Dead at any step, and again at any step of the one that would have finished it.
    const auto muori = [](DiscoGuasto& g, int quale) {
        g.guasto = [quale, n = 0](Operazione, std::string_view) mutable { return n++ >= quale ? 57 : 0; };
    };
    for (int prima = 0; prima < 220; prima += 7)
        for (int dopo = 0; dopo < 120; dopo += 5) {
            DiscoMemoria qui;
            metti(qui, kPrima);
            DiscoGuasto uno(qui), due(qui);
            muori(uno, prima);
            fai(uno);
            muori(due, dopo);
            riprendi_ripristino(due);
            ASSERT_EQ(riprendi_ripristino(qui), "");
            const Foto ora = pulita(foto(qui));
            ASSERT_TRUE(ora == kPrima || ora == dopo_il_ripristino()) << prima << ", " << dopo;
        }
}

// The state between two renames: `lum002.ftr` is already aside, its new one not yet in.
void a_meta(DiscoMemoria& d, const std::vector<FileSalvato>& file) {
    DiscoGuasto guasto(d);
    bool morto = false;
    guasto.guasto = [&](Operazione op, std::string_view p) {
        morto = morto || (op == Operazione::sposta && p.ends_with("lum002.tfr"));
        return morto ? 57 : 0;
    };
    ripristina(guasto, file, "002", "deposito-1");
    ASSERT_FALSE(d.esiste(kCartella + "lum002.ftr"));
}

TEST_F(RipristinoProva, NelDepositoNonSiSostituisceNulla) {
    a_meta(disco, file);
    // A program that knows of no journal was opened meanwhile: it made the file that it missed.
    disco.contenuto(kCartella + "lum002.ftr") = "vuoto di un altro";
    ASSERT_EQ(riprendi_ripristino(disco), "");
    EXPECT_EQ(foto(disco), dopo_il_ripristino());
    EXPECT_EQ(deposito(disco)["lum002.ftr"], "fatture di più");
    EXPECT_EQ(deposito(disco)["lum002.ftr.2"], "vuoto di un altro");
}

TEST_F(RipristinoProva, QuelloCheNonSiPuoFinireSiDisfa) {
    a_meta(disco, file);
    disco.contenuto(kCartella + "lum002.ftr") = "vuoto di un altro";
    disco.elimina(kCartella + "lum002.srf.~~~");
    EXPECT_EQ(riprendi_ripristino(disco), "lum002.srf: il file nuovo manca");
    EXPECT_EQ(foto(disco), kPrima);
    EXPECT_EQ(deposito(disco)["lum002.ftr.2"], "vuoto di un altro");
}

TEST_F(RipristinoProva, UnFileCheNonSiApreNonEUnFileCheManca) {
    // What a disc says of a folder that it lost for a moment.
    DiscoGuasto guasto(disco);
    guasto.guasto = [](Operazione op, std::string_view p) {
        return op == Operazione::cosa_c_e && p.ends_with("lum002.ftr") ? 70 : 0;
    };
    EXPECT_EQ(fai(guasto), "lum002.ftr: permesso negato (errore 70)");
    ASSERT_NE(ripristino_interrotto(disco), "");
    EXPECT_EQ(riprendi_ripristino(disco), "");
    EXPECT_EQ(foto(disco), dopo_il_ripristino());
}

TEST_F(RipristinoProva, ChiTieneApertoUnFile) {
    EXPECT_EQ(aperto_da_altri(disco, "002"), "");
    DiscoGuasto guasto(disco);
    std::string quale;
    guasto.guasto = [&](Operazione op, std::string_view p) {
        return op == Operazione::in_uso && p == kCartella + quale ? 1 : 0;
    };
    for (const char* suo : {"lum002.ftr", "lum002.cnd", "lumora.tot"}) {
        quale = suo;
        EXPECT_EQ(aperto_da_altri(guasto, "002"), suo);
    }
    quale = "lum001.ftr";
    EXPECT_EQ(aperto_da_altri(guasto, "002"), "") << "another building's file is not touched";
    quale = "lum002.ftr";
    EXPECT_EQ(fai(guasto), "lum002.ftr: un altro programma lo tiene aperto");
    EXPECT_EQ(foto(disco), kPrima);
}

TEST_F(RipristinoProva, ChiLoApreUnIstantePrimaFaTornareIndietro) {
    DiscoGuasto guasto(disco);
    guasto.guasto = [&](Operazione op, std::string_view p) {
        return op == Operazione::in_uso && p == kCartella + "deposito-1\\lum002.ftr" ? 1 : 0;
    };
    EXPECT_EQ(fai(guasto), "lum002.ftr: un altro programma lo tiene aperto");
    EXPECT_EQ(foto(disco), kPrima);
}

TEST_F(RipristinoProva, IlProvvisorioDiUnAltraVoltaNonEDiIntralcio) {
    disco.contenuto(kCartella + "lum002.ftr.~~~") = "avanzo";
    ASSERT_EQ(fai(disco), "");
    EXPECT_EQ(foto(disco), dopo_il_ripristino());
}

TEST_F(RipristinoProva, UnGiornaleCheNonENostro) {
    for (const char* testo : {"..\\via\r\npronto\r\n", "d\r\n+autoexec.bat\r\npronto\r\n", "pronto\r\n",
                              "d\r\npronto\r\npronto\r\n"}) {
        disco.contenuto(kCartella + kGiornaleRipristino) = testo;
        EXPECT_NE(riprendi_ripristino(disco), "") << testo;
        EXPECT_NE(ripristino_interrotto(disco), "");
        EXPECT_NE(fai(disco), "");
        EXPECT_EQ(pulita(foto(disco)), kPrima);
    }
}

TEST_F(RipristinoProva, UnGiornaleTroncoEDiChiNonHaAncoraSpostatoNulla) {
    const std::string intero = "d\r\n-lum002.ftr\r\n+lum002.for\r\npronto\r\n";
    for (std::size_t n = 0; n < intero.size(); ++n) {
        disco.contenuto(kCartella + kGiornaleRipristino) = intero.substr(0, n);
        EXPECT_EQ(riprendi_ripristino(disco), "") << n;
        EXPECT_EQ(foto(disco), kPrima) << n;
    }
}

TEST_F(RipristinoProva, DueInsiemeSiEscludono) {
    // Before one step of a restore another program tries its own: one of the two does all, the other nothing.
    int respinti = 0;
    for (int quale = 0;; ++quale) {
        DiscoMemoria qui;
        metti(qui, kPrima);
        auto altro = qui.altro_programma();
        std::string suo;
        int n = 0;
        qui.prima_di = [&](Operazione, std::string_view) {
            if (n++ != quale) return;
            suo = riprendi_ripristino(altro);
            if (suo.empty()) suo = ripristina(altro, file, "002", "deposito-2");
        };
        const std::string male = fai(qui);
        qui.prima_di = nullptr;
        ASSERT_EQ(foto(qui), dopo_il_ripristino()) << quale << ": " << male << "; " << suo;
        if (suo == "un altro ripristino è in corso"_it) {
            ++respinti;
            ASSERT_EQ(male, "") << quale;
            ASSERT_EQ(deposito(qui)["lum002.ftr"], "fatture di più");
        }
        if (n <= quale) break;
    }
    EXPECT_GT(respinti, 80);
}

TEST_F(RipristinoProva, IlCheckNeParla) {
    disco.contenuto(kCartella + kGiornaleRipristino) = "d\r\n";
    bool detto = false;
    Verifica v(disco, [&](const Rilievo& r) { detto = detto || r.trovato == "un ripristino interrotto"; });
    v.globali();
    EXPECT_TRUE(detto);
}

}  // namespace
