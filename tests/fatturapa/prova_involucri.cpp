// In which encoding and wrapper an invoice may come.
#include "tests/fatturapa/fatture_prova.h"
#include "tests/fatturapa/lettura.h"

using namespace ambra;
using namespace ambra::prova;

namespace {

TEST(Involucri, CodificheDichiarateEVere) {
    const auto con = [](const std::string& codifica, const std::string& nome) {
        Pezzi p;
        p.dichiarazione = codifica.empty() ? "" : "<?xml version='1.0' encoding='" + codifica + "'?>";
        p.fornitore = "<DatiAnagrafici><Anagrafica><Denominazione>" + nome +
                      "</Denominazione></Anagrafica></DatiAnagrafici>";
        return fattura(p);
    };
    const struct {
        const char *codifica, *byte, *utf8;
    } casi[] = {{"UTF-8", "Perch\xC3\xA9 \xE2\x82\xAC", "Perché €"},
                {"", "Perch\xC3\xA9", "Perché"},
                {"UTF-8", "Perch\xE9 \x80", "Perché €"},
                {"ISO-8859-1", "Perch\xE9", "Perché"},
                {"iso-8859-1", "\x80", "€"},
                {"Windows-1252",
                 "L\x92"
                 "aia \x80",
                 "L’aia €"},
                {"ISO-8859-15", "\xA4 \xBD\xE9", "€ œé"},
                {"klingon", "Perch\xE9", "Perché"}};
    for (const auto& c : casi)
        EXPECT_EQ(una(con(c.codifica, c.byte)).fornitore.denominazione, c.utf8) << c.codifica;
    EXPECT_EQ(una("\xEF\xBB\xBF" + con("ISO-8859-1", "\xC3\xA9")).fornitore.denominazione, "é");

    const std::string ascii = con("UTF-16", "~erche");
    for (const bool alto : {false, true})
        for (const bool bom : {false, true}) {
            std::string s = bom ? alto ? "\xFE\xFF" : "\xFF\xFE" : "";
            for (const char c : ascii) {
                if (alto) s += '\0';
                s += c == '~' ? '\xC8' : c;  // È
                if (!alto) s += '\0';
            }
            EXPECT_EQ(una(s).fornitore.denominazione, "Èerche") << alto << bom;
        }
}

TEST(Involucri, StranezzeDelTesto) {
    const auto nome = [](const std::string& dentro) {
        Pezzi p;
        p.fornitore = "<Anagrafica><Denominazione>" + dentro + "</Denominazione></Anagrafica>";
        return una(fattura(p)).fornitore.denominazione;
    };
    EXPECT_EQ(nome("ROSSI &amp; FIGLI"), "ROSSI & FIGLI");
    EXPECT_EQ(nome("ROSSI & FIGLI"), "ROSSI & FIGLI");
    EXPECT_EQ(nome("ROSSI &amp FIGLI &ignota; &#x41;"), "ROSSI &amp FIGLI &ignota; A");
    EXPECT_EQ(nome(" <![CDATA[A <b> ]]>e<!-- no --> C "), "A <b> e C");
    EXPECT_EQ(nome("A\x01"
                   "B\x1F"),
              "A B");
    EXPECT_EQ(nome(std::string("A\0B", 3)), "A B");
    EXPECT_EQ(nome("A&#1;B&#xD800;"), "A B???");
    const std::string xml = fattura();
    for (const std::string& s :
         {" \r\n\t" + xml, xml + "\n\n", xml + std::string(20, '\0'), xml + "resto di prova", xml + "<a",
          "<!-- x --><?pi?>" + xml.substr(xml.find("<p:"))})
        EXPECT_EQ(una(s).numero, "12/A");
    for (const char* prefisso : {"", "p:", "ns0:", "non:dichiarato:"}) {
        Pezzi p;
        p.prefisso = prefisso;
        EXPECT_EQ(una(fattura(p)).numero, "12/A") << prefisso;
    }
}

TEST(Involucri, BusteFirmate) {
    const std::string xml = fattura();
    for (const std::string& s :
         {busta_der(xml), busta_ber(xml), busta_ber(xml, 1), busta_der(busta_der(xml)),
          base64(busta_der(xml)), base64(busta_ber(xml), false), busta_der(base64(busta_der(xml))),
          "-----BEGIN PKCS7-----\n" + base64(busta_der(xml)) + "\n-----END PKCS7-----\n",
          busta_der(xml) + "in fondo", base64(base64(busta_der(xml)))}) {
        const FatturaLetta f = una(s);
        EXPECT_EQ(f.numero, "12/A");
        EXPECT_TRUE(f.firma_non_verificata);
    }
    EXPECT_FALSE(una(base64(xml)).firma_non_verificata);
    EXPECT_EQ(motivo(busta_der("un testo firmato")), "non riconosciuto");
    EXPECT_EQ(motivo(busta_der(xml).substr(0, 300)), "busta firmata non leggibile");
    std::string troppe = xml;
    for (int i = 0; i < 6; ++i) troppe = busta_der(troppe);
    EXPECT_EQ(motivo(troppe), "troppe buste una dentro l'altra");
}

TEST(Involucri, ArchiviEVociDAltroGenere) {
    const FileLetto l =
        leggi(zip({{"uno.xml", fattura()},
                   {"sotto/due.xml.p7m", busta_der(fattura())},
                   {"uno_MT_001.xml", "<ns:MetadatiInvioFile><NomeFile/></ns:MetadatiInvioFile>"},
                   {"leggimi.txt", "ciao"},
                   {"pagina.html", "<!DOCTYPE html><html></html>"},
                   {"dentro.zip", zip({{"../../tre.xml", fattura()}, {"x.pdf", "%PDF"}})},
                   {"rotta.xml", "<p:FatturaElettronica><a>"}}));
    ASSERT_EQ(l.fatture.size(), 3U);
    EXPECT_EQ(l.fatture[0].voce, "uno.xml");
    EXPECT_EQ(l.fatture[1].voce, "sotto/due.xml.p7m");
    EXPECT_TRUE(l.fatture[1].firma_non_verificata);
    EXPECT_FALSE(l.fatture[2].firma_non_verificata);
    EXPECT_EQ(l.fatture[2].voce, "dentro.zip/../../tre.xml");
    EXPECT_EQ(l.saltate, 4);
    ASSERT_EQ(l.rifiutate.size(), 1U);
    EXPECT_EQ(l.rifiutate[0].voce + ": " + l.rifiutate[0].motivo, "rotta.xml: XML non leggibile");
}

}  // namespace
