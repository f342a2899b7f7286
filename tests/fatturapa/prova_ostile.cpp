// Files that mean harm, or are not what they say: a refusal with its reason, within bounds of time and
// memory.
#include <gtest/gtest.h>

#if !defined(_WIN32) && !defined(__SANITIZE_ADDRESS__)
#include <sys/resource.h>
#define SI_MISURA
#endif

#include "fatturapa/lettore.h"
#include "tests/fatturapa/fatture_prova.h"

using namespace ambra;
using namespace ambra::prova;

namespace {

class Ostile : public testing::Test {
  protected:
    // The most that the process has ever held, the files that the test made included.
    void TearDown() override {
#ifdef SI_MISURA
        rusage uso{};
        getrusage(RUSAGE_SELF, &uso);
        EXPECT_LT(uso.ru_maxrss, 300 * 1024);
#endif
    }
};

FileLetto leggi(const std::string& byte) {
    return fatturapa::Lettore().leggi(byte, "f");
}

// Refused as a whole, once: why.
std::string motivo(const std::string& byte) {
    const FileLetto l = leggi(byte);
    EXPECT_TRUE(l.fatture.empty());
    return l.rifiutate.size() == 1 && l.rifiutate[0].voce.empty() ? l.rifiutate[0].motivo : "non rifiutato";
}

std::string ripeti(const std::string& s, std::size_t n) {
    std::string r;
    r.reserve(s.size() * n);
    for (std::size_t i = 0; i < n; ++i) r += s;
    return r;
}

TEST_F(Ostile, OgniFileTroncatoERifiutatoUnaVolta) {
    const std::string xml = fattura();
    const std::string tutti[] = {xml,
                                 busta_der(xml),
                                 busta_ber(xml),
                                 base64(busta_der(xml)),
                                 zip({{"a.xml", xml}}),
                                 zip({{"b.zip", zip({{"a.xml", xml}})}})};
    for (const std::string& s : tutti) {
        const std::size_t coda = s.starts_with("TU") || s.starts_with("MI") ? 6 : 0;  // padding and line end
        for (std::size_t n = 0; n + coda < s.size(); ++n) {
            const FileLetto l = leggi(s.substr(0, n));
            ASSERT_TRUE(l.fatture.empty()) << n;
            ASSERT_EQ(l.rifiutate.size(), 1U) << n;
            ASSERT_FALSE(l.rifiutate[0].motivo.empty()) << n;
        }
    }
}

TEST_F(Ostile, ByteGuastiNonFannoDanno) {
    const std::string xml = fattura();
    unsigned seme = 12345;
    for (const std::string& s : {xml, busta_ber(xml), zip({{"a.xml", xml}}), base64(busta_der(xml))})
        for (int giro = 0; giro < 300; ++giro) {
            std::string guasto = s;
            for (int k = 0; k < 4; ++k) {
                seme = seme * 1664525U + 1013904223U;
                guasto[seme % guasto.size()] = static_cast<char>(seme >> 24);
            }
            const FileLetto l = leggi(guasto);
            ASSERT_FALSE(l.fatture.empty() && l.rifiutate.empty());
        }
}

TEST_F(Ostile, BombeDiEntita) {
    std::string s = "<?xml version=\"1.0\"?><!DOCTYPE f [<!ENTITY a \"aaaaaaaaaa\">";
    for (char c = 'b'; c <= 'z'; ++c)
        s += std::string("<!ENTITY ") + c + " \"" +
             ripeti(std::string("&") + static_cast<char>(c - 1) + ";", 10) + "\">";
    EXPECT_EQ(motivo(s + "]><FatturaElettronica>&z;</FatturaElettronica>"), "DOCTYPE rifiutato");
    EXPECT_EQ(motivo("<!DOCTYPE f SYSTEM \"file:///etc/passwd\"><FatturaElettronica/>"), "DOCTYPE rifiutato");
}

TEST_F(Ostile, AnnidamentoProfondo) {
    const std::size_t n = 600'000;
    const std::string dentro = ripeti("<a>", n) + ripeti("</a>", n);
    EXPECT_EQ(motivo("<FatturaElettronica>" + dentro + "</FatturaElettronica>"), "fattura senza corpo");
    EXPECT_EQ(motivo("<FatturaElettronica>" + ripeti("<a>", n) + "</FatturaElettronica>"),
              "XML non leggibile");
    Pezzi p;
    p.fornitore = ripeti("<Sede>", 100'000) + "<CAP>1</CAP>" + ripeti("</Sede>", 100'000);
    ASSERT_EQ(leggi(fattura(p)).fatture.size(), 1U);
    EXPECT_EQ(leggi(fattura(p)).fatture[0].fornitore.cap, "");
}

TEST_F(Ostile, OltreIlLimiteDiUnaFattura) {
    Pezzi p;
    p.generali += "<Causale>" + std::string(5 << 20, 'x') + "</Causale>";
    EXPECT_EQ(motivo(fattura(p)), "oltre 5 MB");
    p.generali.resize(p.generali.size() - 10);
    EXPECT_EQ(motivo(std::string((60 << 20) + 1, ' ')), "oltre 60 MB");
    const FileLetto l = leggi(zip({{"grande.xml", fattura(p)},
                                   {"grande.pdf", "%PDF" + std::string(6 << 20, 'x')},
                                   {"grande.xml.p7m", std::string(6 << 20, 'M')},
                                   {"buona.xml", fattura()}}));
    EXPECT_EQ(l.fatture.size(), 1U);
    EXPECT_EQ(l.saltate, 1);
    ASSERT_EQ(l.rifiutate.size(), 2U);
    EXPECT_EQ(l.rifiutate[0].voce + ": " + l.rifiutate[0].motivo, "grande.xml: oltre 5 MB");
    EXPECT_EQ(l.rifiutate[1].voce + ": " + l.rifiutate[1].motivo, "grande.xml.p7m: oltre 5 MB");
}

TEST_F(Ostile, BombeZip) {
    const std::string grande((5 << 20) - 1, ' ');
    Voci molte;
    for (int i = 0; i < 13; ++i) molte.emplace_back("v" + std::to_string(i), grande);
    EXPECT_EQ(motivo(zip(molte)), "oltre 60 MB di contenuto");
    molte.pop_back();
    EXPECT_EQ(motivo(zip(molte)), "nessuna fattura nell'archivio");

    Voci tante;
    for (int i = 0; i < 2000; ++i) tante.emplace_back(std::to_string(i), "x");
    EXPECT_EQ(motivo(zip(tante)), "nessuna fattura nell'archivio");
    tante.emplace_back("fattura.xml", fattura());
    EXPECT_EQ(motivo(zip(tante)), "oltre 2000 voci");

    std::string nido = fattura();
    for (int i = 0; i < 5; ++i) nido = zip({{"n", nido}});
    EXPECT_EQ(leggi(nido).fatture.size(), 1U);
    const FileLetto l = leggi(zip({{"n", nido}}));
    EXPECT_TRUE(l.fatture.empty());
    ASSERT_EQ(l.rifiutate.size(), 1U);
    EXPECT_EQ(l.rifiutate[0].motivo, "troppi archivi uno dentro l'altro");
}

TEST_F(Ostile, UnIndiceSenzaFine) {
    EXPECT_EQ(motivo("PK\x03\x04" + ripeti(std::string("PK\x01\x02", 4) + std::string(42, '\0'), 30'000)),
              "oltre 2000 voci");
}

TEST_F(Ostile, DocumentiERigheSenzaFine) {
    const std::string corpo = "<FatturaElettronicaBody/>";
    const auto f = [](const std::string& dentro) {
        return "<FatturaElettronica>" + dentro + "</FatturaElettronica>";
    };
    const FileLetto molti = leggi(f(ripeti(corpo, 200'000)));
    EXPECT_EQ(molti.rifiutate.size(), 1U);
    Voci voci;
    for (int i = 0; i < 10; ++i) voci.emplace_back(std::to_string(i), f(ripeti(corpo, 20'000)));
    EXPECT_EQ(motivo(zip(voci)), "troppi documenti in un file");
    // Small files that swell, as many as are read at once.
    Pezzi gonfia;
    gonfia.fornitore = "<Denominazione>" + std::string(40'000, 'x') + "</Denominazione>";
    std::string gonfiato = fattura(gonfia);
    gonfiato.insert(gonfiato.find("<FatturaElettronicaBody>"), ripeti(corpo, 1'500));
    EXPECT_EQ(leggi(gonfiato).fatture.size(), 1'501U);
    EXPECT_EQ(motivo(zip(Voci(60, {"a.xml", gonfiato}))), "troppi documenti in un file");
    Pezzi p;
    p.beni = ripeti("<DettaglioLinee/>", 10'001);
    EXPECT_EQ(motivo(fattura(p)), "troppe righe");
    p.beni = ripeti("<DettaglioLinee/>", 10'000);
    EXPECT_EQ(leggi(fattura(p)).fatture.size(), 1U);
}

}  // namespace
