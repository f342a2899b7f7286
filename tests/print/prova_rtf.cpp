// The RTF reader: what several word processors write.
#include <gtest/gtest.h>

#include "tests/print/documento_rtf.h"

namespace ambra::rtf {
namespace {

TEST(Rtf, CaratteriEInsiemi) {
    struct Caso {
        const char* rtf;
        std::string testo;
    };
    const Caso casi[] = {
        {"{\\rtf1 a\\'e0b}",
         "a\xE0"
         "b"},
        {"{\\rtf1\\ansi\\ansicpg1250 \\'e0\\'e9}", "?\xE9"},
        {"{\\rtf1\\mac \\'8e}", "\xE9"},
        {"{\\rtf1\\pc \\'82}", "\xE9"},
        {"{\\rtf1 \\u8364?\\u8217 'x}", "\x80\x92x"},
        {"{\\rtf1\\uc0 \\u8364x}", "\x80x"},
        {"{\\rtf1\\uc2 \\u8364\\'3f\\'3fx}", "\x80x"},
        {"{\\rtf1\\uc1 \\u8364{}?x}", "\x80?x"},
        {"{\\rtf1 \\u-10179?\\u-8704?x}", "?x"},
        {"{\\rtf1 \\u1046?x}", "?x"},
        {"{\\rtf1{\\fonttbl{\\f0\\fcharset0 A;}{\\f1\\fcharset204 B;}{\\f2\\fcharset128 C;}}\\f1 \\'c0\\f0 "
         "\\'c0\\f2\\'93\\'fa x}",
         "?\xC0? x"},
        {"{\\rtf1{\\fonttbl{\\f1\\fcharset2 Symbol;}}{\\f1\\'b7} x}", "\x95 x"},
        {"{\\rtf1 a\\~b\\_c\\-d\\{\\}\\\\}",
         "a\xA0"
         "b-cd{}\\"},
        {"{\\rtf1 \\lquote a\\rquote\\ldblquote b\\rdblquote\\endash\\emdash\\bullet}",
         "\x91"
         "a\x92\x93"
         "b\x94\x96\x97\x95"},
        {"{\\rtf1 a\\tab b\\line c\\par d}", "a\tb\nc\nd"},
        {"{\\rtf1 a\r\nb\nc}", "abc"},
        {"{\\rtf1 a{\\v nascosto}b}", "ab"},
        {"{\\rtf1 a\\\nb}", "a\nb"},
    };
    for (const auto& c : casi) {
        EXPECT_EQ(piano(c.rtf), c.testo) << c.rtf;
        coerente(leggi(c.rtf));
    }
}

TEST(Rtf, DestinazioniDaSaltare) {
    EXPECT_EQ(piano("{\\rtf1{\\info{\\author X}}{\\*\\generator Y;}{\\stylesheet{\\s1 Normal;}}"
                    "{\\*\\ignota z{\\b w}}a{\\footnote n}b{\\*\\bkmkstart q}c}"),
              "abc");
    EXPECT_EQ(piano("{\\rtf1{\\field{\\*\\fldinst HYPERLINK \"x\"}{\\fldrslt qui}}!}"), "qui!");
    EXPECT_EQ(piano("{\\rtf1{\\object\\objemb{\\*\\objdata 00ff}{\\result visto}}}"), "visto");
    EXPECT_EQ(
        piano("{\\rtf1{\\shp{\\*\\shpinst{\\sp{\\sn a}{\\sv 1}}{\\shptxt casella\\par}}{\\shprslt no}}x}"),
        "casella\nx");
    EXPECT_EQ(piano("{\\rtf1{\\listtext\\f0 1.\\tab}uno\\par{\\pntext\\'b7\\tab}due{\\*\\pn x}}"),
              "1.\tuno\n\xB7\tdue");
}

TEST(Rtf, FormatiDeiCaratteri) {
    const Documento d = leggi(
        "{\\rtf1\\deff1{\\fonttbl{\\f0 Arial;}{\\f1\\froman Times New "
        "Roman;}}{\\colortbl;\\red255\\green1\\blue2;}"
        "\\f0\\fs20 a{\\b\\i\\ul\\strike b}\\cf1\\super c\\plain d\\b e\\b0 f}");
    coerente(d);
    EXPECT_EQ(formato(d, 0).carattere, "Arial");
    EXPECT_EQ(formato(d, 0).punti, 10);
    const auto& b = formato(d, 1);
    EXPECT_TRUE(b.grassetto && b.corsivo && b.sottolineato && b.barrato);
    EXPECT_EQ(formato(d, 2).colore, 0x0201FF);
    EXPECT_EQ(formato(d, 2).rialzo, 1);
    EXPECT_FALSE(formato(d, 2).grassetto);
    EXPECT_EQ(formato(d, 3).carattere, "Times New Roman");
    EXPECT_EQ(formato(d, 3).punti, 12);
    EXPECT_TRUE(formato(d, 4).grassetto);
    EXPECT_FALSE(formato(d, 5).grassetto);
}

TEST(Rtf, ParagrafiEFoglio) {
    const Documento d = leggi(
        "{\\rtf1\\paperw11906\\paperh16838\\margl1134\\margr1000\\margt900\\margb800\\deftab500"
        "\\pard\\qc\\li100\\ri200\\fi-300\\sb40\\sa50\\sl360\\slmult1\\tx700\\tqr\\tx9000\\tqdec\\tx9500 "
        "a\\par"
        "\\pard\\qj\\sl-280 b\\par\\page c\\par\\pagebb d}");
    coerente(d);
    EXPECT_EQ(d.foglio.larghezza, 11906);
    EXPECT_EQ(d.foglio.sotto, 800);
    EXPECT_EQ(d.passo_tabulazione, 500);
    const auto& a = paragrafo(d, 0);
    EXPECT_EQ(a.verso, Verso::centro);
    EXPECT_EQ(a.sinistra, 100);
    EXPECT_EQ(a.prima_riga, -300);
    EXPECT_EQ(a.sotto, 50);
    EXPECT_DOUBLE_EQ(a.interlinea_multipla, 1.5);
    ASSERT_EQ(a.tabulazioni.size(), 3u);
    EXPECT_EQ(a.tabulazioni[1].verso, Verso::destra);
    EXPECT_TRUE(a.tabulazioni[2].decimale);
    EXPECT_EQ(paragrafo(d, 1).interlinea, -280);
    EXPECT_EQ(paragrafo(d, 1).sinistra, 0);
    EXPECT_TRUE(paragrafo(d, 2).salto_prima);
    EXPECT_TRUE(paragrafo(d, 3).salto_prima);
    EXPECT_EQ(testo_piano(d), "a\nb\nc\nd");
}

TEST(Rtf, ASinistraDopoIlCentro) {
    const Documento d = leggi("{\\rtf1\\pard\\qc a\\par\\ql b\\par\\qr c\\par\\pard d}");
    EXPECT_EQ(paragrafo(d, 0).verso, Verso::centro);
    EXPECT_EQ(paragrafo(d, 1).verso, Verso::sinistra);
    EXPECT_EQ(paragrafo(d, 2).verso, Verso::destra);
    EXPECT_EQ(paragrafo(d, 3).verso, Verso::sinistra);
}

TEST(Rtf, Tabelle) {
    const Documento d = leggi(
        "{\\rtf1{\\colortbl;\\red0\\green128\\blue0;}prima\\par\\trowd\\trleft-"
        "70\\trgaph70\\clbrdrt\\brdrs\\brdrw15\\clcbpat1"
        "\\cellx3000\\clvmgf\\cellx6000\\pard\\intbl a\\par a2\\cell b\\cell\\row"
        "\\trowd\\cellx3000\\clvmrg\\cellx6000\\pard\\intbl c\\cell\\cell\\row\\pard dopo}");
    coerente(d);
    EXPECT_EQ(testo_piano(d), "prima\na\na2\tb\nc\t\ndopo");
    ASSERT_EQ(d.righe.size(), 2u);
    EXPECT_EQ(d.righe[0].sinistra, -70);
    EXPECT_EQ(d.righe[0].celle[0].sopra.spessore, 15);
    EXPECT_EQ(d.righe[0].celle[0].sfondo, 0x008000);
    EXPECT_TRUE(d.righe[1].celle[1].continua);
    EXPECT_EQ(d.paragrafi[1].riga, 0);
    EXPECT_EQ(d.paragrafi[2].cella, 0);
    EXPECT_EQ(d.paragrafi[3].cella, 1);
    EXPECT_EQ(d.paragrafi.back().riga, -1);
}

TEST(Rtf, RigheStorte) {
    // A row that is never closed, more texts than cells, cells that go backwards, no definition at all.
    for (const char* s :
         {"{\\rtf1\\trowd\\cellx3000\\pard\\intbl a\\cell b", "{\\rtf1\\intbl a\\cell b\\cell c\\row x}",
          "{\\rtf1\\trowd\\cellx5000\\cellx100\\cellx-9\\intbl a\\cell b\\cell c\\cell\\row}",
          "{\\rtf1\\row\\row\\cell\\row}",
          "{\\rtf1\\trowd\\cellx1\\clmrg\\cellx2\\intbl a\\cell b\\cell\\row x}"})
        coerente(leggi(s));
    EXPECT_EQ(piano("{\\rtf1\\trowd\\cellx3000\\pard\\intbl a\\cell b"), "a\tb");
}

TEST(Rtf, TestateEPiedi) {
    const Documento d = leggi(
        "{\\rtf1\\titlepg{\\header testa\\par}{\\headerf prima\\par}{\\footer pag. {\\field{\\*\\fldinst "
        "PAGE}"
        "{\\fldrslt 7}}\\par}corpo\\par\\sect{\\header altra\\par}fine}");
    coerente(d);
    EXPECT_EQ(testo_piano(d), "corpo\nfine\ntesta\nprima\npag. 7\n");
    EXPECT_TRUE(d.foglio.prima_diversa);
    ASSERT_EQ(d.parti.size(), 4u);
    EXPECT_EQ(formato(d, testo_piano(d).find('7')).campo, Campo::pagina);
}

TEST(Rtf, Immagini) {
    const Documento d = leggi(
        "{\\rtf1 a{\\*\\shppict{\\pict\\pngblip\\picwgoal1440\\pichgoal720\\picscalex50 89504E470d}}"
        "{\\nonshppict{\\pict\\wmetafile8 00}}{\\pict\\jpegblip\\bin5 \xFF\xD8\xFF}}}b}");
    coerente(d);
    ASSERT_EQ(d.immagini.size(), 2u);
    EXPECT_EQ(d.immagini[0]->byte, "\x89PNG\r");
    EXPECT_EQ(d.immagini[0]->larghezza, 720);
    EXPECT_EQ(d.immagini[1]->byte, "\xFF\xD8\xFF}}");
    EXPECT_EQ(testo_piano(d), "a  b");
}

// Text put into a holder that has none stands there as in any other.
}  // namespace
}  // namespace ambra::rtf
