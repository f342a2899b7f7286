// The payment of withheld tax: discs that fail, other programs that come first.
#include <gtest/gtest.h>

#include "core/errori.h"
#include "ledger/lumpgr.h"
#include "tests/ledger/tavolo_ledger.h"

using namespace ambra;

namespace {

RecFattura con_ritenuta(const std::string& numero) {
    RecFattura f = fattura_vuota();
    f.numfor = 1;
    f.numdoc = numero;
    f.datareg = f.datadoc = "20240105";
    f.rac[0] = 5;
    f.dscarit = "16042024";
    return f;
}

RecFattura documento(TavoloLedger& t, std::size_t n) {
    return record_di<RecFattura>(t.file("ftr"), n);
}

// The screen open on three documents, all of them marked.
struct Versamento : TavoloLedger {
    Registro::Turno turno{prog.schermi};
    Lumpgr* s = nullptr;

    Versamento() {
        fatture({con_ritenuta("A/1"), con_ritenuta("A/2"), con_ritenuta("A/3")});
        prog.tornada = -99;
        prog.schermi.apri("lumpgr");
        s = &schermo<Lumpgr>("lumpgr");
        for (int r = 1; r <= 3; ++r) s->elenco.scegli(r, 0);
    }
};

}  // namespace

TEST(Versamento, UnaScritturaFallitaNonTocca) {
    Versamento t;
    const std::string prima = t.file("ftr");
    int n = 0;
    t.disco.guasto = [&](Operazione op, std::string_view f) {
        return op == Operazione::scrivi && f.ends_with("ftr") && ++n == 2 ? errore::disco_pieno : 0;
    };
    t.piattaforma.risposte = {Risposta::si, Risposta::no};
    t.s->stampante.premi();
    EXPECT_EQ(documento(t, 1).dverrit.testo(), "15032024");
    EXPECT_EQ(t.file("ftr").substr(522, 522), prima.substr(522, 522));
    EXPECT_EQ(documento(t, 3).dverrit.testo(), "15032024");
    EXPECT_FALSE(t.s->visible());
}

TEST(Versamento, UnaLetturaFallitaNonDataUnAltroDocumento) {
    Versamento t;
    int n = 0;
    t.disco.guasto = [&](Operazione op, std::string_view f) {
        return op == Operazione::leggi && f.ends_with("ftr") && ++n == 2 ? errore::dispositivo : 0;
    };
    t.piattaforma.risposte = {Risposta::si, Risposta::no};
    t.s->stampante.premi();
    for (std::size_t i : {1u, 2u, 3u}) {
        EXPECT_EQ(documento(t, i).numdoc.rifilato(), "A/" + std::to_string(i));
        EXPECT_EQ(documento(t, i).dverrit.testo(), "15032024");
    }
}

TEST(Versamento, UnDocumentoCambiatoDuranteLaDomandaLiFermaTutti) {
    Versamento t;
    std::string altrui;
    t.piattaforma.mentre_chiede = [&](const std::string& testo) {
        if (!testo.starts_with("Confermi")) return;
        RecFattura f = documento(t, 2);
        f.numdoc = "ALTRO";
        metti_record(t.file("ftr"), 2, f);
        altrui = t.file("ftr");
    };
    t.piattaforma.risposte = {Risposta::si, Risposta::ok};
    t.s->stampante.premi();
    EXPECT_EQ(t.file("ftr"), altrui) << "no document is paid in part of them";
    EXPECT_NE(t.piattaforma.messaggi.back().testo.find("aggiornare l'elenco"), std::string::npos);
    EXPECT_TRUE(t.s->visible());
}

TEST(Versamento, NellAttesaNonSiRiapre) {
    Versamento t;
    t.piattaforma.risposte = {Risposta::si, Risposta::si};
    t.piattaforma.attese.push_back([&] {
        t.s->indice.premi();
        t.s->elenco.scegli(1, 0);
        t.prog.tornada = -99;
        t.prog.schermi.apri("lumpgr");
        EXPECT_EQ(t.prog.schermi.caricato("lumpgr"), t.s);
        EXPECT_NE(t.s->txt.testo(), "0") << "the marks are those of the posting under way";
        t.schermo<Lumincx>("lumincx").b_fine[0].premi();
    });
    t.s->stampante.premi();
    EXPECT_FALSE(t.s->visible());
    EXPECT_TRUE(t.piattaforma.attese.empty());
}
