// The batch itself, where a story cannot reach: scripts that are no text.
#include <gtest/gtest.h>

#include <iostream>
#include <sstream>

#include "ambra/batch.h"
#include "qt/tutte.h"
#include "tests/supporto/disco_memoria.h"

using namespace ambra;

namespace {

// Runs a script on an empty drive, the events on standard error.
int corsa(const std::string& righe) {
    DiscoMemoria disco;
    std::istringstream script(righe);
    PiattaformaBatch piattaforma(script, std::cerr);
    Programma programma(disco, piattaforma, "7");
    registra_tutte(programma.schermi);
    programma.schermi.apri("vexoraf");
    return piattaforma.esegui(programma);
}

TEST(BatchDeathTest, ByteCheNonSonoTestoSonoUnoSbaglioComeGliAltri) {
    for (const char* riga : {"\xFF\n", "answer \xC3\n", "click vexoraf.\xE9\n", "show \xE9\n"})
        EXPECT_EXIT(corsa(riga), testing::ExitedWithCode(2), "\"event\":\"error\",\"line\":1");
}

}  // namespace
