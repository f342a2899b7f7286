#include "print/motore.h"

#include <algorithm>
#include <cmath>

#include "core/numeri.h"
#include "core/testo.h"

namespace ambra {

namespace {

constexpr const char* kSito = "www.lumeria.example";

struct Geometria {
    double x1, x2, y1, y2;  // twips
    double scala;           // twips per unit of column width
};

RecStampa& voce(ContestoStampa& c, int i) {
    if (i < 0 || i >= static_cast<int>(c.tabstampa.size())) throw PrinterFault{};
    return c.tabstampa[static_cast<std::size_t>(i)];
}

Geometria geometria(ContestoStampa& c) {
    const RecStampa& lavoro = voce(c, 0);
    const double w = c.stampante.width(), h = c.stampante.height();
    Geometria g{};
    g.x1 = std::floor(w * lavoro.paginasx / 1000);
    g.x2 = std::floor(w * lavoro.paginadx / 1000);
    g.y1 = std::floor(h * lavoro.paginasu / 1000);
    g.y2 = std::floor(h * lavoro.paginagiu / 1000);
    double somma = 0;
    for (int i = 1; i <= lavoro.colx; ++i) somma += voce(c, i).collarg;
    if (somma == 0) throw PrinterFault{};
    g.scala = (g.x2 - g.x1) / somma;
    return g;
}

// A colour goes to the printer as a 32-bit number; one that does not fit fails the statement.
long colore_lungo(double colore) {
    const double intero = std::nearbyint(colore);
    if (!(intero >= -2147483648.0 && intero <= 2147483647.0)) throw PrinterFault{};
    return static_cast<long>(intero);
}

void carattere(Printer& p, const RecStampa& v) {
    p.font = {std::string(rifila_destra(v.fontnome)), static_cast<double>(v.fontsize), v.fontbold != 0,
              v.fontital != 0};
    p.fore_color = colore_lungo(v.fontcolore);
}

void scrivi_a(Printer& p, double x, double y, std::string_view testo) {
    p.current_x = x;
    p.current_y = y;
    p.print(testo);
}

// What of a cut is kept: a heading keeps the blanks before the dropped character, a cell does not.
enum class Taglio { titolo, cella };

// Drops characters from the right, one at a time, until the trimmed text fits the width.
void adatta(Printer& p, std::string& testo, double larghezza, Taglio taglio) {
    for (;;) {
        std::string_view t = rifila(testo);
        if (p.text_width(t) <= larghezza) return;
        // A text far too long is first halved towards the point where the single steps begin: all that is
        // longer than a prefix that does not fit does not fit either.
        std::size_t corto = 0, lungo = t.size();
        while (lungo - corto > 32) {
            const std::size_t mezzo = (corto + lungo) / 2;
            (p.text_width(rifila(t.substr(0, mezzo))) <= larghezza ? corto : lungo) = mezzo;
        }
        t = rifila(t.substr(0, lungo));
        const bool ultimo = t.size() < 2;
        t.remove_suffix(t.empty() ? 0 : 1);
        testo = std::string(taglio == Taglio::cella ? rifila(t) : t);
        if (ultimo) return;
    }
}

void prepara_cella(ContestoStampa& c, RecStampa& v, double larghezza) {
    if (v.coltesto.find('(') == std::string::npos) {
        double valore = 0;
        if (v.coltipo >= 1) valore = valimporto(v.coltesto);
        const bool rigo = v.coltesto.starts_with("---") || v.coltesto.starts_with("===");
        if (!rigo && v.coltipo >= 1 && v.coltipo <= 4) {
            const bool lire = leggi_numero(c.cambio[1]) == 0;
            const Formato f = v.coltipo == 1   ? (lire ? Formato::intero : Formato::due_decimali)
                              : v.coltipo == 2 ? Formato::due_decimali
                              : v.coltipo == 3 ? Formato::tre_decimali
                                               : Formato::intero_o_nulla;
            v.coltesto = valore == 0 ? "" : formatta(valore, f);
        }
    }
    adatta(c.stampante, v.coltesto, larghezza, Taglio::cella);
}

// One line of cells from entry `prima` + 1 on; the pen walks by the widths of the first line.
void riga_celle(ContestoStampa& c, const Geometria& g, int prima, double y) {
    Printer& p = c.stampante;
    double x = g.x1;
    const int colx = voce(c, 0).colx;
    for (int i = 1; i <= colx; ++i) {
        RecStampa& v = voce(c, i + prima);
        const double larghezza = v.collarg * g.scala;
        prepara_cella(c, v, larghezza);
        if (v.coltipo == 0) p.current_x = x + 50;
        if (v.coltipo > 0) p.current_x = x + larghezza - 50 - p.text_width(v.coltesto);
        p.current_y = y;
        p.print(v.coltesto);
        x += voce(c, i).collarg * g.scala;
    }
}

void riga_titoli(ContestoStampa& c, const Geometria& g, int prima, double y) {
    Printer& p = c.stampante;
    double x = g.x1;
    const int colx = voce(c, 0).colx;
    for (int i = 1; i <= colx; ++i) {
        RecStampa& v = voce(c, i + prima);
        const double larghezza = v.collarg * g.scala;
        adatta(p, v.coltitolo, larghezza, Taglio::titolo);
        const double dove = v.coltipo == 0 ? x + 50 : x + larghezza - 50 - p.text_width(v.coltitolo);
        scrivi_a(p, dove, y, v.coltitolo);
        x += voce(c, i).collarg * g.scala;
    }
}

double base_cornice(const RecStampa& lavoro, const Geometria& g, int rigacorr, double fascia) {
    double base = 0;
    if (lavoro.testata == 0) base = fascia;
    if (lavoro.testata == 1) {
        base = g.y1 + 1300 + static_cast<double>(lavoro.rigaalt) * rigacorr;
        if (lavoro.colall != 1) base += lavoro.rigaalt - 100;
    }
    if (lavoro.testata == 2) base = g.y2;
    return std::max(base, fascia);
}

void piede(ContestoStampa& c, const Geometria& g, double base) {
    Printer& p = c.stampante;
    p.fore_color = 0;
    p.font = {"Arial", 5, false, false};
    scrivi_a(p, g.x1, base + 40, unisci("Lumeria per Windows - ", kSito));
    std::string timbro;
    if (c.npagina != 0) {
        c.npagina = c.npagina == -1 ? 1 : c.npagina + 1;
        timbro = unisci("Stampato in data ", c.oggi, " - Pagina", testo_con_segno(c.npagina));
    }
    scrivi_a(p, g.x2 - p.text_width(timbro), base + 40, timbro);
}

void cornice(ContestoStampa& c, const Geometria& g, double base, double fascia) {
    Printer& p = c.stampante;
    const long colore = colore_lungo(voce(c, 5).fontcolore);
    p.box(g.x1, g.y1, g.x2, base, colore);
    p.box(g.x1, g.y1 + 800, g.x2, fascia, colore);
    double somma = 0;
    for (int i = 1; i < voce(c, 0).colx; ++i) {
        somma += voce(c, i).collarg;
        const double x = g.x1 + g.scala * somma;
        p.line(x, g.y1 + 800, x, base, colore);
    }
}

void testata(ContestoStampa& c, const Geometria& g, const std::string& titolo) {
    Printer& p = c.stampante;
    carattere(p, voce(c, 1));
    scrivi_a(p, g.x1 + 50, g.y1 + 100, titolo);
    p.font.punti = 9;
    scrivi_a(p, g.x1 + 50, g.y1 + 500, c.stabile);
    carattere(p, voce(c, 2));
    for (std::size_t i = 1; i <= 3; ++i) {
        const std::string& s = c.intestazione[i];
        scrivi_a(p, g.x2 - 50 - p.text_width(s), g.y1 + 200 * static_cast<double>(i) - 100, s);
    }
}

void finisci_pagina(ContestoStampa& c) {
    const RecStampa& lavoro = voce(c, 0);
    const std::string titolo = lavoro.coltitolo;
    const Geometria g = geometria(c);
    Printer& p = c.stampante;
    p.draw_width = 2;
    p.fill_style = 1;
    const double fascia = g.y1 + (lavoro.colall == 1 ? 1200 : 1400);
    const double base = base_cornice(lavoro, g, c.rigacorr, fascia);
    cornice(c, g, base, fascia);
    if (lavoro.testata > 0) piede(c, g, base);
    testata(c, g, titolo);
    carattere(p, voce(c, 3));
    riga_titoli(c, g, 0, g.y1 + 900);
    if (lavoro.colall == 2) riga_titoli(c, g, lavoro.colx, g.y1 + 1150);
}

// The dotted rule between the records of a report of two lines.
void filetto(ContestoStampa& c, const Geometria& g, double y) {
    Printer& p = c.stampante;
    p.current_y = y;
    p.draw_style = 2;
    p.line(g.x1, y - 30, g.x2, y - 30, colore_lungo(voce(c, 5).fontcolore));
    p.draw_style = 0;
}

void stampa_record(ContestoStampa& c, int& riga) {
    const RecStampa& lavoro = voce(c, 0);
    const Geometria g = geometria(c);
    Printer& p = c.stampante;
    carattere(p, voce(c, 4));
    const double alta = lavoro.rigaalt;
    double y = g.y1 + 1300 + alta * riga;
    if (lavoro.colall == 2) y += alta - 50;
    if (lavoro.fascia != kNessunaFascia && riga % 2 != 0)
        p.filled_box(g.x1, y - 0.1 * alta, g.x2, y + 0.85 * alta, colore_lungo(lavoro.fascia));
    riga_celle(c, g, 0, y);
    if (lavoro.colall == 2) riga_celle(c, g, lavoro.colx, y + alta - 50);
    riga += lavoro.colall;

    const double spazio = lavoro.colall != 1 ? alta * 2 + 50 : alta + 100;
    if (p.current_y > g.y2 - spazio) {
        finisci_pagina(c);
        riga = 0;
        p.new_page();
    } else if (lavoro.colall == 2 && sinistra(voce(c, 1).coltesto, 6) != "Totale") {
        filetto(c, g, y + 2 * alta);
    }
}

}  // namespace

int xstampainit(ContestoStampa& c) try {
    finisci_pagina(c);
    return 0;
} catch (const PrinterFault&) {
    return c.rigacorr;
}

int xstampago(ContestoStampa& c, int& riga) try {
    stampa_record(c, riga);
    return riga;
} catch (const PrinterFault&) {
    return riga;
}

}  // namespace ambra
