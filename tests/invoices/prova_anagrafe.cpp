// Whose a document is: the supplier in the register, the building on the drive.
#include "invoices/anagrafe.h"

#include <gtest/gtest.h>

#include "invoices/stabili_drive.h"
#include "records/stabile.h"
#include "tests/supporto/banco.h"

using namespace ambra;

namespace {

SoggettoLetto soggetto(const char* paese, const char* iva, const char* fiscale = "") {
    SoggettoLetto s;
    s.paese_iva = paese;
    s.codice_iva = iva;
    s.codice_fiscale = fiscale;
    return s;
}

RecFornitore scheda(const char* piva, const char* codfis, const char* codest = "") {
    RecFornitore f = fornitore_vuoto("ROSSI");
    f.piva = piva;
    f.codfis = codfis;
    f.codest = codest;
    return f;
}

struct Registro3 : Banco {
    Registro3() {
        RecFornitore eliminato = scheda("03333333333", "");
        eliminato.cancellata = 1;
        fornitori({scheda("01111111111", "RSSMRA80A01H501U"), scheda("02222222222", "01111111111"), eliminato,
                   scheda("", "", "DE123456789"), scheda("", "", "12345678901234567890"),
                   scheda("02222222222", "")});
        avvia();
    }
    long cerca(const SoggettoLetto& s) { return Anagrafe(prog.arc).cerca(s); }
};

TEST(Anagrafe, PartitaIvaPoiCodiceFiscale) {
    Registro3 t;
    EXPECT_EQ(t.cerca(soggetto("IT", "01111111111", "01111111111")), 1);
    EXPECT_EQ(t.cerca(soggetto("IT", "09999999999", "rssmra80a01h501u")), 1);
    EXPECT_EQ(t.cerca(soggetto("", "", "01111111111")), 2);
    EXPECT_EQ(t.cerca(soggetto("IT", "02222222222")), 2) << "the first of two";
    EXPECT_EQ(t.cerca(soggetto("IT", "03333333333")), 0) << "deleted";
    EXPECT_EQ(t.cerca(soggetto("it", "01111111111")), 1);
    EXPECT_EQ(t.cerca(soggetto("", "")), 0);
}

TEST(Anagrafe, LoStranieroPerIlSuoCodice) {
    Registro3 t;
    EXPECT_EQ(t.cerca(soggetto("DE", "123456789")), 4);
    EXPECT_EQ(t.cerca(soggetto("DE", "DE123456789")), 4);
    EXPECT_EQ(t.cerca(soggetto("DE", "01111111111")), 0) << "no VAT number of here";
    EXPECT_EQ(t.cerca(soggetto("IT", "DE123456789")), 0);
    EXPECT_EQ(t.cerca(soggetto("GB", "1234567890123456789012345678")), 5) << "cut as it stands there";
}

TEST(StabiliDrive, CodiceFiscalePoiPartitaIva) {
    ArchivioProva a;
    for (const char* codice : {"97000000001", "97000000002", "97000000001"}) {
        RecStabile2 r{};
        r.codfisc = codice;
        a.file("lumora.tt2") += byte_di(r);
    }
    const StabiliDrive tutti(a.memoria);
    EXPECT_EQ(tutti.di(soggetto("IT", "97000000001", "97000000002")), 2);
    EXPECT_EQ(tutti.di(soggetto("IT", "97000000002", "97999999999")), 2);
    EXPECT_EQ(tutti.di(soggetto("", "", "97000000001")), 1);
    EXPECT_EQ(tutti.di(soggetto("", "", "97999999999")), 0);
    EXPECT_EQ(StabiliDrive(a.memoria, 3).di(soggetto("", "", "97000000001")), 3) << "this one before others";
}

}  // namespace
