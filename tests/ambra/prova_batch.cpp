// The batch itself, where a story cannot reach: scripts that are no text.
#include <gtest/gtest.h>

#include <ctime>
#include <sstream>

#include "ambra/batch.h"
#include "ambra/stato_json.h"
#include "core/testo.h"
#include "qt/tutte.h"
#include "tests/supporto/disco_memoria.h"

using namespace ambra;

namespace {

// Runs a script on an empty drive and gives its exit status.
int corsa(const std::string& righe, std::ostream& eventi) {
    DiscoMemoria disco;
    std::istringstream script(righe);
    PiattaformaBatch piattaforma(script, eventi);
    Programma programma(disco, piattaforma, "7");
    registra_tutte(programma.schermi);
    programma.schermi.apri("vexoraf");
    return piattaforma.esegui(programma);
}

TEST(Batch, ByteCheNonSonoTestoSonoUnoSbaglioComeGliAltri) {
    for (const char* riga : {"\xFF\n", "answer \xC3\n", "click vexoraf.\xE9\n", "show \xE9\n"}) {
        std::ostringstream eventi;
        EXPECT_EQ(corsa(riga, eventi), 2);
        EXPECT_NE(eventi.str().find("\"event\":\"error\",\"line\":1"), std::string::npos) << eventi.str();
    }
}

TEST(Batch, UnNumeroSmisuratoNonEUnNumero) {
    for (const char* riga : {"shell 99999999999999\n", "shell -99999999999999\n", "shell 3.\x30x\n"}) {
        std::ostringstream eventi;
        EXPECT_EQ(corsa(riga, eventi), 2) << riga;
        EXPECT_NE(eventi.str().find("not a number"), std::string::npos) << eventi.str();
    }
}

TEST(Batch, ApreComeLaFogliaDellAlbero) {
    std::ostringstream eventi;
    EXPECT_EQ(corsa("open lumpgr\nopen lumftem\nopen mrvlay\n", eventi), 0);
    EXPECT_NE(eventi.str().find("{\"event\":\"open\",\"screen\":\"lumpgr\"}"), std::string::npos);
    for (const char* riga :
         {"open lumftea\n", "open luminca\n", "open lumincx\n", "open nessuno\n", "open\n"})
        EXPECT_EQ(corsa(riga, eventi), 2) << riga;
}

TEST(Batch, CsvDiCioCheNonEUnaGrigliaEUnoSbaglio) {
    const std::pair<const char*, const char*> casi[] = {
        {"csv nessuno.elenco /tmp/x.csv\n", "unknown screen: nessuno.elenco"},
        {"csv vexoraf.nessuno /tmp/x.csv\n", "unknown control: vexoraf.nessuno"},
        {"csv vexoraf.indice /tmp/x.csv\n", "not that kind of control: vexoraf.indice"},
        {"csv vexoraf.elenco\n", "cannot be written: "},
        {"csv vexoraf.elenco /non/esiste/x.csv\n", "cannot be written: /non/esiste/x.csv: "},
    };
    for (const auto& [riga, detto] : casi) {
        std::ostringstream eventi;
        EXPECT_EQ(corsa(riga, eventi), 2) << riga;
        EXPECT_NE(eventi.str().find(std::string("\"line\":1,\"text\":\"") + detto), std::string::npos)
            << eventi.str();
    }
}

TEST(Batch, LaGrigliaInJson) {
    Griglia g;
    g.colonne({{"A", 100}, {"B", 0, Allineamento::destra}});
    g.aggiungi({"citt\xE0", "1"});
    g.aggiungi({"\"", ""});
    g.colora(2, 0, 255);
    g.colora(1, 1, 0);
    g.colora(1, 0, 7);
    EXPECT_EQ(json_controllo(g).dump(),
              "{\"kind\":\"grid\",\"visible\":true,\"enabled\":true,"
              "\"columns\":[{\"heading\":\"A\",\"width\":100,\"align\":\"left\"},"
              "{\"heading\":\"B\",\"width\":0,\"align\":\"right\"}],"
              "\"rows\":[[\"citt\xC3\xA0\",\"1\"],[\"\\\"\",\"\"]],"
              "\"colours\":{\"1,0\":7,\"1,1\":0,\"2,0\":255},\"top\":1}");
}

// With a search for each colour among those before this takes a minute.
TEST(Batch, UnaListaLungaSiMostraInUnSoffio) {
    Griglia g;
    g.colonne({{"A", 100}, {"B", 100}, {"C", 100}});
    for (int r = 1; r <= 30000; ++r) {
        g.aggiungi({"a", "b", "c"});
        for (int c = 0; c < 3; ++c) g.colora(r, c, r);
    }
    const std::clock_t da = std::clock();  // of this process: a busy machine is no fault of the list
    EXPECT_EQ(json_controllo(g)["colours"].size(), 90000u);
    EXPECT_LT(std::clock() - da, 10 * CLOCKS_PER_SEC);
}

}  // namespace
