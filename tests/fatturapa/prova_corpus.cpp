// What the fuzzer of the reader found worth keeping.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "fatturapa/lettore.h"
#include "invoices/analisi.h"

using namespace ambra;

namespace {

TEST(Corpus, OgniFileDaDocumentiOUnRifiuto) {
    int letti = 0, documenti = 0;
    for (const auto& voce : std::filesystem::directory_iterator("tests/fuzz_corpus/fattura")) {
        std::ostringstream byte;
        byte << std::ifstream(voce.path(), std::ios::binary).rdbuf();
        const FileLetto l = fatturapa::Lettore().leggi(byte.str(), "f");
        EXPECT_FALSE(l.fatture.empty() && l.rifiutate.empty()) << voce.path();
        for (const FatturaLetta& f : l.fatture) {
            const Analisi a = analizza(f);
            EXPECT_LE(a.rate.size(), 4U) << voce.path();
            EXPECT_TRUE(!a.totale.in_misura() || a.totale >= Decimale()) << voce.path();
            ++documenti;
        }
        ++letti;
    }
    EXPECT_GT(letti, 9);
    EXPECT_GT(documenti, 9);
}

}  // namespace
