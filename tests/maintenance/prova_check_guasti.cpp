// The watchman finds every kind of breach: one case a kind.
#include <cmath>
#include <functional>

#include "records/condomino.h"
#include "records/conto.h"
#include "records/fornitore.h"
#include "records/movimento.h"
#include "records/nome.h"
#include "records/totali.h"
#include "tests/maintenance/archivio_check.h"

using namespace ambra;

namespace {

struct Guasto {
    const char* nome;
    std::function<void()> fai;
    const char* file;
    const char* campo;
};

// How each kind of breach is made.
class Specie : public Check {
  protected:
    using Fai = std::function<void()>;
    template <class R>
    Fai con(const char* f, long n, std::function<void(R&)> cambio) {
        return [this, f, n, cambio] { cambia<R>(f, n, cambio); };
    }
    Fai intero(const char* f, std::size_t posto, int v) {
        return [this, f, posto, v] {
            Intero i;
            i = v;
            std::memcpy(file(f).data() + posto, &i, 2);
        };
    }
    Fai fattura(long n, std::function<void(RecFattura&)> cambio) {
        return con<RecFattura>("lum001.ftr", n, std::move(cambio));
    }
    Fai fornitore(std::function<void(RecFornitore&)> cambio) {
        return con<RecFornitore>("lum001.for", 2, std::move(cambio));
    }
    Fai movimento(std::function<void(RecMovimento&)> cambio) {
        return con<RecMovimento>("lum001.mov", 5, std::move(cambio));
    }
    Fai condomino(std::function<void(RecCondomino&)> cambio) {
        return con<RecCondomino>("lum001.cnd", 3, std::move(cambio));
    }
    // Each is found with what it says, on an archive that is sound before.
    void trovati(const std::vector<Guasto>& guasti) {
        for (const auto& g : guasti) {
            SetUp();
            ASSERT_TRUE(verifica(disco).rilievi.empty()) << "before " << g.nome;
            g.fai();
            const Giro dopo = verifica(disco);
            EXPECT_EQ(dopo.stato, 1) << g.nome;
            EXPECT_TRUE(dopo.dice(g.file, g.campo)) << g.nome << "\n" << dopo.elenco();
            for (const auto& r : dopo.rilievi) EXPECT_FALSE(r.atteso.empty()) << g.nome;
        }
    }
};

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

// What no amount can be, and what is next to it, at both ends of the runs of amounts of a record.
TEST_F(Check, ConfiniDegliImporti) {
    const struct {
        double valore;
        const char* atteso;  // "" where it is a possible one
    } casi[] = {{1e12, "un importo possibile"},
                {-1e12, "un importo possibile"},
                {INFINITY, "un importo possibile"},
                {-NAN, "un importo possibile"},
                {999999999999.0, ""},
                {-999999999999.0, ""},
                {9.9e-10, "0"},
                {-5e-324, "0"},
                {1e-9, ""},
                {0.0, ""},
                {-0.0, ""}};
    for (const char* campo : {"impon(1)", "esent(8)", "ver(4)", "rac(1)", "rac(8)"})
        for (const auto& c : casi) {
            SetUp();
            cambia<RecFattura>("lum001.ftr", 2, [&](RecFattura& f) {
                const std::string_view s = campo;
                auto& quale = s == "impon(1)"   ? f.impon[0]
                              : s == "esent(8)" ? f.esent[7]
                              : s == "ver(4)"   ? f.ver[3]
                              : s == "rac(1)"   ? f.rac[0]
                                                : f.rac[7];
                quale = c.valore;
            });
            std::string detto;
            for (const Rilievo& r : verifica(disco).rilievi)
                if (r.campo == campo && (r.atteso == "0" || r.atteso == "un importo possibile"))
                    detto = r.atteso;
            EXPECT_EQ(detto, c.atteso) << campo << " " << c.valore;
        }
}

TEST_F(Check, ConfiniDeiTesti) {
    for (const std::size_t posto : {offsetof(RecFattura, numdoc), offsetof(RecFattura, numdoc) + 9,
                                    offsetof(RecFattura, pdf), offsetof(RecFattura, pdf) + 37})
        for (const auto& [c, male] : {std::pair('\x01', true),
                                      {'\x1F', true},
                                      {'\xFF', true},
                                      {'\0', false},
                                      {' ', false},
                                      {'\x7F', false},
                                      {'\x80', false},
                                      {'\xFE', false}}) {
            SetUp();
            file("lum001.ftr")[sizeof(RecFattura) + posto] = c;
            const Giro g = verifica(disco);
            EXPECT_EQ(g.dice("lum001.ftr", posto < 12 ? "numdoc" : "pdf"), male)
                << posto << " " << int(c) << "\n"
                << g.elenco();
        }
}

TEST_F(Check, UnaCausaUnRilievo) {
    // Every share was left where it was when the balances went on.
    const auto condomini = static_cast<long>(file("lum001.cnd").size() / sizeof(RecCondomino));
    for (long n = 1; n <= condomini; ++n)
        cambia<RecCondomino>("lum001.cnd", n, [](RecCondomino& r) { r.dquota = r.dquota + 1; });
    Giro g = verifica(disco);
    ASSERT_EQ(g.rilievi.size(), 1u) << g.elenco();
    EXPECT_EQ(g.rilievi[0].volte, condomini);
    EXPECT_EQ(g.rilievi[0].record, 1);

    // A balance that is wrong: not the shares too, which still follow the right one.
    SetUp();
    cambia<RecConto>("lum001.pia", 1, [](RecConto& r) { r.csaldo = r.csaldo + 100; });
    g = verifica(disco);
    ASSERT_EQ(g.rilievi.size(), 1u) << g.elenco();
    EXPECT_EQ(g.rilievi[0].campo, "csaldo");

    // Lost counters: not every document that then belongs to nobody, nor every balance.
    SetUp();
    const std::string zero(2, '\0');
    file("lum001.tfr").replace(0, 2, zero);
    file("lum001.tot").replace(6, 2, zero);
    g = verifica(disco);
    EXPECT_EQ(g.rilievi.size(), 2u) << g.elenco();

    // Neither does a count that is none say that others lie behind it, nor a name that is wrong that the next
    // is out of order.
    SetUp();
    file("lum001.tfr").replace(sizeof(RecTotali), 2, "\xFD\xFF");
    EXPECT_EQ(verifica(disco).rilievi.size(), 1u) << verifica(disco).elenco();
    SetUp();
    cambia<RecNome>("lum001.srf", 6, [](RecNome& r) { r.nome = "ZZZ"; });
    EXPECT_EQ(verifica(disco).rilievi.size(), 1u) << verifica(disco).elenco();
}

// A file that is gone is one finding: not all that refers to its records too.
TEST_F(Check, UnFileCheMancaEUnRilievo) {
    for (const char* e : {"tot", "cnd", "cns", "pia", "mov", "cn2", "tab", "tfr", "for", "srf", "ftr"}) {
        SetUp();
        disco.elimina(nome_file("001", e));
        const Giro g = verifica(disco);
        ASSERT_EQ(g.rilievi.size(), 1u) << e << "\n" << g.elenco();
        EXPECT_EQ(g.rilievi[0].file, std::string("lum001.") + e);
        EXPECT_EQ(g.rilievi[0].trovato, "manca");
        EXPECT_EQ(g.stato, 1);
    }
}

TEST_F(Check, LeAzioniDiTuttiIGiorniNonSonoGuasti) {
    const auto nome = [&](long n, const std::string& scheda, const std::string& indice, bool cancellato) {
        cambia<RecFornitore>("lum001.for", n, [&](RecFornitore& f) {
            f.inte1 = scheda;
            f.cancellata = cancellato;
        });
        const long quanti = static_cast<long>(file("lum001.srf").size() / sizeof(RecNome));
        for (long i = 1; i <= quanti; ++i)
            cambia<RecNome>("lum001.srf", i, [&](RecNome& r) {
                if (r.numero == n) r.nome = indice;
            });
        // The index wants sorting.
        cambia<RecTotali>("lum001.tfr", 1, [](RecTotali& t) { t.parola[1] = 1; });
    };
    nome(1, "\xFFRossi & figli", "\xFFRossi & figli", true);
    nome(2,
         "\xFF"
         "Bianchi & figli",
         "\xFF\xFF"
         "BIANCHI & FIGLI",
         true);
    nome(3, "Verdi di un altro stabile", "Verdi di un altro stabile", false);
    const std::string lungo = "\xFF" + std::string(39, 'x');
    nome(4, lungo, "\xFF\xFF" + std::string(38, 'X'), true);
    const Giro g = verifica(disco);
    EXPECT_EQ(g.stato, 0) << g.elenco();
    nome(1, "Rossi & figli", "rossi & FIGLI", false);
    EXPECT_EQ(verifica(disco).stato, 1);
    nome(1, "Rossi & figli", "\xFFROSSI & FIGLI", false);
    EXPECT_EQ(verifica(disco).stato, 1) << "only a deleted one bears a mark";
}

TEST_F(Check, DietroAlConteggioRestaQuelCheIlRiordinoELAzzeramentoLasciano) {
    const auto intera = file("lum001.ftr");
    const long quante = static_cast<long>(intera.size() / sizeof(RecFattura));
    const auto conta = [&](long n) {
        cambia<RecTotali>("lum001.tfr", 2, [&](RecTotali& t) { t.parola[0] = int(n); });
    };
    // The reorganisation drops the first ten: the rest moves up, the copy holds what there was.
    file("lum001.$$$") = intera;
    file("lum001.ftr") = intera.substr(10 * sizeof(RecFattura)) +
                         intera.substr((static_cast<std::size_t>(quante) - 10) * sizeof(RecFattura));
    conta(quante - 10);
    EXPECT_EQ(verifica(disco).stato, 0);
    // Three of the last are deleted and dropped by another one, which wrote the copy anew.
    conta(quante - 13);
    file("lum001.$$$") = file("lum001.ftr");
    EXPECT_EQ(verifica(disco).stato, 0);
    // The reset leaves no copy; what it kept stands in front too.
    disco.elimina(kCartella + "lum001.$$$");
    conta(quante - 10);
    EXPECT_EQ(verifica(disco).stato, 0);
}

}  // namespace
