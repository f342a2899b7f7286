// The print engine: whole recorded pages, branch by branch, cuts against the plain loop, rubbish and faults.
#include "print/motore.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "core/testo.h"
#include "print/registratore.h"

namespace ambra {
namespace {

std::string racconta(const OperazioneStampa& o) {
    std::ostringstream s;
    using T = OperazioneStampa::Tipo;
    if (o.tipo == T::testo) {
        s << "text " << o.x1 << ' ' << o.y1 << " [" << o.testo << "] " << o.font.nome << ' ' << o.font.punti
          << (o.font.grassetto ? " b" : "") << (o.font.corsivo ? " i" : "");
    } else {
        const char* nome = o.tipo == T::linea      ? (o.stile == 2 ? "dots " : "line ")
                           : o.tipo == T::riquadro ? "box "
                           : o.tipo == T::pieno    ? "fill "
                                                   : "rich ";
        s << nome << o.x1 << ' ' << o.y1 << ' ' << o.x2 << ' ' << o.y2;
    }
    s << " #" << o.colore << '\n';
    return s.str();
}

// One operation a line, so that a failed comparison reads as a page.
std::string racconta(const PaginaStampa& p) {
    std::string s;
    for (const auto& o : p.operazioni) s += racconta(o);
    return s;
}

// A printer of round figures that can fail on demand: 10000 x 20000 twips, every character 100 twips wide
// at 10 points.
class StampanteTonda : public RecordingPrinter {
  public:
    double width() const override { return 10000; }
    double height() const override { return 20000; }
    double text_width(std::string_view t) override {
        operazione();
        return static_cast<double>(t.size()) * 10 * font.punti;
    }
    void print(std::string_view t) override {
        operazione();
        RecordingPrinter::print(t);
    }
    void line(double a, double b, double c, double d, long k) override {
        operazione();
        RecordingPrinter::line(a, b, c, d, k);
    }
    void box(double a, double b, double c, double d, long k) override {
        operazione();
        RecordingPrinter::box(a, b, c, d, k);
    }
    void filled_box(double a, double b, double c, double d, long k) override {
        operazione();
        RecordingPrinter::filled_box(a, b, c, d, k);
    }
    void new_page() override {
        operazione();
        RecordingPrinter::new_page();
    }
    int operazioni = 0;
    int guasto_a = -1;  ///< the operation that fails

  private:
    void operazione() {
        if (operazioni++ == guasto_a) throw PrinterFault{};
    }
};

// A job of two columns, 3 and 5 wide, on the area from 1000, 1000 to 9000, 18000.
struct Lavoro {
    StampanteTonda stampante;
    std::array<RecStampa, 81> tab;
    Cambio cambio;
    std::array<std::string, 21> intestazione;
    int rigacorr = 0, npagina = -1;
    ContestoStampa c{stampante, tab, cambio, intestazione, "AURORA", "15/03/2024", rigacorr, npagina};
    std::vector<PaginaStampa> pagine;

