// The invoice as people read it: what stands in it, in their words; nothing for what is not said.
#include <gtest/gtest.h>

#include "core/testo.h"
#include "invoices/leggibile.h"
#include "tests/invoices/fatture_lette.h"
#include "tests/supporto/banco.h"

using namespace ambra;

namespace {

std::string unite(const std::vector<std::string>& celle) {
    std::string r;
    for (const std::string& c : celle) r += (r.empty() ? "" : " | ") + c;
    return a_utf8(r);
}

// The rows of a part, one a line; "manca" where there is no such part.
std::string parte(const FatturaLetta& f, const std::string& titolo) {
    for (const ParteLeggibile& p : leggibile(f)) {
        if (p.titolo != titolo) continue;
        std::string r = unite(p.colonne);
        for (const auto& riga : p.righe) r += (r.empty() ? "" : "\n") + unite(riga);
        return r;
    }
    return "manca";
}

FatturaLetta piena() {
    FatturaLetta f = fattura({riepilogo("22.00", "1000.00", "220.00"), riepilogo("0.00", "2", "0", "N1")});
    f.riepiloghi[0].esigibilita = "S";
    f.riepiloghi[1].norma = "art. 15";
    f.totale = "1222.00";
    f.ritenute = {{"RT02", "200.00", "20.00", "A"}};
    f.casse = {cassa("40.00", "22.00", true)};
    f.causali = {"manutenzione", "scala B"};
    f.righe = {riga("1000.00", "22.00", true)};
    f.righe[0].descrizione = "Perizia più rilievi";
    f.righe[0].quantita = "2.00";
    f.righe[0].unita_misura = "h";
    f.righe[0].prezzo = "500.00";
    f.pagamenti = {pagamento("2026-11-30", "1022.00")};
    f.pagamenti[0].modalita = "MP05";
    f.pagamenti[0].iban = "IT60X";
    AllegatoLetto a;
    a.nome = "a.pdf";
    a.pdf = true;
    f.allegati = {a};
    f.cliente.denominazione = "CONDOMINIO VILLA ADRIANA";
    f.cliente.codice_fiscale = "97012340158";
    return f;
}

TEST(Leggibile, OgniParte) {
    const FatturaLetta f = piena();
    EXPECT_EQ(parte(f, "Documento"),
              "Tipo | TD01\nNumero | 12/26\nData | 05/10/2026\nDivisa | EUR\nTotale | 1.222,00\n"
              "Ritenuta RT02 | 200,00 (20%)\nCassa  | 40,00 soggetta a ritenuta\nCausale | manutenzione\n"
              "Causale | scala B");
    EXPECT_EQ(parte(f, "Fornitore"), "Nome | ROSSI SRL");
    EXPECT_EQ(parte(f, "Cliente"), "Nome | CONDOMINIO VILLA ADRIANA\nCodice fiscale | 97012340158");
    EXPECT_EQ(parte(f, "Righe"),
              "Descrizione | Quantità | Prezzo | Iva | Totale\n"
              "Perizia più rilievi (ritenuta) | 2.00 h | 500,00 | 22% | 1.000,00");
    EXPECT_EQ(parte(f, "Riepilogo"),
              "Iva | Imponibile | Imposta | Esigibilità | Norma\n22% | 1.000,00 | 220,00 | S | \n"
              "0% N1 | 2,00 | 0,00 |  | art. 15");
    EXPECT_EQ(parte(f, "Pagamenti"),
              "Scadenza | Importo | Modalità | Iban | Istituto\n30/11/2026 | 1.022,00 | MP05 | IT60X | ");
    EXPECT_EQ(parte(f, "Allegati"), "PDF | a.pdf");
}

TEST(Leggibile, CioCheNonCeNonSiVede) {
    const FatturaLetta f = cento();
    EXPECT_EQ(parte(f, "Righe"), "manca");
    EXPECT_EQ(parte(f, "Pagamenti"), "manca");
    EXPECT_EQ(parte(f, "Allegati"), "manca");
    EXPECT_EQ(parte(f, "Cliente"), "manca");
    EXPECT_EQ(parte(f, "Documento"), "Tipo | TD01\nNumero | 12/26\nData | 05/10/2026\nDivisa | EUR");
}

TEST(Leggibile, UnaFirmaSiDiceNonVerificata) {
    FatturaLetta f = cento();
    EXPECT_EQ(parte(f, "Documento").find("Firma"), std::string::npos);
    f.firma_non_verificata = true;
    EXPECT_TRUE(parte(f, "Documento").ends_with("\nFirma | firma non verificata"));
}

TEST(Leggibile, SiStampaTutta) {
    Banco b;
    stampa_leggibile(b.prog, piena());
    EXPECT_TRUE(b.piattaforma.lavori.empty());  // the user said no
    b.piattaforma.risposte = {Risposta::si};
    stampa_leggibile(b.prog, piena());
    ASSERT_EQ(b.piattaforma.lavori.size(), 1U);
    std::string testo;
    for (const PaginaStampa& p : b.piattaforma.lavori[0].pagine)
        for (const OperazioneStampa& o : p.operazioni) testo += o.testo + "\n";
    for (const char* c : {"RIGHE\n", "1.222,00\n", "30/11/2026\n", "IT60X\n", "scala B\n", "PDF\n"})
        EXPECT_NE(testo.find(c), std::string::npos) << c;
}

}  // namespace
