// The watchman finds every kind of breach in the accounts, the tables, the counters of others: one case a
// kind.

#include "records/conto.h"
#include "records/nome.h"
#include "tests/maintenance/specie_check.h"

using namespace ambra;

namespace {

TEST_F(Specie, GuastiDellaContabilita) {
    trovati({
        {"account of a movement", movimento([](RecMovimento& m) { m.mconto = 4258; }), "lum001.mov",
         "mconto"},
        {"kind of a movement", movimento([](RecMovimento& m) { m.mtipo = 1; }), "lum001.mov", "mtipo"},
        {"counter-account", movimento([](RecMovimento& m) { m.mcontrop = 0; }), "lum001.mov", "mcontrop"},
        {"condomino of a movement", movimento([](RecMovimento& m) { m.mcondomino = 500; }), "lum001.mov",
         "mcondomino"},
        {"date of a movement", movimento([](RecMovimento& m) { m.mdata = "241301"; }), "lum001.mov", "mdata"},
        {"always 0", movimento([](RecMovimento& m) { m.zero2 = 1; }), "lum001.mov", "zero2"},
        {"amount of a movement", movimento([](RecMovimento& m) { m.mimporto = m.mimporto + 1; }),
         "lum001.pia", "csaldo"},
        {"balance", con<RecConto>("lum001.pia", 1, [](RecConto& r) { r.csaldo = r.csaldo + 100; }),
         "lum001.pia", "csaldo"},
        {"share", condomino([](RecCondomino& r) { r.dquota = r.dquota + 0.01; }), "lum001.cnd", "dquota"},
        {"thousandths", condomino([](RecCondomino& r) { r.dmill[0] = r.dmill[0] + 1; }), "lum001.tab", ""},
        {"charges", condomino([](RecCondomino& r) { r.daddebiti = r.daddebiti - 1; }), "lum001.cnd",
         "daddebiti"},
        {"order of condomini", intero("lum001.cns", 40, 2), "lum001.cns", "numero"},
        {"days",
         con<RecCondomino2>("lum001.cn2", 1,
                            [](RecCondomino2& r) {
                                r.dperiodo = 1;
                                r.dgiorni = 400;
                            }),
         "lum001.cn2", "dgiorni"},
        {"name in the order of condomini",
         con<RecNome>("lum001.cns", 3, [](RecNome& r) { r.nome.b[2] = '#'; }), "lum001.cns", "nome"},
    });
}

TEST_F(Specie, GuastiDiTabelleEAltro) {
    const long rata = cerca_fattura([](const RecFattura& f) { return f.sca[0] > 1; });
    const long pagata = cerca_fattura([](const RecFattura& f) { return f.pagata == 1; });
    // Registered when the journal had begun.
    const long non_addebitata = cerca_fattura([](const RecFattura& f) {
        return f.addebita.b[0] == '0' && f.sca[0] > 1 && f.datareg.grezzo() > "20240201";
    });
    const long aperta = cerca_fattura([](const RecFattura& f) { return f.pagata == 0; });
    trovati({
        {"no VAT table", [this] { disco.elimina(kCartella + "lumora.iva"); }, "lumora.iva", ""},
        {"no payment terms", [this] { disco.elimina(kCartella + "lumora.pag"); }, "lumora.pag", ""},
        {"no studio", [this] { disco.elimina(kCartella + "lumora.int"); }, "lumora.int", ""},
        {"no second records", [this] { disco.elimina(kCartella + "lumora.tt2"); }, "lumora.tt2", ""},
        {"no general record", [this] { disco.elimina(kCartella + "lumeria.gnr"); }, "lumeria.gnr", ""},
        {"short second records", [this] { file("lumora.tt2").resize(2 * 3258); }, "lumora.tt2", ""},
        {"building without a record", [this] { std::memset(file("lumora.tot").data() + 418, ' ', 418); },
         "lumora.tot", "nome"},
        {"mistyped building", [this] { file("lum077.tfr") = std::string(140, '\0'); }, "lumora.tot", "nome"},
        {"prospect without its text", [this] { disco.elimina(kCartella + "vexoral.001"); }, "vexoral.001",
         ""},
        {"prospect that is rubbish", [this] { file("vexoral.001") = "rubbish"; }, "vexoral.001", ""},
        {"prospect without a name", [this] { std::memset(file("lumoral.tot").data(), ' ', 40); },
         "lumoral.tot", "nomeprosp"},
        {"left by a restore", [this] { file("lum001.ftr.~~~") = ""; }, "lum001.ftr.~~~", ""},
        {"left by a writer", [this] { file("lumora.pag.~123-0") = ""; }, "lumora.pag.~123-0", ""},
        {"charged without a movement", fattura(non_addebitata, [](RecFattura& f) { f.addebita = "1"; }),
         "lum001.ftr", "addebita"},
        {"count of documents 0", intero("lum001.tfr", 28, 0), "lum001.tfr", "parola(0)"},
        {"count of documents too low", intero("lum001.tfr", 28, 290), "lum001.tfr", "parola(0)"},
        {"paid without a date", fattura(pagata, [](RecFattura& f) { f.dver[0] = ""; }), "lum001.ftr",
         "dver(1)"},
        {"paid nothing on a day", fattura(rata, [](RecFattura& f) { f.dver[3] = "01012024"; }), "lum001.ftr",
         "ver(4)"},
        {"registered twice",
         [this, aperta, pagata] {
             const auto prima = record<RecFattura>("lum001.ftr", aperta);
             cambia<RecFattura>("lum001.ftr", pagata, [&](RecFattura& f) {
                 f = prima;
                 f.numdoc = unisci(" 00", prima.numdoc.rifilato());
             });
         },
         "lum001.ftr", "numdoc"},
        {"one fiscal code for two", fornitore([this](RecFornitore& f) {
             f.codfis = record<RecFornitore>("lum001.for", 1).codfis.testo();
         }),
         "lum001.for", "codfis"},
        {"VAT table", [this] { file("lumora.iva").replace(0, 2, "x2"); }, "lumora.iva", ""},
        {"short VAT table", [this] { file("lumora.iva").resize(20); }, "lumora.iva", ""},
        {"short label file", [this] { file("lumeria.etf").resize(20); }, "lumeria.etf", ""},
        {"building record", [this] { file("lumora.tot")[3] = '\x01'; }, "lumora.tot", "nome"},
        {"general record", [this] { file("lumeria.gnr").pop_back(); }, "lumeria.gnr", ""},
    });
}

}  // namespace
