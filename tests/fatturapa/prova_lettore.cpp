// What is read of an invoice, and why one is refused.
#include "tests/fatturapa/fatture_prova.h"
#include "tests/fatturapa/lettura.h"

using namespace ambra;
using namespace ambra::prova;

namespace {

TEST(Lettore, OgniCampoDiUnaFattura) {
    Pezzi p;
    p.generali =
        "<TipoDocumento>TD06</TipoDocumento><Divisa>EUR</Divisa><Data> 2026-10-05+02:00 </Data><Numero> 12 "
        "</Numero>"
        "<DatiRitenuta><TipoRitenuta>RT01</TipoRitenuta><ImportoRitenuta>20.00</"
        "ImportoRitenuta><AliquotaRitenuta>20.00"
        "</AliquotaRitenuta><CausalePagamento>A</CausalePagamento></DatiRitenuta><DatiBollo><BolloVirtuale>SI"
        "</BolloVirtuale><ImportoBollo>2.00</ImportoBollo></DatiBollo><DatiCassaPrevidenziale><TipoCassa>TC01"
        "</TipoCassa><AlCassa>4.00</AlCassa><ImportoContributoCassa>4.00</"
        "ImportoContributoCassa><ImponibileCassa>100"
        "</ImponibileCassa><AliquotaIVA>22</AliquotaIVA><Ritenuta>SI</Ritenuta></DatiCassaPrevidenziale>"
        "<ImportoTotaleDocumento>122.01</ImportoTotaleDocumento><Arrotondamento>0.01</Arrotondamento>"
        "<Causale>Uno</Causale><Causale>Due</Causale>";
    p.in_fondo =
        "<Allegati><NomeAttachment>a.pdf</NomeAttachment><FormatoAttachment>PDF</FormatoAttachment>"
        "<Attachment>" +
        base64("%PDF-1.4 prova") +
        "</Attachment></Allegati><Allegati><NomeAttachment>"
        "../../b.png</NomeAttachment><Attachment>" +
        base64("PNG") + "</Attachment></Allegati>";
    const FatturaLetta f = una(fattura(p));
    EXPECT_EQ(f.file + "|" + f.voce + "|" + f.formato + "|" + f.tipo + "|" + f.numero + "|" + f.data + "|" +
                  f.divisa,
              "f.xml||FPR12|TD06|12|2026-10-05|EUR");
    EXPECT_EQ(f.totale + "|" + f.arrotondamento + "|" + f.importo_bollo, "122.01|0.01|2.00");
    EXPECT_TRUE(f.bollo);
    EXPECT_FALSE(f.semplificata || f.firma_non_verificata);
    EXPECT_EQ(f.causali, (std::vector<std::string>{"Uno", "Due"}));
    const SoggettoLetto& s = f.fornitore;
    EXPECT_EQ(s.chiamato() + "|" + s.paese_iva + s.codice_iva + "|" + s.codice_fiscale + "|" + s.regime,
              "IDRAULICA BRUNI SRL|IT01234567897|01234567897|RF01");
    EXPECT_EQ(
        s.indirizzo + "|" + s.civico + "|" + s.cap + "|" + s.comune + "|" + s.provincia + "|" + s.nazione,
        "Via Po|3|20100|Milano|MI|IT");
    EXPECT_EQ(s.telefono + "|" + s.email, "02 123|a@b.it");
    EXPECT_EQ(f.cliente.codice_fiscale + "|" + f.cliente.chiamato(), "97012340158|CONDOMINIO");
    ASSERT_EQ(f.ritenute.size(), 1U);
    EXPECT_EQ(f.ritenute[0].tipo + f.ritenute[0].importo + f.ritenute[0].aliquota + f.ritenute[0].causale,
              "RT0120.0020.00A");
    ASSERT_EQ(f.casse.size(), 1U);
    EXPECT_EQ(f.casse[0].tipo + "|" + f.casse[0].percentuale + "|" + f.casse[0].importo + "|" +
                  f.casse[0].imponibile,
              "TC01|4.00|4.00|100");
    EXPECT_TRUE(f.casse[0].ritenuta);
    ASSERT_EQ(f.righe.size(), 1U);
    EXPECT_EQ(f.righe[0].descrizione + "|" + f.righe[0].totale + "|" + f.righe[0].aliquota,
              "Riparazione|100.00|22.00");
    EXPECT_TRUE(f.righe[0].ritenuta);
    ASSERT_EQ(f.riepiloghi.size(), 1U);
    EXPECT_EQ(f.riepiloghi[0].imponibile + "|" + f.riepiloghi[0].imposta, "100.00|22.00");
    ASSERT_EQ(f.pagamenti.size(), 1U);
    EXPECT_EQ(f.pagamenti[0].condizioni + f.pagamenti[0].modalita + "|" + f.pagamenti[0].scadenza + "|" +
                  f.pagamenti[0].importo + "|" + f.pagamenti[0].iban,
              "TP02MP05|2026-11-30|122.00|IT60X0542811101000000123456");
    ASSERT_EQ(f.allegati.size(), 2U);
    EXPECT_TRUE(f.allegati[0].pdf);
    EXPECT_FALSE(f.allegati[1].pdf);
    EXPECT_EQ(f.allegati[1].nome, "../../b.png");
}

// ---- a document read once more, whole ----

std::string con_pdf(const std::string& contenuto, int corpi = 1) {
    Pezzi p;
    p.corpi = corpi;
    p.in_fondo = "<Allegati><NomeAttachment>a.pdf</NomeAttachment><Attachment>" + base64(contenuto) +
                 "</Attachment></Allegati>";
    return fattura(p);
}

TEST(Lettore, GliAllegatiRestanoNelFileFinoAQuandoServono) {
    const std::string uno = con_pdf("%PDF uno"), due = con_pdf("%PDF due", 2);
    const std::string dentro = zip({{"x/a.xml.p7m", base64(busta_der(due))}, {"x/b.xml", uno}});
    const std::string byte = zip({{"a.xml", uno}, {"a.xml", due}, {"d.zip", dentro}, {"d", uno}});
    fatturapa::Lettore lettore;
    const FileLetto l = lettore.leggi(byte, "f.zip");
    ASSERT_EQ(l.fatture.size(), 7U);
    for (const FatturaLetta& f : l.fatture) {
        ASSERT_TRUE(f.primo_pdf());
        EXPECT_EQ(f.primo_pdf()->contenuto + f.primo_pdf()->impronta, "");
        const auto intera = lettore.intera(byte, f);
        ASSERT_TRUE(intera && intera->primo_pdf()) << f.voce;
        EXPECT_EQ(intera->primo_pdf()->contenuto, f.corpi == 2 ? "%PDF due" : "%PDF uno");
        EXPECT_EQ(intera->primo_pdf()->impronta.size(), 64U);
        EXPECT_EQ(intera->file + intera->voce, f.file + f.voce);
        EXPECT_EQ(intera->corpo, f.corpo);
        EXPECT_EQ(intera->firma_non_verificata, f.firma_non_verificata);
        EXPECT_EQ(intera->righe.size(), f.righe.size());
    }
}

TEST(Lettore, UnFileCambiatoNonRidaIlDocumento) {
    fatturapa::Lettore lettore;
    const FatturaLetta f = una(con_pdf("%PDF uno"));
    EXPECT_FALSE(lettore.intera(con_pdf("%PDF due"), f));
    EXPECT_FALSE(lettore.intera(zip({{"f.xml", con_pdf("%PDF uno")}}), f));
    EXPECT_FALSE(lettore.intera("", f));
    EXPECT_FALSE(lettore.intera(std::string(fatturapa::kMassimoFile + 1, ' '), f));
    EXPECT_FALSE(lettore.intera_da_file("/manca/f.xml", f));
}

TEST(Lettore, LImprontaEQuellaDeiByteSenzaInvolucri) {
    const std::string xml = "<FatturaElettronica><FatturaElettronicaBody/></FatturaElettronica>";
    EXPECT_NE(una(xml).impronta, 0U);
    EXPECT_EQ(una(zip({{"a.xml.p7m", busta_der(xml)}})).impronta, una(xml).impronta);
    EXPECT_NE(una(xml + "\n").impronta, una(xml).impronta);
    // As long, and the same in every plain sum of their letters.
    EXPECT_NE(una(xml + "<!--0110-->").impronta, una(xml + "<!--1001-->").impronta);
}

TEST(Lettore, PiuCorpiSonoPiuDocumenti) {
    Pezzi p;
    p.corpi = 3;
    const FileLetto l = leggi(fattura(p));
    ASSERT_EQ(l.fatture.size(), 3U);
    EXPECT_EQ(l.fatture[2].corpo, 3);
    EXPECT_EQ(l.fatture[2].corpi, 3);
    EXPECT_EQ(l.fatture[2].fornitore.denominazione, "IDRAULICA BRUNI SRL");
    EXPECT_EQ(l.fatture[0].impronta, l.fatture[2].impronta);
}

TEST(Lettore, Semplificata) {
    const FatturaLetta f =
        una(semplificata("<DatiBeniServizi><Descrizione>Chiavi</Descrizione><Importo>25.00</"
                         "Importo><DatiIVA><Imposta>4.51</Imposta>"
                         "<Aliquota>22.00</Aliquota></DatiIVA></"
                         "DatiBeniServizi><DatiBeniServizi><Descrizione>Bollo</Descrizione>"
                         "<Importo>2.00</Importo><DatiIVA><Aliquota>0.00</Aliquota></DatiIVA><Natura>N1</"
                         "Natura></DatiBeniServizi>"));
    EXPECT_TRUE(f.semplificata && f.bollo);
    EXPECT_EQ(f.fornitore.chiamato() + "|" + f.fornitore.codice_iva + "|" + f.fornitore.indirizzo +
                  f.fornitore.regime,
              "Verdi Anna|01234567897|Via Po 3RF19");
    EXPECT_EQ(f.cliente.codice_fiscale + f.cliente.denominazione, "97012340158CONDOMINIO");
    ASSERT_EQ(f.righe.size(), 2U);
    EXPECT_EQ(f.righe[0].totale + "|" + f.righe[0].imposta + "|" + f.righe[0].aliquota, "25.00|4.51|22.00");
    EXPECT_EQ(f.righe[1].natura, "N1");
}

TEST(Lettore, IlRappresentanteNonEIlFornitore) {
    Pezzi p;
    p.fornitore =
        "<StabileOrganizzazione><Indirizzo>Altrove</Indirizzo></StabileOrganizzazione>"
        "<RappresentanteFiscale><IdFiscaleIVA><IdCodice>999</IdCodice></IdFiscaleIVA></"
        "RappresentanteFiscale>";
    EXPECT_TRUE(una(fattura(p)).fornitore.assente());
    EXPECT_EQ(una(fattura(p)).fornitore.indirizzo, "");
}

TEST(Lettore, RifiutiConIlMotivo) {
    const struct {
        std::string byte;
        const char* motivo;
    } casi[] = {{"", "non riconosciuto"},
                {"OK", "non riconosciuto"},
                {std::string(2, '\0'), "non riconosciuto"},
                {"<?xml version=\"1.0\"?>\n<p:FatturaElettronica\n", "XML non leggibile"},
                {"<", "XML non leggibile"},
                {"<FatturaElettronica/>", "fattura senza corpo"},
                {"<ns:NotificaEsito/>", "non è una fattura (NotificaEsito)"},
                {"<!DOCTYPE a [<!ENTITY b \"c\">]><FatturaElettronica/>", "DOCTYPE rifiutato"},
                {"<!-- x --> <!doctype a><FatturaElettronica/>", "DOCTYPE rifiutato"},
                {"<FatturaElettronica><!DOCTYPE a></FatturaElettronica>", "DOCTYPE rifiutato"},
                {zip({{"a.txt", "b"}}), "non riconosciuto"},
                {zip({{"a.txt", "b"}, {"c.txt", "d"}}), "nessuna fattura nell'archivio"},
                {zip({}), "archivio zip non leggibile"},
                {zip({{"cartella/", ""}}), "archivio zip vuoto"},
                {zip({{"a.xml", fattura()}}, true), "voce cifrata"}};
    for (const auto& c : casi) EXPECT_EQ(motivo(c.byte), c.motivo) << c.byte.substr(0, 60);
}

TEST(Lettore, ImportiCheNonSonoNumeri) {
    for (const char* male : {"1e3", "1,50", "1.000.00", "9999999999", "NaN", "0.123456789", "-", "1 0"}) {
        Pezzi p;
        p.generali += "<ImportoTotaleDocumento>" + std::string(male) + "</ImportoTotaleDocumento>";
        EXPECT_EQ(motivo(fattura(p)),
                  "importo non leggibile (ImportoTotaleDocumento: " + std::string(male) + ")");
    }
    Pezzi p;
    p.generali += "<ImportoTotaleDocumento> </ImportoTotaleDocumento>";
    EXPECT_EQ(una(fattura(p)).totale, "");
}

}  // namespace
