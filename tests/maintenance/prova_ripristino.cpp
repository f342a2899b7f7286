// Restore: all files or none, whatever dies or refuses.
#include "tests/maintenance/stabile_ripristinato.h"
#include "tests/supporto/disco_guasto.h"

using namespace ambra;

namespace {

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

}  // namespace
