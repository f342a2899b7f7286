// The files of a building's ledger, before and after.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "tests/ledger/tavolo_ledger.h"

namespace ambra {

inline const char* const kFileContabili[] = {"mov", "tot", "pia", "cnd", "cn2", "cns"};

inline std::map<std::string, std::string> fotografia(TavoloLedger& t) {
    std::map<std::string, std::string> r;
    for (const char* f : kFileContabili) r[f] = t.file(f);
    return r;
}

/// What a posting may never touch, whatever fails.
inline void aspetta_byte_altrui(TavoloLedger& t, std::map<std::string, std::string> prima) {
    EXPECT_EQ(t.file("cn2"), prima["cn2"]);
    EXPECT_EQ(t.file("cns"), prima["cns"]);
    const auto conto = [](RecConto& c) { c.csaldo = 0; };
    EXPECT_EQ(senza<RecConto>(t.file("pia"), conto), senza<RecConto>(prima["pia"], conto));
    const auto condomino = [](RecCondomino& c) { c.dquota = c.daddebiti = 0; };
    EXPECT_EQ(senza<RecCondomino>(t.file("cnd"), condomino), senza<RecCondomino>(prima["cnd"], condomino));
    const auto totali = [](RecTotaliLedger& c) { c.tmovimenti = 0; };
    EXPECT_EQ(senza<RecTotaliLedger>(t.file("tot"), totali), senza<RecTotaliLedger>(prima["tot"], totali));
    EXPECT_EQ(t.file("mov").substr(0, prima["mov"].size()), prima["mov"]);
}

}  // namespace ambra
