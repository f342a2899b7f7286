// The batch itself, where a story cannot reach: scripts that are no text.
#include <gtest/gtest.h>

#include <sstream>

#include "ambra/batch.h"
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

TEST(Batch, ApreComeLaFogliaDellAlbero) {
    std::ostringstream eventi;
    EXPECT_EQ(corsa("open lumpgr\nopen lumftem\nopen mrvlay\n", eventi), 0);
    EXPECT_NE(eventi.str().find("{\"event\":\"open\",\"screen\":\"lumpgr\"}"), std::string::npos);
    for (const char* riga :
         {"open lumftea\n", "open luminca\n", "open lumincx\n", "open nessuno\n", "open\n"})
        EXPECT_EQ(corsa(riga, eventi), 2) << riga;
}

}  // namespace
