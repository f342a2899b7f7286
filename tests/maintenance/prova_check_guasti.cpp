// The watchman finds every kind of breach in counters, index, documents, suppliers: one case a kind.
#include <cmath>

#include "records/nome.h"
#include "tests/maintenance/specie_check.h"

using namespace ambra;

namespace {

TEST_F(Specie, GuastiDiContatoriEIndice) {
    trovati({
        {"counter of suppliers", intero("lum001.tfr", 0, 59), "lum001.tfr", "parola(0)"},
        {"counter of suppliers too high", intero("lum001.tfr", 0, 29999), "lum001.tfr", "parola(0)"},
        {"counter of documents too high", intero("lum001.tfr", 28, 30000), "lum001.tfr", "parola(0)"},
        {"counter of documents -1", intero("lum001.tfr", 28, -1), "lum001.tfr", "parola(0)"},
        {"mark of the index", intero("lum001.tfr", 2, 7), "lum001.tfr", "parola(1)"},
        {"counter of condomini", intero("lum001.tot", 0, 12), "lum001.tot", "tcondomini"},
        {"counter of movements", intero("lum001.tot", 6, 32767), "lum001.tot", "tmovimenti"},
        {"a lost movement", intero("lum001.tot", 6, 3), "lum001.tot", "tmovimenti"},
        {"odd length", [this] { file("lum001.ftr").pop_back(); }, "lum001.ftr", ""},
        {"short chart", [this] { file("lum001.pia").resize(64 * 4257); }, "lum001.pia", ""},
        {"missing index", [this] { disco.elimina(kCartella + "lum001.srf"); }, "lum001.srf", ""},
        {"missing table", [this] { disco.elimina(kCartella + "lum001.tab"); }, "lum001.tab", ""},
        {"short table", [this] { file("lum001.tab").resize(700); }, "lum001.tab", ""},
        {"index twice on one", intero("lum001.srf", 40, 2), "lum001.srf", "numero"},
        {"index on nothing", intero("lum001.srf", 42 * 3 + 40, 999), "lum001.srf", "numero"},
        {"index lower case",
         con<RecNome>("lum001.srf", 4, [](RecNome& r) { r.nome.b[3] = static_cast<char>(r.nome.b[3] | 32); }),
         "lum001.srf", "nome"},
        {"index out of order",
         [this] {
             const auto a = file("lum001.srf").substr(0, 42);
             file("lum001.srf").replace(0, 42, file("lum001.srf").substr(42 * 20, 42));
             file("lum001.srf").replace(42 * 20, 42, a);
         },
         "lum001.srf", "nome"},
    });
}

TEST_F(Specie, GuastiDiDocumenti) {
    const long rata = cerca_fattura([](const RecFattura& f) { return f.sca[0] > 1; });
    const long pagata = cerca_fattura([](const RecFattura& f) { return f.pagata == 1; });
    trovati({
        {"supplier of nobody", fattura(1, [](RecFattura& f) { f.numfor = 4000; }), "lum001.ftr", "numfor"},
        {"supplier 0", fattura(1, [](RecFattura& f) { f.numfor = 0; }), "lum001.ftr", "numfor"},
        {"31 February", fattura(2, [](RecFattura& f) { f.datareg = "20240231"; }), "lum001.ftr", "datareg"},
        {"blank date", fattura(2, [](RecFattura& f) { f.datadoc = ""; }), "lum001.ftr", "datadoc"},
        {"due date", fattura(rata, [](RecFattura& f) { f.dsca[0] = "20240101"; }), "lum001.ftr", "dsca(1)"},
        {"payment date", fattura(3, [](RecFattura& f) { f.dver[2] = "99999999"; }), "lum001.ftr", "dver(3)"},
        {"tax date", fattura(3, [](RecFattura& f) { f.dverrit = "x"; }), "lum001.ftr", "dverrit"},
        {"kind", fattura(3, [](RecFattura& f) { f.tipodc = 2; }), "lum001.ftr", "tipodc"},
        {"term", fattura(3, [](RecFattura& f) { f.modpag = 40; }), "lum001.ftr", "modpag"},
        {"charged", fattura(3, [](RecFattura& f) { f.addebita = "S"; }), "lum001.ftr", "addebita"},
        {"deleted", fattura(3, [](RecFattura& f) { f.cancellata = -1; }), "lum001.ftr", "cancellata"},
        {"instalments", fattura(rata, [](RecFattura& f) { f.sca[0] = f.sca[0] + 0.01; }), "lum001.ftr",
         "sca"},
        {"VAT", fattura(rata, [](RecFattura& f) { f.ivai[7] = 3; }), "lum001.ftr", "sca"},
        {"paid mark", fattura(pagata, [](RecFattura& f) { f.ver[0] = f.ver[0] - 1; }), "lum001.ftr",
         "pagata"},
        {"not marked", fattura(pagata, [](RecFattura& f) { f.pagata = 0; }), "lum001.ftr", "pagata"},
        {"paid too much", fattura(rata, [](RecFattura& f) { f.ver[0] = f.sca[0] + 5; }), "lum001.ftr",
         "ver(1)"},
        {"fraction of a cent", fattura(rata, [](RecFattura& f) { f.impon[0] = f.impon[0] + 0.004; }),
         "lum001.ftr", "impon(1)"},
        {"no number", fattura(4, [](RecFattura& f) { f.rac[1] = NAN; }), "lum001.ftr", "rac(2)"},
        {"control character", fattura(4, [](RecFattura& f) { f.numdoc.b[1] = '\t'; }), "lum001.ftr",
         "numdoc"},
    });
}

TEST_F(Specie, GuastiDiFornitori) {
    trovati({
        {"mark without a name", fornitore([](RecFornitore& f) { f.cancellata = 1; }), "lum001.for", "inte1"},
        {"name without a mark", fornitore([](RecFornitore& f) { f.inte1.b[0] = '\xFF'; }), "lum001.for",
         "inte1"},
        {"another name", fornitore([](RecFornitore& f) { f.inte1.b[5] = '#'; }), "lum001.srf", "nome"},
        {"supplier's term", fornitore([](RecFornitore& f) { f.formapag = -1; }), "lum001.for", "formapag"},
        {"supplier's account", fornitore([](RecFornitore& f) { f.conto = 4200; }), "lum001.for", "conto"},
        {"account without a name", fornitore([](RecFornitore& f) { f.conto = 99; }), "lum001.for", "conto"},
        {"person", fornitore([](RecFornitore& f) { f.fisica = 3; }), "lum001.for", "fisica"},
        {"mail with a newline", fornitore([](RecFornitore& f) { f.email1.b[2] = '\n'; }), "lum001.for",
         "email1"},
    });
}

}  // namespace
