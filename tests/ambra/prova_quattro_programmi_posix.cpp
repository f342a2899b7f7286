// Four real programs at once on one archive of the real disc: nothing of anybody's work is lost.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cmath>
#include <set>
#include <sstream>

#include "ambra/batch.h"
#include "bench/cantiere.h"
#include "maintenance/verifica.h"
#include "qt/tutte.h"
#include "records/movimento.h"
#include "tests/supporto/drive_prova.h"

using namespace ambra;

namespace {

constexpr int kProgrammi = 4, kVolte = 100;

// One of everything so many times: a document with its charge, and a payment with its charge.
std::string script(int programma) {
    std::string s;
    for (int i = 0; i < kVolte; ++i) {
        const std::string numero = std::to_string(programma) + "-" + std::to_string(i);
        s += "click vexoraf.command3d2(2)\nclick lumftem.b_ins\ntype lumftea.Text2(0) " + numero +
             "\ntype lumftea.text1(0) 03/05/2024\ntype lumftea.impon(0) 100\nanswer yes\n"
             "click lumftea.command3d1(0)\nclick lumincx.b_fine(1)\n"
             "pick vexoraf.elenco 1 9\ntype luminca.dver(0) 04/05/2024\ntype luminca.ver(0) 1\nanswer yes\n"
             "click luminca.conferma\nclick lumincx.b_fine(1)\n";
    }
    return s;
}

int lavora(const std::string& radice, int programma) {
    const auto vero = disco_vero(radice);
    DiscoAttento disco(*vero);
    std::istringstream righe(script(programma));
    std::ostringstream eventi;
    PiattaformaBatch piattaforma(righe, eventi);
    disco.avviso = [&](const Guasto& g) { piattaforma.guasto(g); };
    Programma prog(disco, piattaforma, "1");
    registra_tutte(prog.schermi);
    prog.schermi.apri("vexoraf");
    const int stato = piattaforma.esegui(prog);
    return eventi.str().find("Attenzione") == std::string::npos ? stato : 9;
}

template <class R>
std::vector<R> record_di(const std::string& byte) {
    std::vector<R> r(byte.size() / sizeof(R));
    std::memcpy(r.data(), byte.data(), r.size() * sizeof(R));
    return r;
}

void apparecchia(const std::string& radice) {
    const auto disco = disco_vero(radice);
    cantiere::stabile(*disco, 10);
    RecStabile s{};
    s.nome = "CONDOMINIO ROSA";
    ASSERT_EQ(disco->scrivi_tutto(kCartella + "lumora.tot", {reinterpret_cast<const char*>(&s), sizeof s}),
              0);
    const RecStabile2 s2{};
    ASSERT_EQ(disco->scrivi_tutto(kCartella + "lumora.tt2", {reinterpret_cast<const char*>(&s2), sizeof s2}),
              0);
    RecFattura f{};
    f.numfor = 1;
    f.numdoc = "GROSSA";
    f.datadoc = f.datareg = "20240102";
    f.impon[0] = f.sca[0] = 100000;
    f.dsca[0] = "31012024";
    f.addebita = f.riporta = "0";
    ASSERT_EQ(disco->scrivi_tutto(nome_file("001", "ftr"), {reinterpret_cast<const char*>(&f), sizeof f}), 0);
    std::string contatori;
    ASSERT_EQ(disco->leggi_tutto(nome_file("001", "tfr"), contatori), 0);
    contatori[sizeof(RecTotali)] = 1;
    ASSERT_EQ(disco->scrivi_tutto(nome_file("001", "tfr"), contatori), 0);
}

std::vector<std::string> rilievi(const std::string& radice) {
    const auto disco = disco_vero(radice);
    std::vector<std::string> r;
    Verifica v(*disco, [&r](const Rilievo& x) {
        r.push_back(x.file + " " + std::to_string(x.record) + " " + x.campo + ": " + x.trovato);
    });
    v.stabile("001");
    return r;
}

TEST(QuattroProgrammi, NienteVaPerduto) {
    const DriveProva drive;
    const std::string radice = drive.radice.string();
    apparecchia(radice);
    const auto prima = rilievi(radice);
    std::vector<pid_t> figli;
    for (int p = 1; p <= kProgrammi; ++p) {
        figli.push_back(::fork());
        ASSERT_NE(figli.back(), -1);
        if (figli.back() == 0) ::_exit(lavora(radice, p));
    }
    for (const pid_t figlio : figli) {
        int stato = 0;
        ASSERT_EQ(::waitpid(figlio, &stato, 0), figlio);
        EXPECT_TRUE(WIFEXITED(stato));
        EXPECT_EQ(WEXITSTATUS(stato), 0);
    }

    constexpr int kTutte = kProgrammi * kVolte;
    const auto contatori = record_di<RecTotali>(drive.byte("lum001.tfr"));
    const auto documenti = record_di<RecFattura>(drive.byte("lum001.ftr"));
    EXPECT_EQ(contatori[1].parola[0], kTutte + 1);
    ASSERT_EQ(documenti.size(), std::size_t{kTutte + 1});
    EXPECT_EQ(documenti[0].ver[0], kTutte) << "each payment of 1";
    std::set<std::string> numeri;
    for (const RecFattura& f : documenti) numeri.insert(std::string(f.numdoc.rifilato()));
    EXPECT_EQ(numeri.size(), documenti.size()) << "each document once";

    const auto totali = record_di<RecTotaliLedger>(drive.byte("lum001.tot"));
    const auto movimenti = record_di<RecMovimento>(drive.byte("lum001.mov"));
    const auto conti = record_di<RecConto>(drive.byte("lum001.pia"));
    EXPECT_EQ(totali[0].tmovimenti, 2 * kTutte);
    ASSERT_EQ(movimenti.size(), std::size_t{2 * kTutte});
    double somma = 0;
    for (const RecMovimento& m : movimenti) somma += m.mimporto;
    EXPECT_NEAR(conti[0].csaldo, somma, 1e-6) << "the balance is that of the movements";
    EXPECT_NEAR(conti[kBaseContropartite].csaldo, -somma, 1e-6);
    EXPECT_NEAR(somma, kTutte * (1 + 102.0), 1e-6);

    EXPECT_EQ(rilievi(radice), prima) << "the check finds nothing new";
}

}  // namespace
