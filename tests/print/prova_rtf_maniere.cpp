// Manners of word processors: the same thing is told in many ways, and a few things are told to older readers
// only.
#include <gtest/gtest.h>

#include "tests/print/documento_rtf.h"

namespace ambra::rtf {
namespace {

const std::string kTesta =
    R"({\rtf1\ansi\deff0{\fonttbl{\f0\fswiss Arial;}{\f1\froman Times New Roman;}{\f2\fcharset2 Symbol;}})"
    R"({\colortbl;\red255\green0\blue0;}{\stylesheet{\s0\f1\fs20 Base;}{\s1\sbasedon0\b\f0 Figlio;}{\*\cs9\fs60 C;}})";

Documento documento(const std::string& s) {
    return leggi(kTesta + s + "}");
}

TEST(RtfManiere, Etichette) {
    struct Caso {
        const char* rtf;
        const char* testo;
    };
    const Caso casi[] = {
        {R"({\listtext\pard\plain  \bullet\tab}uno\par)", "\x95\tuno\n"},
        {R"({\listtext\pard\plain \tab}titolo\par)", "titolo\n"},
        {R"({\pntext\f2\'B7\tab}uno\par)", "\x95\tuno\n"},
        {R"({\listtext 1.\tab}\par dopo\par)", "1.\t\ndopo\n"},
        // What was left to be counted is counted, list by list.
        {R"({\listtext  \tab}\pard{\*\pn\pnstart3\pndec{\pntxtb (}{\pntxta )}}\ls1 a\par)"
         R"({\listtext  \tab}\pard{\*\pn\pnstart3\pndec{\pntxtb (}{\pntxta )}}\ls1 b\par)"
         R"({\listtext  \tab}\pard{\*\pn\pnstart1\pnlcltr{\pntxta .}}\ls2 c\par)",
         "(3)\ta\n(4)\tb\na.\tc\n"},
        {R"({\listtext  \tab}\pard{\*\pn\pnlvlblt{\pntxtb\bullet}}a\par)", "\x95\ta\n"},
    };
    for (const Caso& c : casi) EXPECT_EQ(testo_piano(documento(c.rtf)), c.testo) << c.rtf;
}

// A label looks like its text unless it tells a face and size of its own; never like a symbol face.
TEST(RtfManiere, FormatoDelleEtichette) {
    const auto d = documento(R"({\listtext\pard\plain 1.\tab}\pard\plain\f1\fs16 testo\par)");
    EXPECT_EQ(formato(d, 0).punti, 8);
    EXPECT_EQ(formato(d, 0).carattere, "Times New Roman");
    const auto suo = documento(R"({\listtext\pard\plain\f2\fs40 \'b7\tab}\pard\plain\f1\fs16 testo\par)");
    EXPECT_EQ(formato(suo, 0).punti, 20);
    EXPECT_EQ(formato(suo, 0).carattere, "Arial");
}

// Face and size that a style has from another one are not always told with the text; its own always are.
TEST(RtfManiere, StiliCheRiposanoSuAltri) {
    const auto d = documento(R"(\pard\plain\s1 a\par\pard\plain\s1\fs30 b\par\pard\plain\s0 c\par)");
    EXPECT_EQ(formato(d, 0).punti, 10);
    EXPECT_FALSE(formato(d, 0).grassetto);
    EXPECT_EQ(formato(d, 2).punti, 15);
    EXPECT_EQ(formato(d, 4).punti, 12);
}

TEST(RtfManiere, SaltiESezioni) {
    struct Caso {
        const char* rtf;
        std::size_t paragrafi;
        std::vector<std::size_t> saltano;
    };
    const Caso casi[] = {
        {R"(a\par\page b\par)", 2, {1}},
        {R"(a\par\page\par b\par)", 2, {1}},  // the break stands in a paragraph of its own
        {R"(a\page\par b\par)", 3, {1}},      // the rest of its paragraph is empty
        {R"(a\page\page b\par)", 3, {1, 2}},  // a blank page
        {R"(a\par\sect\sectd b\par)", 2, {1}},
        {R"(a\par\sect\sectd\sbknone b\par)", 2, {}},
        {R"(a\par\page\sect\sectd\sbknone b\par)", 2, {1}},
        {R"(a\par\pard\pagebb b\par)", 2, {1}},
    };
    for (const Caso& c : casi) {
        const auto d = documento(c.rtf);
        ASSERT_EQ(d.paragrafi.size(), c.paragrafi) << c.rtf;
        std::vector<std::size_t> saltano;
        for (std::size_t i = 0; i < d.paragrafi.size(); ++i)
            if (paragrafo(d, i).salto_prima) saltano.push_back(i);
        EXPECT_EQ(saltano, c.saltano) << c.rtf;
    }
}

TEST(RtfManiere, CampoSenzaRisultato) {
    const auto d = documento(
        R"(p. {\field{\*\fldinst PAGE}} di {\field{\*\fldinst NUMPAGES}{\fldrslt }}{\field{\*\fldinst PAGE}{\fldrslt 7}}\par)");
    EXPECT_EQ(testo_piano(d), "p. 1 di 17\n");
    EXPECT_EQ(formato(d, 3).campo, Campo::pagina);
    EXPECT_EQ(formato(d, 8).campo, Campo::pagine);
    EXPECT_EQ(formato(d, 9).campo, Campo::pagina);
}

// A header that ends without a paragraph's end keeps the format of its own paragraph.
TEST(RtfManiere, TestataAperta) {
    const auto d = documento(R"({\header\pard\qr testa}\pard\qc corpo\par)");
    EXPECT_EQ(paragrafo(d, 0).verso, Verso::centro);
    EXPECT_EQ(paragrafo(d, 1).verso, Verso::destra);
}

// Of a drawing only the picture that fills it is shown, as large as the drawing.
TEST(RtfManiere, FiguraDiUnDisegno) {
    const auto d = documento(
        R"({\shp{\*\shpinst\shpleft100\shptop-500\shpright900\shpbottom0{\sp{\sn pib}{\sv {\pict\pngblip 89504e47}}})"
        R"({\sp{\sn fillBlip}{\sv {\pict\pngblip 89504e4700}}}}}x\par)");
    ASSERT_EQ(d.immagini.size(), 1u);
    EXPECT_EQ(d.immagini[0]->larghezza, 800);
    EXPECT_EQ(d.immagini[0]->altezza, 500);
    EXPECT_EQ(testo_piano(d), " x\n");
}

TEST(RtfManiere, SpaziDelleCelle) {
    const auto d = documento(
        R"(\trowd\trgaph70\trpaddb30\cellx1000\clpadl5\clpadt9\clpadr11\cellx2000\pard\intbl a\cell b\cell\row)");
    const auto& celle = d.righe.at(0).celle;
    EXPECT_EQ(celle[0].spazio, (std::array{0, 70, 30, 70}));
    EXPECT_EQ(celle[1].spazio, (std::array{5, 9, 30, 11}));
    const auto senza = documento(R"(\trowd\cellx1000\pard\intbl a\cell\row)");
    EXPECT_EQ(senza.righe.at(0).celle[0].spazio, (std::array{0, 0, 0, 0}));
}

TEST(RtfManiere, RiquadroDiUnParagrafo) {
    const auto d =
        documento(R"(\pard\box\brdrs\brdrw20\brsp40\brdrcf1 a\par\pard\brdrl\brdrs\brdrw15 b\par)");
    const auto& p = paragrafo(d, 0);
    for (const Bordo* b : {&p.bordo_sopra, &p.bordo_sotto, &p.bordo_sinistra, &p.bordo_destra}) {
        EXPECT_EQ(b->spessore, 20);
        EXPECT_EQ(b->spazio, 40);
        EXPECT_EQ(b->colore, 255);
    }
    EXPECT_EQ(paragrafo(d, 1).bordo_sinistra.spessore, 15);
    EXPECT_EQ(paragrafo(d, 1).bordo_sopra.spessore, 0);
}

// An empty cell that was joined to the one before adds no line to it.
TEST(RtfManiere, CellaUnitaVuota) {
    const auto d =
        documento(R"(\trowd\clmgf\cellx1000\clmrg\cellx2000\cellx3000\pard\intbl a\cell\cell c\cell\row)");
    ASSERT_EQ(d.righe.at(0).celle.size(), 2u);
    ASSERT_EQ(d.paragrafi.size(), 3u);
    EXPECT_FALSE(d.paragrafi[0].assorbito);
    EXPECT_TRUE(d.paragrafi[1].assorbito);
    EXPECT_FALSE(d.paragrafi[2].assorbito);
}

}  // namespace
}  // namespace ambra::rtf
