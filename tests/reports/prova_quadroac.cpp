// The ministerial form, position by position, for every count of suppliers that fills, ends and opens sheets.
#include "reports/quadroac.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/testo.h"
#include "print/metriche.h"
#include "reports/lumstcx.h"
#include "tests/supporto/banco.h"

namespace ambra {
namespace {

struct Segno {
    double x, y;
    std::string testo;
    double punti;
};

std::string nome(int k) {
    return "FORNITORE " + std::to_string(k);
}

// Suppliers 1 to n, each natural, not resident and complete, with a total of its own.
void prepara(Banco& b, int n) {
    std::vector<RecFornitore> f;
    std::vector<RecFattura> d;
    for (int k = 1; k <= n; ++k) {
        RecFornitore r = fornitore_vuoto(nome(k));
        r.inte2 = "due";
        r.indir = "Via Po";
        r.citta = "Torino";
        r.codfis = "CF" + std::to_string(k);
        r.prov = "TO";
        r.sesso = "F";
        r.datanas = "05/11/1960";
        r.luogonas = "Asti";
        r.provnas = "AT";
        r.sigla = "FR";
        r.statoest = "Francia";
        r.codest = "E1";
        r.fisica = r.nonres = 1;
        f.push_back(r);
        RecFattura x = fattura_vuota();
        x.numfor = k;
        x.datareg = x.datadoc = "20240301";
        x.impon[0] = 300 + k;
        d.push_back(x);
    }
    b.fornitori(f);
    b.fatture(d);
    b.testo("lumora.int", {"Studio", "Via A", "Torino", "", "", "011", "", "", "ABCDEFGHIJKLMNOP", ""});
    RecStabile s{};
    s.nome = "ROSSI";
    s.indirizzo = "Via Roma";
    s.cittastab = "Torino";
    b.file("lumora.tot") = byte_di(s);
    RecStabile2 s2{};
    s2.codfisc = "97";
    b.file("lumora.tt2") = byte_di(s2);
}

void confronta(const std::vector<PaginaStampa>& pagine, const std::vector<std::vector<Segno>>& attese) {
    ASSERT_EQ(pagine.size(), attese.size());
    for (std::size_t p = 0; p < pagine.size(); ++p) {
        SCOPED_TRACE("page " + std::to_string(p + 1));
        const auto& ops = pagine[p].operazioni;
        ASSERT_EQ(ops.size(), attese[p].size());
        for (std::size_t i = 0; i < ops.size(); ++i) {
            SCOPED_TRACE("operation " + std::to_string(i) + " " + attese[p][i].testo);
            EXPECT_EQ(ops[i].tipo, OperazioneStampa::Tipo::testo);
            EXPECT_EQ(ops[i].unita, Scala::millimetri);
            EXPECT_EQ(ops[i].testo, attese[p][i].testo);
            EXPECT_NEAR(ops[i].x1, attese[p][i].x, 1e-9);
            EXPECT_NEAR(ops[i].y1, attese[p][i].y, 1e-9);
            EXPECT_EQ(ops[i].font.nome, "arial");
            EXPECT_EQ(ops[i].font.punti, attese[p][i].punti);
            EXPECT_FALSE(ops[i].font.grassetto || ops[i].font.corsivo);
        }
    }
}

// ---- the built-in positions, as the ministry's sheet has them ----

std::vector<std::vector<Segno>> attese_fisse(int n, double dx, double dy) {
    std::vector<std::vector<Segno>> fogli;
    for (int k = 1; k <= n; ++k) {
        const int slot = (k - 1) % 5;
        if (slot == 0) {
            fogli.emplace_back();
            const std::string foglio = con_zeri((k - 1) / 5 + 1, 2);
            auto& f = fogli.back();
            for (int i = 0; i < 16; ++i)
                f.push_back(
                    {std::floor(85 + 5 * i + dx), 23 + dy, std::string(1, static_cast<char>('A' + i)), 10});
            f.push_back({153 + dx, 40 + dy, foglio.substr(0, 1), 10});
            f.push_back({158 + dx, 40 + dy, foglio.substr(1, 1), 10});
            f.push_back({41 + dx, 55 + dy, riempi("97", 16), 10});
            f.push_back({90 + dx, 55 + dy, riempi("ROSSI", 40), 10});
            f.push_back({41 + dx, 66 + dy, riempi("Torino", 40), 10});
            f.push_back({120 + dx, 66 + dy, riempi("Via Roma", 40), 10});
        }
        const double giu = dy + (slot == 0 ? 0 : 32.5 * (slot - 1));
        const double y1 = giu + (slot == 0 ? 78 : 124), y2 = giu + (slot == 0 ? 91 : 132),
                     y3 = giu + (slot == 0 ? 103 : 140), y4 = giu + (slot == 0 ? 114 : 148);
        auto& f = fogli.back();
        f.push_back({41 + dx, y1, riempi("CF" + std::to_string(k), 16), 10});
        f.push_back({90 + dx, y1, riempi(nome(k), 40), 10});
        f.push_back({41 + dx, y2, riempi("due", 40), 10});
        f.push_back({88 + dx, y2, "F", 10});
        f.push_back({96 + dx, y2, "05    11    1960", 10});
        f.push_back({124 + dx, y2, riempi("Asti", 40), 10});
        f.push_back({181 + dx, y2, "AT", 10});
        f.push_back({41 + dx, y3, riempi("Torino", 40), 10});
        f.push_back({104 + dx, y3, "TO", 10});
        f.push_back({115 + dx, y3, riempi("Via Po", 40), 10});
        f.push_back({181 + dx, y3, riempi("FR", 5), 10});
        f.push_back({45 + dx, y4, std::to_string(300 + k), 10});
    }
    return fogli;
}

class QuadroDaUnoAVentitre : public testing::TestWithParam<int> {};

TEST_P(QuadroDaUnoAVentitre, PosizioniPredefinite) {
    const int n = GetParam();
    Banco b;
    prepara(b, n);
    b.testo("lummmi.dxy", {"1.5", "-2"});
    b.avvia();
    auto& s = b.schermo<Lumstcx>("lumstcx");
    b.piattaforma.risposte = {Risposta::no, Risposta::si};
    s.Label1[1].premi();
    ASSERT_EQ(b.piattaforma.lavori.size(), 1u);
    confronta(b.piattaforma.lavori[0].pagine, attese_fisse(n, 1.5, -2));
    EXPECT_EQ(b.piattaforma.stampante.scale_mode(), Scala::twip);
    EXPECT_EQ(b.piattaforma.puntatore, Puntatore::normale);
}

// ---- the user's positions: row i at x = 2 i, y = i; first page +30, second page +7, step 15 ----

std::vector<std::vector<Segno>> attese_proprie(int n) {
    const std::string studio[] = {"",      "Studio",   "Via A",  "Torino", "011", "ABCDEFGHIJKLMNOP",
                                  "ROSSI", "Via Roma", "Torino", "97"};
    const auto destra_mm = [](double x, const std::string& t) {
        return x - static_cast<double>(larghezza_millesimi(t, false)) / 1000 * 14 * 25.4 / 72;
    };
    std::vector<std::vector<Segno>> pagine;
    for (int k = 1; k <= n; ++k) {
        const int slot = (k - 1) % 10;
        if (slot == 0 || slot == 4) pagine.emplace_back();
        auto& p = pagine.back();
        if (slot == 0) {
            const std::string foglio = std::to_string((k - 1) / 10 + 1);
            p.push_back({destra_mm(52, foglio), 26, foglio, 14});
            for (int i = 1; i <= 9; ++i) p.push_back({2.0 * i, 1.0 * i, studio[i], 14});
        }
        const std::vector<std::string> valori = {
            nome(k), "due", "Via Po",  "Torino", "TO", "CF" + std::to_string(k), "F", "05  11  1960", "Asti",
            "AT",    "X",   "Francia", "FR",     "E1", std::to_string(300 + k)};
        const double giu = slot < 4 ? 30 + 15 * slot : 7 + 15 * (slot - 4);
        for (int i = 11; i <= 25; ++i) {
            const std::string& v = valori[static_cast<std::size_t>(i - 11)];
            p.push_back({i == 25 ? destra_mm(50, v) : 2.0 * i, i + giu, v, 14});
        }
    }
    return pagine;
}

TEST_P(QuadroDaUnoAVentitre, PosizioniProprie) {
    const int n = GetParam();
    Banco b;
    prepara(b, n);
    Layout l;
    for (std::size_t i = 1; i <= 26; ++i)
        l.campo[i].posizione = con_zeri(static_cast<long>(2 * i), 3) + con_zeri(static_cast<long>(i), 3);
    l.campo[97].posizione = "030000";
    l.campo[98].posizione = "007";
    l.campo[99].posizione = "015999";
    ASSERT_TRUE(salva_layout(b.memoria, b.prog.err, file_ministeriale(), l));
    b.avvia();
    auto& s = b.schermo<Lumstcx>("lumstcx");
    b.piattaforma.risposte = {Risposta::si, Risposta::si};
    s.Label1[1].premi();
    ASSERT_EQ(b.piattaforma.lavori.size(), 1u);
    confronta(b.piattaforma.lavori[0].pagine, attese_proprie(n));
    EXPECT_EQ(b.piattaforma.stampante.scale_mode(), Scala::twip);
}

INSTANTIATE_TEST_SUITE_P(Fornitori, QuadroDaUnoAVentitre, testing::Range(1, 24));

TEST(Quadro, CorpoDelLayoutPiuCinqueEQuattroSenzaFile) {
    Banco b;
    b.avvia();
    EXPECT_EQ(carica_quadro(b.prog).coordinate.campo[1].corpo, "4");
    EXPECT_EQ(carica_quadro(b.prog).coordinate.campo[100].posizione, "000000");
    Layout l;
    l.campo[1].posizione = "010010";
    l.campo[1].corpo = "7";
    l.campo[2].posizione = "010020";
    l.campo[2].corpo = "grande";
    salva_layout(b.memoria, b.prog.err, file_ministeriale(), l);
    prepara(b, 1);
    const DatiQuadro d = carica_quadro(b.prog);
    stampamod(b.prog, d, {{1, "300,00"}});
    const auto& ops = b.piattaforma.lavori.at(0).pagine.at(0).operazioni;
    ASSERT_EQ(ops.size(), 2u);
    EXPECT_EQ(ops[0].font.punti, 12);
    EXPECT_EQ(ops[1].font.punti, 5);
}

TEST(Quadro, ScostamentiLettiScrittiEMancanti) {
    Banco b;
    b.avvia();
    EXPECT_EQ(carica_scostamenti(b.prog).orizzontale, "0");
    b.testo("lummmi.dxy", {"12"});
    EXPECT_EQ(carica_scostamenti(b.prog).orizzontale, "0") << "a file of one line counts as unreadable";
    auto& s = b.schermo<Lumstcx>("lumstcx");
    s.Text3[2].digita("7.5");
    s.Text3[3].digita("-1");
    s.salvatab();
    EXPECT_EQ(b.file("lummmi.dxy"), "7.5\r\n-1\r\n");
    EXPECT_EQ(carica_scostamenti(b.prog).verticale, "-1");
}

TEST(Quadro, DataDiNascitaCorta) {
    for (std::size_t n = 0; n <= 10; ++n) {
        Banco b;
        prepara(b, 1);
        RecFornitore f{};
        leggi(b.prog.arc.fornitori, 1, f);
        b.avvia();
        ASSERT_TRUE(leggi(b.prog.arc.fornitori, 1, f));
        // Control characters are dropped, so that the date grows short inside its ten characters.
        const std::string tutta = "05/11/1960";
        f.datanas = tutta.substr(0, n) + std::string(10 - n, '\x01');
        scrivi(b.prog.arc.fornitori, 1, f);
        stampamin(b.prog, carica_quadro(b.prog), {{1, "1,00"}}, 0, 0);
        const auto data = [&](std::size_t da, std::size_t quanti) {
            return da > n ? "" : tutta.substr(0, n).substr(da - 1, quanti);
        };
        EXPECT_EQ(b.piattaforma.lavori.at(0).pagine.at(0).operazioni.at(26).testo,
                  data(1, 2) + "    " + data(4, 2) + "    " + data(7, 4));
    }
}

// A printer that fails leaves out what it hit and is given back in twips.
class StampanteGuasta : public RecordingPrinter {
  public:
    int guasta_alla = 0, stampe = 0;
    void print(std::string_view t) override {
        if (++stampe == guasta_alla) throw PrinterFault{};
        RecordingPrinter::print(t);
    }
};

struct PiattaformaGuasta : PiattaformaProva {
    StampanteGuasta guasta;
    Printer& printer() override { return guasta; }
};

TEST(Quadro, StampanteGuastaSiVaAvanti) {
    DiscoMemoria memoria;
    PiattaformaGuasta p;
    Programma prog(memoria, p, "1");
    std::vector<LavoroStampa> lavori;
    p.guasta.finito = [&](LavoroStampa&& l) { lavori.push_back(std::move(l)); };
    prog.apriarchivi();
    p.guasta.guasta_alla = 3;
    DatiQuadro d;
    d.studio[9] = "ABCDEFGHIJKLMNOP";
    stampamin(prog, d, {{1, "10,00"}, {2, "20,00"}}, 0, 0);
    ASSERT_EQ(lavori.size(), 1u);
    EXPECT_EQ(lavori[0].pagine[0].operazioni[2].testo, "D");
    EXPECT_EQ(p.guasta.scale_mode(), Scala::twip);
}

}  // namespace
}  // namespace ambra
