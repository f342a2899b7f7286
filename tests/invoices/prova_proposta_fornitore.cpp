// The supplier of a read invoice as the register holds him.
#include "invoices/proposta_fornitore.h"

#include <gtest/gtest.h>

#include "core/latino.h"
#include "core/testo.h"

using namespace ambra;

namespace {

SoggettoLetto ditta() {
    SoggettoLetto s;
    s.denominazione = "TERMOIDRAULICA & FIGLI SNC";
    s.paese_iva = "IT";
    s.codice_iva = "03452160151";
    s.indirizzo = "Via Garibaldi";
    s.civico = "12";
    s.cap = "20121";
    s.comune = "Milano";
    s.provincia = "mi";
    s.nazione = "IT";
    s.telefono = "02 123456";
    s.email = "info@ditta.it";
    return s;
}

DatiFornitore dati(const SoggettoLetto& s) {
    return dati_fornitore(s, {10, 10, 2026});
}

TEST(DatiFornitore, UnaDitta) {
    const DatiFornitore d = dati(ditta());
    EXPECT_EQ(d.testi[0], "TERMOIDRAULICA & FIGLI SNC");
    EXPECT_EQ(d.testi[1], "");
    EXPECT_EQ(d.testi[2], "Via Garibaldi, 12");
    EXPECT_EQ(d.testi[3] + d.testi[4] + d.testi[5], "20121MilanoMI");
    EXPECT_EQ(d.testi[6], "03452160151");
    EXPECT_EQ(d.testi[7], "03452160151");
    EXPECT_EQ(d.testi[14], "02 123456");
    EXPECT_EQ(d.testi[17], "info@ditta.it");
    EXPECT_FALSE(d.fisica || d.nonres || d.femmina);
}

TEST(DatiFornitore, IlNomeLungoSiSpezzaAllUltimoBianco) {
    SoggettoLetto s = ditta();
    s.denominazione = "1234567890123456789012345678901234567890";
    EXPECT_EQ(dati(s).testi[0].size(), 40U);
    EXPECT_EQ(dati(s).testi[1], "");
    s.denominazione = "TERMOIDRAULICA & FIGLI S.N.C. di Bianchi Carlo e Bianchi Luca";
    EXPECT_EQ(dati(s).testi[0], "TERMOIDRAULICA & FIGLI S.N.C. di Bianchi");
    EXPECT_EQ(dati(s).testi[1], "Carlo e Bianchi Luca");
    s.denominazione = "TERMOIDRAULICA & FIGLI S.N.C. di Bianchini Carlo";
    EXPECT_EQ(dati(s).testi[0], "TERMOIDRAULICA & FIGLI S.N.C. di");
    EXPECT_EQ(dati(s).testi[1], "Bianchini Carlo");
    s.denominazione = std::string(20, 'x') + " " + std::string(20, 'y');
    EXPECT_EQ(dati(s).testi[0], std::string(20, 'x')) << "41 characters";
    EXPECT_EQ(dati(s).testi[1], std::string(20, 'y'));
    s.denominazione = std::string(50, 'x');
    EXPECT_EQ(dati(s).testi[1], std::string(10, 'x'));
}

TEST(DatiFornitore, LaViaSiAccorciaPrimaDelNumero) {
    SoggettoLetto s = ditta();
    s.indirizzo = "Via Santa Maria delle Grazie al Naviglio Grande";
    s.civico = "116/1";
    EXPECT_EQ(dati(s).testi[2], "Via Santa Maria delle Grazie al N, 116/1");
    EXPECT_EQ(dati(s).testi[2].size(), 40U);
}

TEST(DatiFornitore, UnaPersonaDalCodiceFiscale) {
    SoggettoLetto s = ditta();
    s.denominazione = "";
    s.cognome = "Ferrari";
    s.nome = "Paola";
    s.codice_fiscale = "frrpla62a48f612q";
    const DatiFornitore d = dati(s);
    EXPECT_EQ(d.testi[0], "Ferrari Paola");
    EXPECT_EQ(d.testi[6], "FRRPLA62A48F612Q");
    EXPECT_TRUE(d.fisica);
    EXPECT_TRUE(d.femmina);
    EXPECT_EQ(d.testi[20], "08/01/1962");
    s.codice_fiscale = "FRRPLALNTMUF612Q";  // digits as letters: 02, 18
    EXPECT_EQ(dati(s).testi[20], "18/12/2002");
    s.codice_fiscale = "FRRPLALNTVUF612Q";  // day 98
    EXPECT_EQ(dati(s).testi[20], "");
    s.codice_fiscale = "";
    EXPECT_EQ(dati(s).testi[6], "");
    EXPECT_FALSE(dati(s).fisica);
}

TEST(DatiFornitore, UnoStraniero) {
    SoggettoLetto s = ditta();
    s.paese_iva = "DE";
    s.codice_iva = "123456789";
    s.cap = "00000";
    DatiFornitore d = dati(s);
    EXPECT_TRUE(d.nonres);
    EXPECT_EQ(d.testi[7] + d.testi[6], "");
    EXPECT_EQ(d.testi[21], "Germania");
    EXPECT_EQ(d.testi[22], "DE");
    EXPECT_EQ(d.testi[23], "123456789");
    EXPECT_EQ(d.testi[3], "");
    s.paese_iva = "QA";
    EXPECT_EQ(dati(s).testi[21], "QA");
}

TEST(DatiFornitore, PartitaIvaSoloDiUndiciCifre) {
    SoggettoLetto s = ditta();
    s.codice_iva = "345216015";
    EXPECT_EQ(dati(s).testi[7], "");
    s.codice_iva = "0345216015X";
    EXPECT_EQ(dati(s).testi[7], "");
}

TEST(DatiFornitore, CioCheNonEntraInteroResta) {
    SoggettoLetto s = ditta();
    s.email = std::string(45, 'a') + "@b.it";
    EXPECT_EQ(dati(s).testi[17].size(), 50U);
    s.email = "a" + s.email;
    EXPECT_EQ(dati(s).testi[17], "");
    s.telefono = "0039 02 1234 5678 9";
    EXPECT_EQ(dati(s).testi[14], "");
}

TEST(Vicino, CompostaPoiLetteraDiBasePoiInterrogativo) {
    EXPECT_EQ(vicino("Perche\u0301 citta\u0300"), "Perch\xE9 citt\xE0");
    EXPECT_EQ(vicino("Čapek Łódź Șerban Nguyễn"),
              "Capek L\xF3"
              "dz Serban Nguyen");
    EXPECT_EQ(vicino("Ǎnǐ Ḍạt ẞ Ẁillių Ǹȩ Ȳ Ƿ"), "Ani Dat S Williu Ne Y ?");
    EXPECT_EQ(vicino("Žižek – €"),
              "\x8Ei\x9E"
              "ek \x96 \x80");
    EXPECT_EQ(vicino("A\u0323\tB\u2011C"), "A B-C");
    EXPECT_EQ(vicino("日本 ?"), "?? ?");
    EXPECT_EQ(vicino("\xFF\xFE"), "??");
}

}  // namespace
