// The order of the index, against the archive's own algorithm carried out exchange by exchange on the file.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "core/testo.h"
#include "suppliers/ordinamento.h"
#include "tests/supporto/banco.h"
#include "tests/supporto/seme.h"

namespace ambra {
namespace {

// Record by record, two in memory, as the archive sorts.
void ordina_su_disco(FileDi<RecNome>& srf, int n) {
    int passo = n;
    for (int passata = 1; passata <= static_cast<int>(std::log2(n)); ++passata) {
        passo /= 2;
        for (int i = 1; i <= n - passo; ++i) {
            for (int j = i;;) {
                RecNome a{}, b{};
                leggi(srf, j, a);
                leggi(srf, j + passo, b);
                if (a.nome.grezzo() <= b.nome.grezzo()) break;
                scrivi(srf, j, b);
                scrivi(srf, j + passo, a);
                if (j <= passo) break;
                j -= passo;
            }
        }
    }
}

std::string indice_casuale(std::mt19937& caso, int record) {
    std::string tutto;
    for (int i = 1; i <= record; ++i) {
        RecNome r{};
        std::string nome;
        // Few different names, so that many are equal; some with bytes of every kind.
        const auto lungo = caso() % 3;
        for (unsigned k = 0; k <= lungo; ++k) nome += "AB\x01\xFF\xC0 Z"[caso() % 7];
        if (caso() % 4 == 0) nome = "FORNITORE COMUNE " + nome;
        r.nome = nome;
        r.numero = i;
        if (caso() % 9 == 0) r = RecNome{};
        tutto += byte_di(r);
    }
    return tutto;
}

TEST(Ordinamento, LasciaGliStessiByteDellAlgoritmoSuDisco) {
    const unsigned seme = seme_di_prova();
    SCOPED_TRACE("seed " + std::to_string(seme));
    std::mt19937 caso(seme);
    for (int giro = 0; giro < 400; ++giro) {
        const int n = 2 + static_cast<int>(caso() % 60);
        // The file may be shorter or longer than the count, and end in the middle of a record.
        std::string dati = indice_casuale(caso, n + static_cast<int>(caso() % 5));
        if (caso() % 3 == 0) dati.resize(caso() % (dati.size() + 1));
        DiscoMemoria disco;
        disco.contenuto("a") = disco.contenuto("b") = dati;
        Errore err;
        FileDi<RecNome> a(err, 1), b(err, 2);
        a.apri(disco, "a");
        b.apri(disco, "b");
        ordina_su_disco(a, n);
        std::vector<int> passate_viste;
        ordina_indice(b, n, [&](int p) { passate_viste.push_back(p); });
        ASSERT_EQ(disco.contenuto("a"), disco.contenuto("b")) << "n " << n << ", round " << giro;
        ASSERT_EQ(static_cast<int>(passate_viste.size()), passate(n));
        ASSERT_EQ(passate_viste.back(), passate(n));
    }
}

TEST(Ordinamento, PassateEIlLogaritmoIntero) {
    EXPECT_EQ(passate(-1), 0);
    EXPECT_EQ(passate(0), 0);
    EXPECT_EQ(passate(1), 0);
    EXPECT_EQ(passate(2), 1);
    EXPECT_EQ(passate(3), 1);
    EXPECT_EQ(passate(4), 2);
    EXPECT_EQ(passate(32767), 14);
}

TEST(Ordinamento, UnSoloNomeENessunoRestanoDovESono) {
    DiscoMemoria disco;
    Errore err;
    FileDi<RecNome> f(err, 1);
    f.apri(disco, "f");
    ordina_indice(f, 0, {});
    ordina_indice(f, 1, {});
    EXPECT_TRUE(disco.contenuto("f").empty());
    EXPECT_EQ(err.numero, 0);
}

TEST(Ordinamento, UnIndiceInOrdineNonVieneScritto) {
    DiscoMemoria memoria;
    DiscoGuasto disco(memoria);
    int scritture = 0;
    disco.guasto = [&](Operazione op, std::string_view) { return scritture += op == Operazione::scrivi, 0; };
    Errore err;
    FileDi<RecNome> f(err, 1);
    f.apri(disco, "f");
    RecNome r{};
    for (int i = 1; i <= 100; ++i) {
        r.nome = con_zeri(i, 5);
        r.numero = i;
        memoria.contenuto("f") += byte_di(r);
    }
    ordina_indice(f, 100, {});
    EXPECT_EQ(scritture, 0);
    std::swap_ranges(memoria.contenuto("f").begin(), memoria.contenuto("f").begin() + 42,
                     memoria.contenuto("f").begin() + 42);
    ordina_indice(f, 100, {});
    EXPECT_EQ(scritture, 1);
}

TEST(Ordinamento, UnGuastoDelDiscoLasciaLIndiceComEra) {
    DiscoMemoria memoria;
    DiscoGuasto disco(memoria);
    RecNome r{};
    for (int i = 1; i <= 5; ++i) {
        r.nome = con_zeri(9 - i, 5);
        memoria.contenuto("f") += byte_di(r);
    }
    const std::string prima = memoria.contenuto("f");
    for (const auto guasta : {Operazione::leggi, Operazione::scrivi}) {
        disco.guasto = [guasta](Operazione op, std::string_view) {
            return op == guasta ? errore::dispositivo : 0;
        };
        Errore err;
        FileDi<RecNome> f(err, 1);
        f.apri(disco, "f");
        ordina_indice(f, 5, {});
        EXPECT_EQ(err.numero, errore::dispositivo) << static_cast<int>(guasta);
        EXPECT_EQ(memoria.contenuto("f"), prima) << static_cast<int>(guasta);
    }
}

TEST(Ordinamento, LIndiceRifattoTieneNumeriEMarchi) {
    Banco b;
    auto morto = fornitore_vuoto("\xFFmorto");
    morto.cancellata = 1;
    auto quasi = fornitore_vuoto("quasi");
    quasi.cancellata = 2;  // a mark of its own kind: not the one that is told
    b.fornitori({fornitore_vuoto("zeta \xE8"), morto, quasi});
    b.avvia();
    std::vector<int> visti;
    rifai_indice(b.prog.arc, 4, fornitore_vuoto(), [&](int i) { visti.push_back(i); });
    EXPECT_EQ(visti, (std::vector<int>{1, 2, 3, 4}));
    RecNome atteso[4]{};
    atteso[0].nome = "ZETA \xC8";
    atteso[1].nome = "\xFF\xFFMORTO";
    atteso[2].nome = "QUASI";
    atteso[3].nome = "";
    std::string voluto;
    for (int i = 0; i < 4; ++i) {
        atteso[i].numero = i + 1;
        voluto += byte_di(atteso[i]);
    }
    EXPECT_EQ(b.file("srf"), voluto);
}

}  // namespace
}  // namespace ambra
