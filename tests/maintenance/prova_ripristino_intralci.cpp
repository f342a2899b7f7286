// What a restore finds in its way: files open elsewhere, a journal of others, another restore.
#include "maintenance/verifica.h"
#include "tests/maintenance/stabile_ripristinato.h"
#include "tests/supporto/disco_guasto.h"

using namespace ambra;

namespace {

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
