// What tests of the print engine work with: a printer of round figures, a job on it, and pages told as text.
#pragma once

#include <array>
#include <sstream>
#include <string>
#include <vector>

#include "core/testo.h"
#include "print/motore.h"
#include "print/registratore.h"

namespace ambra {

inline std::string racconta(const OperazioneStampa& o) {
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
inline std::string racconta(const PaginaStampa& p) {
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

}  // namespace ambra
