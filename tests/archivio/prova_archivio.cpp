// Opening a building: the names of its files, the order of opening, and the reach of the error number.
#include <gtest/gtest.h>

#include <array>

#include "archivio/archivio.h"
#include "core/impostazioni.h"
#include "tests/supporto/banco.h"
#include "tests/supporto/disco_guasto.h"
#include "tests/supporto/disco_memoria.h"

using namespace ambra;

namespace {

struct Apertura1 {
    DiscoMemoria memoria;
    DiscoGuasto disco{memoria};
    Errore err;
    Archivio arc{err};
    RecStabile uno{};
    RecStabile2 due{};

    void apri(const std::string& nnn = "007") { apriarchivi(disco, arc, nnn, uno, due); }
};

TEST(Archivio, NnnDalComando) {
    const struct {
        const char *comando, *nnn;
    } casi[] = {{"7", "007"}, {" 12 ", "012"}, {"1234", "234"}, {"999", "999"}, {"  7 ", "007"}};
    for (const auto& c : casi) EXPECT_EQ(nnn_di(c.comando), c.nnn);
}

TEST(Archivio, PrimaCorsaFaICinqueContatori) {
    Apertura1 a;
    a.apri();
    EXPECT_EQ(a.memoria.contenuto(nome_file("007", "tfr")), std::string(140, '\0'));
    for (const char* e : {"for", "srf", "ftr", "tot", "cnd", "cns", "pia", "mov", "cn2"}) {
        EXPECT_TRUE(a.memoria.esiste(nome_file("007", e))) << e;
        EXPECT_EQ(a.memoria.contenuto(nome_file("007", e)), "") << e;
    }
}

TEST(Archivio, ContatoriPresentiNonSiToccano) {
    Apertura1 a;
    a.memoria.contenuto(nome_file("007", "tfr")) = std::string(140, '\x01');
    a.apri();
    EXPECT_EQ(a.memoria.contenuto(nome_file("007", "tfr")), std::string(140, '\x01'));
    EXPECT_EQ(a.err.numero, 0);
}

TEST(Archivio, OgniErroreDiAperturaAzzeraIContatori) {
    for (const char* e :
         {"lumora.tot", "lumora.tt2", "tot", "cnd", "cns", "pia", "mov", "cn2", "for", "srf", "ftr"}) {
        Apertura1 a;
        a.memoria.contenuto(nome_file("007", "tfr")) = std::string(140, '\x01');
        const std::string nome = std::string(e).size() > 3 ? kCartella + e : nome_file("007", e);
        a.disco.guasto = [&](Operazione operazione, std::string_view percorso) {
            return operazione == Operazione::apri && percorso == nome ? errore::permesso_negato : 0;
        };
        a.apri();
        EXPECT_EQ(a.memoria.contenuto(nome_file("007", "tfr")), std::string(140, '\0')) << e;
    }
}

TEST(Archivio, OrdineDiApertura) {
    Apertura1 a;
    std::vector<std::string> aperti;
    a.disco.guasto = [&](Operazione operazione, std::string_view percorso) {
        if (operazione == Operazione::apri) aperti.emplace_back(percorso.substr(kCartella.size()));
        return 0;
    };
    a.memoria.contenuto(nome_file("012", "tfr"));
    a.apri("012");
    const std::vector<std::string> voluto = {
        "lumora.tot", "lumora.tt2", "lum012.tot", "lum012.cnd", "lum012.cns", "lum012.pia", "lum012.mov",
        "lum012.cn2", "lum012.tfr", "lum012.tfr", "lum012.for", "lum012.srf", "lum012.ftr"};
    EXPECT_EQ(aperti, voluto);
}

TEST(Archivio, LeggeIlRecordDelSuoNumero) {
    Apertura1 a;
    std::string& tot = a.memoria.contenuto(kCartella + "lumora.tot");
    tot = std::string(11 * 418, 'x') + std::string(418, 'R');
    a.apri("012");
    EXPECT_EQ(byte_di(a.uno).front(), 'R');
    EXPECT_EQ(byte_di(a.uno).back(), 'R');
}

TEST(Archivio, OltreLaFineTuttoZero) {
    Apertura1 a;
    a.memoria.contenuto(kCartella + "lumora.tot") = std::string(100, 'x');  // cut in the middle of record 1
    a.apri("001");
    EXPECT_EQ(byte_di(a.uno)[99], 'x');
    EXPECT_EQ(byte_di(a.uno)[100], '\0');
}

}  // namespace
