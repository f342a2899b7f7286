// The code of a payment term, both ways, and the two tables on a disc that refuses.
#include <gtest/gtest.h>

#include "invoices/mrvtiva.h"
#include "invoices/mrvtpag.h"
#include "tests/supporto/banco.h"

namespace ambra {
namespace {

TEST(CodiceTermine, SiLeggeGruppoPerGruppo) {
    struct {
        const char* codice;
        std::array<const char*, 4> mesi;
        bool fine;
        const char* giorni;
    } const casi[] = {
        {"001002003000F000", {"1", "2", "3", ""}, true, ""},
        {"000000000000N000", {"", "", "", ""}, false, ""},
        {"999010100 12F015", {"999", "10", "100", "12"}, true, "15"},
        {"", {"", "", "", ""}, false, ""},
        {"002", {"2", "", "", ""}, false, ""},
        {"abc0x1  21.5f0-5", {"", "", "2", "1.5"}, false, ""},
        {"001002003000F", {"1", "2", "3", ""}, true, ""},
        {"000000000000F-05", {"", "", "", ""}, true, "-5"},
    };
    for (const auto& c : casi) {
        const RigaTermine r = leggi_codice(c.codice);
        EXPECT_EQ(r.fine, c.fine) << c.codice;
        EXPECT_EQ(r.giorni, c.giorni) << c.codice;
        for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(r.mesi[i], c.mesi[i]) << c.codice << ' ' << i;
    }
}

TEST(CodiceTermine, OgniNumeroPrendeTreCifre) {
    struct {
        const char* testo;
        const char* gruppo;
    } const casi[] = {{"", "000"},     {"0", "000"},    {"7", "007"},  {"12", "012"}, {"999", "999"},
                      {"1000", "000"}, {"1234", "234"}, {"-5", "0-5"}, {"x", "000"},  {" 3 mesi", "003"},
                      {"1.5", "1.5"},  {"12.5", "2.5"}, {"+4", "004"}, {"3,9", "003"}};
    for (const auto& c : casi) {
        EXPECT_EQ(componi_codice({{c.testo, "", "", ""}, false, ""}), std::string(c.gruppo) + "000000000N000")
            << c.testo;
        EXPECT_EQ(componi_codice({{"", "", "", ""}, true, c.testo}), "000000000000F" + std::string(c.gruppo))
            << c.testo;
    }
}

TEST(Tabelle, UnDiscoCheRifiutaNonFermaLaConferma) {
    Banco b;
    b.testo("lumora.iva", {"20"});
    b.testo("lumora.pag", {"Contanti", "000000000000N000"});
    b.avvia();
    b.disco.guasto = [](Operazione op, std::string_view) {
        return op == Operazione::scrivi_tutto ? errore::accesso : 0;
    };
    b.prog.schermi.apri("mrvtiva");
    b.schermo<Mrvtiva>("mrvtiva").indice[0].premi();
    b.prog.schermi.apri("mrvtpag");
    b.schermo<Mrvtpag>("mrvtpag").indice[0].premi();
    EXPECT_EQ(b.prog.schermi.caricato("mrvtiva"), nullptr);
    EXPECT_EQ(b.prog.schermi.caricato("mrvtpag"), nullptr);
    EXPECT_EQ(b.file("lumora.iva"), "20\r\n");
    EXPECT_EQ(b.file("lumora.pag"), "Contanti\r\n000000000000N000\r\n");
    EXPECT_TRUE(b.piattaforma.messaggi.empty());
}

TEST(Tabelle, UnaPaginaMostrataNonToccaICodici) {
    Banco b;
    std::vector<std::string> righe;
    for (int i = 1; i <= 40; ++i) {
        righe.push_back(" nome " + std::to_string(i) + " ");
        righe.push_back("strano" + std::to_string(i));
    }
    b.testo("lumora.pag", righe);
    b.avvia();
    const std::string prima = b.file("lumora.pag");
    b.prog.schermi.apri("mrvtpag");
    auto& s = b.schermo<Mrvtpag>("mrvtpag");
    for (int n = 1; n <= 46; ++n) s.selpag.scorri(n);
    s.selpag.scorri(99);
    EXPECT_EQ(s.selpag.valore(), 46);
    Registro::Turno turno(b.prog.schermi);
    s.indice[0].premi();
    EXPECT_EQ(b.file("lumora.pag"), prima);
}

}  // namespace
}  // namespace ambra
