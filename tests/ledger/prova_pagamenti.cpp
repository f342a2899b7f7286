// Payments of documents: long runs against a plain model, and discs that fail.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

#include "core/date.h"
#include "core/numeri.h"
#include "ledger/luminca.h"
#include "tests/ledger/tavolo_ledger.h"

using namespace ambra;

namespace {

RecFattura a_caso(std::mt19937& caso) {
    RecFattura f = fattura_vuota();
    for (auto* r : {f.riservati1.b, f.riservati2.b}) r[0] = static_cast<unsigned char>(caso());
    for (auto& b : f.riservati5.b) b = static_cast<unsigned char>(caso());
    f.numfor = 1;
    f.numdoc = "A/" + std::to_string(caso() % 100);
    f.datareg = f.datadoc = "20240105";
    for (auto& s : f.sca) s = static_cast<double>(caso() % 5) * 10;
    f.tipodc = static_cast<int>(caso() % 2);
    f.addebita = caso() % 4 == 0 ? "1" : "0";
    return f;
}

RecFattura documento(TavoloLedger& t, std::size_t n = 1) {
    return record_di<RecFattura>(t.file("ftr"), n);
}

Luminca& apri_pagamento(TavoloLedger& t, int record) {
    t.prog.recfattura = record;
    t.prog.tornada = -99;
    t.prog.schermi.apri("luminca");
    return t.schermo<Luminca>("luminca");
}

}  // namespace

TEST(Pagamenti, UnaLungaSerieSegueIlModello) {
    TavoloLedger t(11);
    std::vector<RecFattura> tutte;
    for (int i = 0; i < 5; ++i) tutte.push_back(a_caso(t.caso));
    t.fatture(tutte);
    int movimenti = t.movimenti();
    for (int passo = 0; passo < 150; ++passo) {
        const int n = 1 + static_cast<int>(t.caso() % 5);
        RecFattura& m = tutte[static_cast<std::size_t>(n - 1)];  // the model
        Registro::Turno turno(t.prog.schermi);
        Luminca& s = apri_pagamento(t, n);
        double versato = 0;
        for (std::size_t k = 0; k < 4; ++k) {
            m.dver[k] = "";
            if (t.caso() % 2 == 0) continue;
            const int giorno = 1 + static_cast<int>(t.caso() % 28),
                      importo = static_cast<int>(t.caso() % 3) * 10;
            char d[16];
            std::snprintf(d, sizeof d, "%02d/02/2024", giorno);
            s.dver[k].digita(d);
            if (importo > 0) s.ver[k].digita(std::to_string(importo));
            std::snprintf(d, sizeof d, "%02d022024", giorno);
            m.dver[k] = d;
            m.dscarit = "18032024";  // 16 March 2024 is a Saturday
            m.ver[k] = m.ver[k] + importo;
            versato += importo;
        }
        const int come =
            static_cast<int>(t.caso() % 3);  // 0 no posting, 1 posted, 2 the posting is cancelled
        const bool chiede = m.addebita.testo() == "0";
        bool memorizzato = false;
        if (chiede && come > 0) {
            t.piattaforma.risposte = {Risposta::si};
            memorizzato = come == 1 && versato != 0;
            t.piattaforma.attese.push_back([&t, memorizzato] {
                t.schermo<Lumincx>("lumincx").elenco.scegli(1, 1);
                t.schermo<Lumincx>("lumincx").b_fine[memorizzato ? 1 : 0].premi();
            });
        }
        s.conferma.premi();
        if (somma(m.sca) == somma(m.ver)) {
            m.pagata = 1;
            if (memorizzato) m.addebita = "1";
        }
        movimenti += memorizzato ? 1 : 0;
        t.piattaforma.risposte.clear();
        ASSERT_EQ(t.file("ftr").substr(static_cast<std::size_t>(n - 1) * 522, 522), byte_di(m)) << passo;
        ASSERT_EQ(t.movimenti(), movimenti);
        ASSERT_FALSE(s.visible());
    }
    std::string tutti;
    for (const auto& f : tutte) tutti += byte_di(f);
    EXPECT_EQ(t.file("ftr"), tutti);
}

TEST(Pagamenti, UnDiscoPienoLasciaIlDocumentoComEra) {
    TavoloLedger t;
    t.fatture({a_caso(t.caso)});
    const std::string prima = t.file("ftr");
    Luminca& s = apri_pagamento(t, 1);
    s.dver[0].digita("10/02/2024");
    s.ver[0].digita("10");
    t.disco.guasto = [](Operazione op, std::string_view f) {
        return op == Operazione::scrivi && f.ends_with("ftr") ? errore::disco_pieno : 0;
    };
    s.conferma.premi();
    EXPECT_EQ(t.file("ftr"), prima);
    EXPECT_TRUE(s.visible());
    EXPECT_EQ(s.ver[0].testo(), "10");
    EXPECT_EQ(t.prog.err.numero, errore::disco_pieno);
    t.disco.guasto = nullptr;
    s.conferma.premi();
    EXPECT_NE(t.file("ftr"), prima);
    EXPECT_FALSE(s.visible());
}

TEST(Pagamenti, IlDocumentoPagatoRestaQuelloAperto) {
    // While the posting waits, the main screen hands over another document.
    TavoloLedger t;
    t.fatture({a_caso(t.caso), a_caso(t.caso)});
    auto f = documento(t);
    f.addebita = "0";
    metti_record(t.file("ftr"), 1, f);
    const std::string altro = t.file("ftr").substr(522);
    Registro::Turno turno(t.prog.schermi);
    Luminca& s = apri_pagamento(t, 1);
    s.dver[0].digita("10/02/2024");
    s.ver[0].digita("10");
    t.piattaforma.risposte = {Risposta::si};
    t.piattaforma.attese.push_back([&t] {
        t.prog.recfattura = 2;
        t.schermo<Lumincx>("lumincx").b_fine[0].premi();
    });
    s.conferma.premi();
    EXPECT_EQ(documento(t).ver[0], 10);
    EXPECT_EQ(t.file("ftr").substr(522), altro);
}
