// The RTF reader on what is no letter, is cut short, or was made to break it.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "tests/print/documento_rtf.h"

namespace ambra::rtf {
namespace {

TEST(RtfGuasti, NonRtf) {
    EXPECT_EQ(piano(""), "");
    EXPECT_EQ(piano("uno\r\ndue\rtre\nquattro"), "uno\ndue\ntre\nquattro");
    EXPECT_EQ(piano("\xEF\xBB\xBF"
                    "citt\xC3\xA0"),
              "citt\xE0");
    EXPECT_EQ(piano("{\\b no}"), "{\\b no}");
}

TEST(RtfGuasti, OgniTaglioSiLegge) {
    const std::string tutto =
        "{\\rtf1\\ansi{\\fonttbl{\\f0\\fcharset0 Arial;}}{\\colortbl;\\red1\\green2\\blue3;}{\\header "
        "t\\par}\\f0 a\\'e0\\u8364?"
        "\\trowd\\clbrdrt\\brdrs\\cellx100\\intbl x\\cell\\row\\pard{\\pict\\pngblip "
        "8950}{\\field{\\*\\fldinst PAGE}"
        "{\\fldrslt 1}}\\bin3 }}}fine\\par}";
    for (std::size_t n = 0; n <= tutto.size(); ++n) coerente(leggi(std::string_view(tutto).substr(0, n)));
}

TEST(RtfGuasti, Annidamento) {
    for (const std::size_t n : {10000u, 30000u}) {
        const std::string s = "{\\rtf1 a" + std::string(n, '{') + "\\b b" + std::string(n, '}') + "c}";
        EXPECT_EQ(piano(s), "abc");
        EXPECT_EQ(piano(s.substr(0, s.find("b b") + 3)), "ab");
    }
    EXPECT_EQ(piano("{\\rtf1 a}}}}}b"), "a");
}

// Fifty megabytes where the compiler has optimised; a build for the debugger, ten times slower, takes a
// tenth.
#ifdef __OPTIMIZE__
constexpr std::size_t kGrande = 50'000'000;
#else
constexpr std::size_t kGrande = 5'000'000;
#endif

TEST(RtfGuasti, CinquantaMegabyte) {
    std::string s = "{\\rtf1 $$$251$$$";
    s.reserve(kGrande + 100);
    while (s.size() < kGrande) s += "\\par {\\b testo} $$$251$$$ lungo abbastanza da contare";
    TestoRicco t;
    t.carica(s);
    EXPECT_GT(t.sostituisci("$$$251$$$", "ROSSI"), kGrande / 60);
    coerente(t.documento());
}

// Every file that once broke the reader, and the seeds of its fuzzer.
TEST(RtfGuasti, RaccoltaDelFuzzer) {
    int quanti = 0;
    for (const auto& voce : std::filesystem::directory_iterator("tests/fuzz_corpus/rtf")) {
        std::ifstream f(voce.path(), std::ios::binary);
        std::ostringstream s;
        s << f.rdbuf();
        coerente(leggi(s.str()));
        ++quanti;
    }
    EXPECT_GT(quanti, 3);
}

}  // namespace
}  // namespace ambra::rtf