    Lavoro() {
        cambio[1] = "1";
        intestazione[1] = "Studio";
        intestazione[2] = "Via";
        intestazione[3] = "Roma";
        RecStampa& t = tab[0];
        t.paginasx = 100;
        t.paginadx = 900;
        t.paginasu = 50;
        t.paginagiu = 900;
        t.testata = 2;
        t.rigaalt = 200;
        t.fascia = kNessunaFascia;
        t.coltitolo = "Titolo";
        const char* facce[] = {"", "Uno", "Due", "Tre", "Quattro", "Cinque"};
        for (std::size_t i = 1; i <= 5; ++i) {
            tab[i].fontnome = riempi(facce[i], 30);
            tab[i].fontsize = 10;
            tab[i].fontcolore = static_cast<double>(i);
        }
        tab[1].fontsize = 14;
        tab[1].fontbold = 1;
        tab[2].fontital = 1;
        stampante.finito = [this](LavoroStampa&& l) { pagine = std::move(l.pagine); };
        colonne({{"Alfa", 3, 0}, {"Beta", 5, 1}});
    }
    struct Col {
        std::string titolo;
        int larghezza, tipo;
    };
    void colonne(std::vector<Col> tutte, int colall = 1) {
        tab[0].colx = static_cast<int>(tutte.size()) / colall;
        tab[0].colall = colall;
        for (std::size_t i = 0; i < tutte.size(); ++i) {
            tab[i + 1].coltitolo = tutte[i].titolo;
            tab[i + 1].collarg = tutte[i].larghezza;
            tab[i + 1].coltipo = tutte[i].tipo;
        }
    }
    void riga(std::vector<std::string> celle) {
        for (std::size_t i = 0; i < celle.size(); ++i) tab[i + 1].coltesto = celle[i];
        xstampago(c, rigacorr);
    }
    void fine() {
        if (rigacorr > 0) {
            rigacorr = xstampainit(c);
            stampante.new_page();
        }
        stampante.end_doc();
    }
    // What the engine leaves of a cell in a single column of that width.
    std::string cella(const std::string& testo, int tipo, int larghezza_twip = 8000) {
        tab[0].paginadx = 100 + larghezza_twip / 10;
        colonne({{"", 1, tipo}});
        rigacorr = 0;
        riga({testo});
        return tab[1].coltesto;
    }
};

constexpr const char* kMobilia =
    "text 1050 1100 [Titolo] Uno 14 b #1\n"
    "text 1050 1500 [AURORA] Uno 9 b #1\n"
    "text 8350 1100 [Studio] Due 10 i #2\n"
    "text 8650 1300 [Via] Due 10 i #2\n"
    "text 8550 1500 [Roma] Due 10 i #2\n";

TEST(Motore, UnaPaginaIntera) {
    Lavoro l;
    l.riga({"primo", "1.234,50"});
    l.riga({"secondo", "0,00"});
    l.fine();
    ASSERT_EQ(l.pagine.size(), 1u);
    EXPECT_EQ(racconta(l.pagine[0]),
              "text 1050 2300 [primo] Quattro 10 #4\n"
              "text 8150 2300 [1.234,50] Quattro 10 #4\n"
              "text 1050 2500 [secondo] Quattro 10 #4\n"
              "box 1000 1000 9000 18000 #5\n"
              "box 1000 1800 9000 2200 #5\n"
              "line 4000 1800 4000 18000 #5\n"
              "text 1000 18040 [Lumeria per Windows - www.lumeria.example] Arial 5 #0\n"
              "text 7100 18040 [Stampato in data 15/03/2024 - Pagina 1] Arial 5 #0\n" +
                  std::string(kMobilia) +
                  "text 1050 1900 [Alfa] Tre 10 #3\n"
                  "text 8550 1900 [Beta] Tre 10 #3\n");
}

TEST(Motore, LaCorniceSecondoLaTestata) {
    struct Caso {
        int testata, colall, righe;
        double base;
    };
    // The band ends at 2200 with one line a record, at 2400 with two.
    const Caso casi[] = {
        {0, 1, 3, 2200}, {0, 2, 3, 2400},  {1, 1, 1, 2500},  {1, 1, 3, 2900},
        {1, 2, 1, 2800}, {1, 2, 3, 3600},  {2, 1, 1, 18000}, {2, 2, 1, 18000},
        {3, 1, 3, 2200}, {-1, 1, 3, 2200}, {9, 2, 3, 2400},
    };
    for (const Caso& k : casi) {
        Lavoro l;
        l.tab[0].testata = k.testata;
        l.colonne({{"A", 1, 0}, {"B", 1, 0}}, k.colall);
        for (int i = 0; i < k.righe; ++i) l.riga({"x", "y"});
        l.fine();
        ASSERT_EQ(l.pagine.size(), 1u);
        double base = 0, fascia = 0;
        int piedi = 0;
        for (const auto& o : l.pagine[0].operazioni) {
            if (o.tipo == OperazioneStampa::Tipo::riquadro) (o.y1 == 1000 ? base : fascia) = o.y2;
            if (o.tipo == OperazioneStampa::Tipo::testo && o.font.punti == 5) {
                EXPECT_EQ(o.y1, k.base + 40);
                ++piedi;
            }
        }
        EXPECT_EQ(base, k.base) << k.testata << ' ' << k.colall;
        EXPECT_EQ(fascia, k.colall == 1 ? 2200 : 2400);
        // Footer and stamp only above 0, and only then does the page number move.
        EXPECT_EQ(piedi, k.testata > 0 ? 2 : 0) << k.testata;
        EXPECT_EQ(l.npagina, k.testata > 0 ? 1 : -1);
    }
}

TEST(Motore, LaCorniceNonSaleSopraLaFasciaDeiTitoli) {
    Lavoro l;
    l.tab[0].testata = 1;
    l.tab[0].rigaalt = -500;
    l.riga({"x", "1"});
    l.fine();
    ASSERT_EQ(l.pagine.size(), 1u);
    const std::string tutto = racconta(l.pagine[0]);
    EXPECT_NE(tutto.find("box 1000 1000 9000 2200 #5\nbox 1000 1800 9000 2200 #5\n"), std::string::npos);
}

TEST(Motore, DueRigheARecord) {
    Lavoro l;
    l.colonne({{"Uno", 3, 0}, {"Due", 5, 1}, {"Tre", 3, 0}, {"Quattro", 4, 1}}, 2);
    l.riga({"a", "10", "b", "20"});
    l.riga({"Totale generale", "30", "c", "40"});
    l.riga({"TOTALE", "", "d", ""});
    l.fine();
    ASSERT_EQ(l.pagine.size(), 1u);
    // The second line keeps the column starts of the first and the widths of its own entries.
    EXPECT_EQ(racconta(l.pagine[0]),
              "text 1050 2450 [a] Quattro 10 #4\n"
              "text 8450 2450 [10,00] Quattro 10 #4\n"
              "text 1050 2600 [b] Quattro 10 #4\n"
              "text 7450 2600 [20,00] Quattro 10 #4\n"
              "dots 1000 2820 9000 2820 #5\n"
              "text 1050 2850 [Totale generale] Quattro 10 #4\n"
              "text 8450 2850 [30,00] Quattro 10 #4\n"
              "text 1050 3000 [c] Quattro 10 #4\n"
              "text 7450 3000 [40,00] Quattro 10 #4\n"
              "text 1050 3250 [TOTALE] Quattro 10 #4\n"
              "text 1050 3400 [d] Quattro 10 #4\n"
              "dots 1000 3620 9000 3620 #5\n"
              "box 1000 1000 9000 18000 #5\n"
              "box 1000 1800 9000 2400 #5\n"
              "line 4000 1800 4000 18000 #5\n"
              "text 1000 18040 [Lumeria per Windows - www.lumeria.example] Arial 5 #0\n"
              "text 7100 18040 [Stampato in data 15/03/2024 - Pagina 1] Arial 5 #0\n" +
                  std::string(kMobilia) +
                  "text 1050 1900 [Uno] Tre 10 #3\n"
                  "text 8650 1900 [Due] Tre 10 #3\n"
                  "text 1050 2150 [Tre] Tre 10 #3\n"
                  "text 7250 2150 [Quattro] Tre 10 #3\n");
}

TEST(Motore, LaFasciaStaSottoLeRigheDispari) {
    Lavoro l;
    l.tab[0].fascia = 12345;
    for (int i = 0; i < 4; ++i) l.riga({"x", "1"});
    l.fine();
    std::string fasce;
    for (const auto& o : l.pagine[0].operazioni)
        if (o.tipo == OperazioneStampa::Tipo::pieno) fasce += racconta(o);
    EXPECT_EQ(fasce, "fill 1000 2480 9000 2670 #12345\nfill 1000 2880 9000 3070 #12345\n");
    EXPECT_EQ(l.pagine[0].operazioni[2].tipo, OperazioneStampa::Tipo::pieno) << "drawn before its text";

    Lavoro due;  // two lines a record: the counter is never odd
    due.tab[0].fascia = 12345;
    due.colonne({{"A", 1, 0}, {"B", 1, 0}}, 2);
    for (int i = 0; i < 4; ++i) due.riga({"x", "y"});
    due.fine();
    for (const auto& o : due.pagine[0].operazioni) EXPECT_NE(o.tipo, OperazioneStampa::Tipo::pieno);
}

TEST(Motore, LaFasciaRicominciaAdOgniPagina) {
    Lavoro l;
    l.tab[0].fascia = 12345;
    for (int i = 0; i < 80; ++i) l.riga({"x", "1"});
    l.fine();
    ASSERT_EQ(l.pagine.size(), 2u);
    std::string fasce;
    for (const auto& o : l.pagine[1].operazioni)
        if (o.tipo == OperazioneStampa::Tipo::pieno) fasce += racconta(o);
    EXPECT_EQ(fasce, "fill 1000 2480 9000 2670 #12345\n");
}

TEST(Motore, LaPaginaSiRompeDopoLaRigaCheLaRiempie) {
    // Row r stands at 2300 + 200 r and leaves the pen 230 below; the limit is 18000 - 300 = 17700.
    // Row 75 leaves it at 17530, row 76 at 17730: a page holds 77.
    for (const int righe : {76, 77, 78, 154, 155}) {
        Lavoro l;
        for (int i = 0; i < righe; ++i) l.riga({std::to_string(i), "1"});
        EXPECT_EQ(l.rigacorr, righe % 77);
        l.fine();
        const auto attese = static_cast<std::size_t>((righe + 76) / 77);
        ASSERT_EQ(l.pagine.size(), attese) << righe;
        EXPECT_EQ(l.npagina, static_cast<int>(attese));
        for (std::size_t p = 0; p < attese; ++p) {
            const std::string tutto = racconta(l.pagine[p]);
            EXPECT_NE(tutto.find(" - Pagina " + std::to_string(p + 1) + "]"), std::string::npos);
            EXPECT_NE(tutto.find("[" + std::to_string(p * 77) + "] Quattro"), std::string::npos);
            EXPECT_EQ(tutto.find("[" + std::to_string((p + 1) * 77) + "] Quattro"), std::string::npos);
        }
    }
}

TEST(Motore, LUltimoRecordDiUnaPaginaNonHaIlPuntinato) {
    // Record r at 2450 + 400 r, its second line 150 below, the pen 230 more: 2830 + 400 r against
    // 18000 - 450 = 17550. Record 36 leaves 17230, record 37 17630.
    Lavoro l;
    l.colonne({{"A", 1, 0}, {"B", 1, 0}}, 2);
    for (int i = 0; i < 38; ++i) l.riga({"x", "y"});
    EXPECT_EQ(l.rigacorr, 0);
    l.fine();
    ASSERT_EQ(l.pagine.size(), 1u);
    int puntinati = 0;
    for (const auto& o : l.pagine[0].operazioni) puntinati += o.stile == 2 ? 1 : 0;
    EXPECT_EQ(puntinati, 37);
}

TEST(Motore, UnLavoroSenzaRigheNonStampaNulla) {
    Lavoro l;
    l.fine();
    EXPECT_TRUE(l.pagine.empty());
    EXPECT_EQ(l.stampante.operazioni, 0);
}

TEST(Motore, SenzaTimbroConNpaginaZero) {
    Lavoro l;
    l.npagina = 0;
    l.riga({"x", "1"});
    l.fine();
    const std::string tutto = racconta(l.pagine[0]);
    EXPECT_EQ(tutto.find("Stampato"), std::string::npos);
    EXPECT_NE(tutto.find("Lumeria per Windows - "), std::string::npos);
    EXPECT_EQ(l.npagina, 0);
}

TEST(Motore, UnaColonnaNonDescrittaMostraQuelCheLaTavolaTiene) {
    Lavoro l;
    l.tab[3].coltitolo = "Ieri";
    l.tab[3].collarg = 2;
    l.tab[3].coltipo = 1;
    l.tab[3].coltesto = "7,5";
    l.tab[0].colx = 3;
    l.riga({"x", "1"});
    l.riga({"y", "2"});
    l.fine();
    const std::string tutto = racconta(l.pagine[0]);
    EXPECT_NE(tutto.find("text 8550 2300 [7,50]"), std::string::npos);
    EXPECT_NE(tutto.find("text 8550 2500 [7,50]"), std::string::npos) << "printed text is read again";
    EXPECT_NE(tutto.find("text 8550 1900 [Ieri]"), std::string::npos);
}

TEST(Motore, IlTitoloTagliatoRestaTagliato) {
    Lavoro l;
    l.colonne({{"Intestazione", 1, 0}, {"Mezza riga", 15, 1}, {"AB CD", 1, 1}});
    // 8000 twips over 17: a narrow column is 470 wide, four characters.
    for (int i = 0; i < 78; ++i) l.riga({"x", "1", "2"});
    EXPECT_EQ(l.tab[1].coltitolo, "Inte");
    l.fine();
    EXPECT_EQ(l.tab[2].coltitolo, "Mezza riga");
    EXPECT_EQ(l.tab[3].coltitolo, "AB C");
    ASSERT_EQ(l.pagine.size(), 2u);
    for (const auto& p : l.pagine) EXPECT_NE(racconta(p).find("text 1050 1900 [Inte]"), std::string::npos);
}

TEST(Motore, IlTitoloTagliatoTieneIBianchi) {
    // A heading keeps the blanks before the dropped character, and its right edge counts them.
    Lavoro l;
    l.tab[0].paginadx = 250;
    l.colonne({{"AB  CD", 4, 1}, {"", 16, 0}});
    l.riga({"", ""});
    l.fine();
    EXPECT_EQ(l.tab[1].coltitolo, "AB  ");
    EXPECT_NE(racconta(l.pagine[0]).find("text 850 1900 [AB  ]"), std::string::npos);
}

TEST(Motore, LaCellaTagliataPerdeAncheIBianchi) {
    Lavoro l;
    EXPECT_EQ(l.cella("AB  CD", 0, 300), "AB");
    EXPECT_EQ(l.cella("ABCD  ", 0, 400), "ABCD  ") << "what fits when trimmed stays as it stands";
    EXPECT_EQ(l.cella("  ABCDE", 0, 400), "ABCD");
    EXPECT_EQ(l.cella("ABCDE", 0, 50), "");
    EXPECT_EQ(l.cella("", 0, 50), "");
}

TEST(Motore, LeCelleNumeriche) {
    struct Caso {
        const char* testo;
        int tipo;
        const char* stampato;
    };
    const Caso casi[] = {
        {"1.234,50", 1, "1.234,50"},
        {"1234,5", 1, "1.234,50"},
        {"-1.000,25", 1, "-1.000,25"},
        {"0,00", 1, ""},
        {"0", 1, ""},
        {"", 1, ""},
        {"Totale", 1, ""},
        {"12 mele", 1, "12,00"},
        {"  7,1  ", 1, "7,10"},
        {"1,005", 1, "1,01"},
        {"(1.000,00)", 1, "(1.000,00)"},
        {"1.000 (", 3, "1.000 ("},
        {"1.234,50", 2, "1.234,50"},
        {"1,2345", 3, "1,235"},
        {"1.234,50", 3, "1.234,500"},
        {"0", 3, ""},
        {"1.234,50", 4, "1.235"},
        {"0,4", 4, ""},
        {" 12", 4, "12"},
        {"1.234,50", 5, "1234.50"},
        {"a.b,c", 5, "ab.c"},
        {"1..5", 5, "1.5"},
        {"0,00", 5, "0.00"},
        {"1.234,50", 0, "1.234,50"},
        {"0,00", 0, "0,00"},
        {"1.234,50", -1, "1.234,50"},
        {"---", 1, "---"},
        {"===abc", 2, "===abc"},
        {"  ---", 1, "---"},
        {"--", 1, ""},
        {"--- 1.5,", 1, "--- 15."},
    };
    for (const Caso& k : casi) {
        Lavoro l;
        EXPECT_EQ(l.cella(k.testo, k.tipo), k.stampato) << k.testo << " type " << k.tipo;
    }
}

TEST(Motore, InLireSiArrotondaAllUnita) {
    Lavoro l;
    l.cambio[1] = "0";
    EXPECT_EQ(l.cella("1.234,50", 1), "1.235");
    EXPECT_EQ(l.cella("1.234,50", 2), "1.234,50");
    EXPECT_EQ(l.cella("0,40", 1), "0");
    l.cambio[1] = "abc";
    EXPECT_EQ(l.cella("1.234,50", 1), "1.235");
    l.cambio[1] = "2";
    EXPECT_EQ(l.cella("1.234,50", 1), "1.234,50");
}

TEST(Motore, UnaCorsaDiTrattiniELargaQuantoLaColonna) {
    for (const int tipo : {0, 1, 3, 5}) {
        Lavoro l;
        EXPECT_EQ(l.cella(std::string(200, '-'), tipo, 4000), std::string(40, '-')) << tipo;
        EXPECT_EQ(l.cella(std::string(200, '='), tipo, 4050), std::string(40, '=')) << tipo;
    }
}

TEST(Motore, UnImportoLargoQuantoLaColonnaEsceASinistra) {
    Lavoro l;
    l.cella("12345,67", 5, 800);
    l.fine();
    EXPECT_NE(racconta(l.pagine[0]).find("text 950 2300 [12345.67] Quattro"), std::string::npos);
    EXPECT_EQ(l.cella("912345,67", 5, 800), "912345.6") << "the last digit goes without a sign";
}

TEST(Motore, UnTipoNegativoNonSiPosiziona) {
    Lavoro l;
    l.colonne({{"A", 1, 0}, {"B", 1, -1}});
    l.riga({"x", "y"});
    l.fine();
    const std::string tutto = racconta(l.pagine[0]);
    EXPECT_NE(tutto.find("text 0 2300 [y]"), std::string::npos);
    EXPECT_NE(tutto.find("text 8850 1900 [B]"), std::string::npos) << "its heading stands right";
}

TEST(Motore, OltreLaTavolaNullaSiStampa) {
    struct Caso {
        int colx, colall;
    };
    for (const Caso k : {Caso{81, 1}, {32767, 1}, {0, 1}, {-5, 1}, {0, 2}}) {
        Lavoro l;
        l.tab[0].colx = k.colx;
        l.tab[0].colall = k.colall;
        l.riga({"x"});
        EXPECT_EQ(l.rigacorr, 0) << k.colx;
        EXPECT_EQ(xstampainit(l.c), 0);
        l.fine();
        EXPECT_TRUE(l.pagine.empty());
    }
    Lavoro l;  // the second lines reach past entry 80: what fails is abandoned there
    l.tab[0].colx = 41;
    l.tab[0].colall = 2;
    l.riga({"x"});
    EXPECT_EQ(l.rigacorr, 0);
}

TEST(Motore, UnColoreFuoriMisuraFermaLaChiamata) {
    Lavoro l;
    for (const double colore : {1e300, -1e300, 2147483648.0}) {
        l.tab[4].fontcolore = colore;
        l.riga({"x", "1"});
        EXPECT_EQ(l.rigacorr, 0);
    }
    l.tab[4].fontcolore = 2.5;  // half to even
    l.riga({"x", "1"});
    l.fine();
    EXPECT_NE(racconta(l.pagine[0]).find("[x] Quattro 10 #2\n"), std::string::npos);
}

// ---- the cut, against the plain loop ----

std::string taglio_semplice(std::string testo, double larghezza, bool cella) {
    for (;;) {
        const std::string t(rifila(testo));
        if (static_cast<double>(t.size()) * 100 <= larghezza) return testo;
        testo = t.empty() ? "" : t.substr(0, t.size() - 1);
        if (cella) testo = std::string(rifila(testo));
        if (t.size() < 2) return testo;
    }
}

TEST(Motore, IlTaglioSveltoDaQuelloPassoPasso) {
    constexpr unsigned kSeme = 20240315;
    std::mt19937 caso(kSeme);
    const auto tra = [&](int a, int b) { return std::uniform_int_distribution<int>(a, b)(caso); };
    for (int giro = 0; giro < 3000; ++giro) {
        std::string testo;
        const int n = giro % 100 == 0 ? tra(2000, 10000) : tra(0, 300);
        const int bianchi = tra(0, 9);
        for (int i = 0; i < n; ++i) testo += tra(0, 9) < bianchi ? ' ' : static_cast<char>('a' + tra(0, 25));
        const int larghezza = tra(0, 4) == 0 ? tra(1, 20) * 10 : tra(1, 800) * 10;
        Lavoro l;
        ASSERT_EQ(l.cella(testo, 0, larghezza), taglio_semplice(testo, larghezza, true))
            << "round " << giro << " of seed " << kSeme;
        l.tab[1].coltitolo = testo;
        l.fine();
        ASSERT_EQ(l.tab[1].coltitolo, taglio_semplice(testo, larghezza, false))
            << "heading of round " << giro << " of seed " << kSeme;
    }
}

TEST(Motore, CelleDiDiecimilaCaratteri) {
    for (const int tipo : {0, 1, 2, 3, 4, 5}) {
        Lavoro l;
        EXPECT_EQ(l.cella(std::string(10000, 'x'), tipo).size(), tipo == 0 || tipo == 5 ? 80u : 0u);
        EXPECT_LE(l.cella(std::string(10000, '9'), tipo).size(), 80u);
        EXPECT_LE(l.cella(std::string(10000, '.'), tipo).size(), 80u);
        EXPECT_LE(l.cella(std::string(10000, ','), tipo).size(), 80u);
        EXPECT_EQ(rifila(l.cella(std::string(10000, ' '), tipo)), "");
        l.tab[1].coltitolo = std::string(10000, 'w');
        l.fine();
        EXPECT_EQ(l.tab[1].coltitolo.size(), 80u);
    }
}

// ---- rubbish in the print table ----

TEST(Motore, GeometrieAssurdeNonFannoDanni) {
    const int valori[] = {0, 1, -1, 30, 950, 1000, 32767, -32768};
    const auto prova = [](auto imposta) {
        Lavoro l;
        imposta(l.tab);
        for (int i = 0; i < 60; ++i) {
            l.riga({"testo piuttosto lungo", "1.234,50"});
            ASSERT_GE(l.rigacorr, 0);
            ASSERT_LE(l.rigacorr, 60);
        }
        l.fine();
        ASSERT_LE(l.pagine.size(), 61u);
    };
    for (const int a : valori) {
        for (const int b : valori) {
            prova([&](auto& t) { t[0].paginasx = a, t[0].paginadx = b; });
            prova([&](auto& t) { t[0].paginasu = a, t[0].paginagiu = b; });
            prova([&](auto& t) { t[0].rigaalt = a, t[4].fontsize = b; });
            prova([&](auto& t) { t[0].testata = a, t[3].fontsize = b; });
            prova([&](auto& t) { t[1].collarg = a, t[2].collarg = b; });
            prova([&](auto& t) { t[1].coltipo = a, t[0].colx = b; });
        }
    }
    prova([](auto& t) {
        for (std::size_t i = 1; i <= 5; ++i) t[i].fontnome = "";
    });
}

TEST(Motore, UnaPaginaSenzaAltezzaTieneUnaRiga) {
    Lavoro l;
    l.tab[0].paginagiu = 50;
    for (int i = 0; i < 3; ++i) l.riga({"x", "1"});
    l.fine();
    EXPECT_EQ(l.pagine.size(), 3u);
    EXPECT_EQ(l.npagina, 3);
}

// ---- a printer that fails in the middle ----

void lavora(Lavoro& l) {
    l.tab[0].fascia = 255;
    l.colonne({{"Uno", 3, 0}, {"Due", 5, 1}, {"Tre", 3, 0}, {"Quattro", 4, 1}}, 2);
    for (int i = 0; i < 80; ++i) l.riga({"a", "10", "b", "20"});
    try {
        l.fine();
    } catch (const PrinterFault&) {
        l.stampante.end_doc();
    }
}

TEST(Motore, UnaStampanteCheCadeNonFermaIlLavoro) {
    Lavoro intero;
    lavora(intero);
    const int tutte = intero.stampante.operazioni;
    ASSERT_GT(tutte, 500);
    for (int n = 0; n < tutte; ++n) {
        Lavoro l;
        l.stampante.guasto_a = n;
        lavora(l);
        // One fault abandons one call; all the others still reach the paper.
        ASSERT_GE(l.pagine.size() + 1, intero.pagine.size()) << n;
        ASSERT_GT(l.stampante.operazioni, tutte * 9 / 10) << n;
    }
}

TEST(Motore, IlGuastoNellaFineDiPaginaAbbandonaLaChiamata) {
    // Row 76 fills the page, and its furniture fails: no new page, the counter goes on, and the next row
    // finishes the page.
    Lavoro l;
    for (int i = 0; i < 76; ++i) l.riga({"x", "1"});
    l.stampante.guasto_a = l.stampante.operazioni + 5;  // the first box
    l.riga({"x", "1"});
    EXPECT_EQ(l.stampante.operazioni, l.stampante.guasto_a + 1);
    EXPECT_EQ(l.rigacorr, 77);
    EXPECT_EQ(l.npagina, -1);
    l.riga({"x", "1"});
    EXPECT_EQ(l.rigacorr, 0);
    EXPECT_EQ(l.npagina, 1);
    l.fine();
    EXPECT_EQ(l.pagine.size(), 1u);
}

}  // namespace
}  // namespace ambra
