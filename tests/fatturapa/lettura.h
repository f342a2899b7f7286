// What the reader makes of the bytes of one file.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "fatturapa/lettore.h"

namespace ambra::prova {

inline FileLetto leggi(const std::string& byte) {
    return fatturapa::Lettore().leggi(byte, "f.xml");
}

/// The only document of a file; a test that has none fails here.
inline FatturaLetta una(const std::string& byte) {
    FileLetto l = leggi(byte);
    EXPECT_EQ(l.fatture.size(), 1U) << (l.rifiutate.empty() ? "" : l.rifiutate[0].motivo);
    return l.fatture.empty() ? FatturaLetta() : l.fatture[0];
}

inline std::string motivo(const std::string& byte) {
    const FileLetto l = leggi(byte);
    EXPECT_TRUE(l.fatture.empty());
    return l.rifiutate.size() == 1 ? l.rifiutate[0].motivo : std::to_string(l.rifiutate.size()) + " rifiuti";
}

}  // namespace ambra::prova
