// The ministerial form where layout, shifts, dates or the printer are not as they should be.
#include <gtest/gtest.h>

#include "reports/lumstcx.h"
#include "reports/quadroac.h"
#include "tests/reports/residenti_esteri.h"

namespace ambra {
namespace {

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
