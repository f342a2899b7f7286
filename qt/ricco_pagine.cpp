#include "qt/ricco_pagine.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextFrame>
#include <QTextLayout>
#include <algorithm>

#include "qt/ricco_guide.h"

namespace ambra {

namespace {

enum Ricordo {
    kInCima = QTextFormat::UserProperty + 11,
    kSopra,
    kConIlProssimo,
    kInsieme,
    kSenzaVedove,
    kBordoSopra,
    kBordoSotto
};
constexpr double kUnPoco = 1;  // a line that is too tall by this still fits

// What a page break never divides: a line, or lines of cells that stand side by side.
struct Unita {
    double da = 0, a = 0;
    int blocco_da = 0, blocco_a = 0;
    int prima = 0, dopo = 0;  // lines of the same paragraph before and behind it
    bool in_cima = false, con_il_prossimo = false, insieme = false, senza_vedove = false;
    double bordo = 0;  // room for the line that closes a table where it is cut
    double sopra = 0;  // spacing that a page keeps that begins here by request
};

Unita unita(double da, double a) {
    Unita u;
    u.da = da;
    u.a = a;
    return u;
}

// The lines of a block, the gaps between them included.
template <class F>
void per_ogni_linea(const QTextDocument& doc, const QTextBlock& b, const F& fai) {
    const QTextLayout* l = b.layout();
    const QRectF r = posto_di(doc, b);
    const int n = l ? l->lineCount() : 0;
    for (int i = 0; i < std::max(n, 1); ++i)
        fai(i == 0 ? r.top() : r.top() + l->lineAt(i).y(),
            i + 1 < n ? r.top() + l->lineAt(i + 1).y() : r.bottom(), i, std::max(n, 1));
}

class Unitario {
  public:
    Unitario(const QTextDocument& doc, const rtf::Documento& d, const std::vector<TabellaPosata>& tabelle)
        : doc_(doc), d_(d), tabelle_(tabelle) {
        doc.documentLayout()->documentSize();  // the library lays long texts out by and by: now all of it
        for (auto it = doc.rootFrame()->begin(); !it.atEnd(); ++it) {
            if (it.currentFrame()) {
                tabella(it.currentFrame());
            } else {
                paragrafo(it.currentBlock());
            }
        }
    }
    std::vector<Unita> tutte;

  private:
    void paragrafo(const QTextBlock& b) {
        const QTextBlockFormat f = b.blockFormat();
        per_ogni_linea(doc_, b, [&](double da, double a, int i, int n) {
            Unita u = unita(da, a);
            u.blocco_da = u.blocco_a = b.blockNumber();
            if (i == 0) u.da -= f.doubleProperty(kBordoSopra);
            if (i == n - 1) u.a += f.doubleProperty(kBordoSotto);
            u.con_il_prossimo = f.boolProperty(kConIlProssimo);
            u.insieme = f.boolProperty(kInsieme);
            u.senza_vedove = f.boolProperty(kSenzaVedove);
            u.sopra = f.doubleProperty(kSopra);
            u.prima = i;
            u.dopo = n - 1 - i;
            u.in_cima = i == 0 && f.boolProperty(kInCima);
            tutte.push_back(u);
        });
    }

    void tabella(QTextFrame* quale) {
        for (const TabellaPosata& t : tabelle_) {
            if (t.tabella != quale) continue;
            const AltezzeRighe y(doc_, *t.tabella);
            for (int r = 0; r < t.tabella->rows(); ++r)
                riga(t, r, y.sopra[static_cast<std::size_t>(r)], y.sotto[static_cast<std::size_t>(r)]);
        }
    }

    // A row is cut where no cell has a line.
    void riga(const TabellaPosata& t, int r, double sopra, double sotto) {
        const std::size_t inizio = tutte.size();
        if (!d_.righe[static_cast<std::size_t>(t.prima + r)].insieme) linee_di_celle(t, r);
        std::sort(tutte.begin() + static_cast<std::ptrdiff_t>(inizio), tutte.end(),
                  [](const Unita& a, const Unita& b) { return a.da < b.da; });
        std::size_t ultima = inizio;
        for (std::size_t i = inizio + 1; i < tutte.size(); ++i) {
            if (tutte[i].da < tutte[ultima].a - kUnPoco) {
                tutte[ultima].a = std::max(tutte[ultima].a, tutte[i].a);
            } else {
                tutte[++ultima] = tutte[i];
            }
        }
        tutte.resize(std::min(tutte.size(), ultima + 1));
        if (tutte.size() == inizio) tutte.push_back(unita(sopra, sotto));
        int bordo = 0;
        for (const rtf::Cella& c : d_.righe[static_cast<std::size_t>(t.prima + r)].celle)
            bordo = std::max(bordo, c.sotto.spessore);
        for (std::size_t i = inizio; i < tutte.size(); ++i) {
            tutte[i].bordo = bordo;
            // A cell may go down several rows: any of the table's may reach here.
            tutte[i].blocco_da = t.tabella->firstCursorPosition().blockNumber();
            tutte[i].blocco_a = t.tabella->lastCursorPosition().blockNumber();
        }
        tutte[inizio].da = sopra;
        tutte.back().a = std::max(sotto, sopra);
    }

    void linee_di_celle(const TabellaPosata& t, int r) {
        for (int c = 0; c < t.tabella->columns(); ++c) {
            const QTextTableCell cella = t.tabella->cellAt(r, c);
            if (cella.row() != r || cella.column() != c || cella.rowSpan() != 1) continue;
            for (auto it = cella.begin(); !it.atEnd(); ++it)
                per_ogni_linea(doc_, it.currentBlock(),
                               [&](double da, double a, int, int) { tutte.push_back(unita(da, a)); });
        }
    }

    const QTextDocument& doc_;
    const rtf::Documento& d_;
    const std::vector<TabellaPosata>& tabelle_;
};

std::size_t inizio_paragrafo(const std::vector<Unita>& u, std::size_t k) {
    return k - std::min(k, static_cast<std::size_t>(u[k].prima));
}

// Where a page that begins with unit `prima` ends when unit `k` has no room on it.
std::size_t taglio(const std::vector<Unita>& u, std::size_t prima, std::size_t k) {
    std::size_t t = k;
    if (u[t].insieme) t = inizio_paragrafo(u, t);
    if (u[t].senza_vedove) {
        if (u[t].prima > 1 && u[t].dopo == 0) --t;
        if (u[t].prima == 1 || (u[t].prima > 0 && u[t].dopo == 0)) t = inizio_paragrafo(u, t);
    }
    while (t > prima && u[t].prima == 0 && u[t - 1].con_il_prossimo) t = inizio_paragrafo(u, t - 1);
    return t > prima ? t : k;
}

}  // namespace

std::vector<Fetta> taglia_pagine(const QTextDocument& doc, const rtf::Documento& d,
                                 const std::vector<TabellaPosata>& tabelle, double alta) {
    const std::vector<Unita> u = Unitario(doc, d, tabelle).tutte;
    std::vector<Fetta> pagine;
    std::size_t prima = 0;
    while (prima < u.size()) {
        const bool chiesta = prima == 0 || u[prima].in_cima;
        const double resta = std::max(alta - (u[prima].a - u[prima].da), 0.0);
        double da = u[prima].da - (chiesta ? std::min(u[prima].sopra, resta) : 0);
        // What is taller than a page goes over several.
        for (; u[prima].a - da > alta + kUnPoco; da += alta)
            pagine.push_back({da, da + alta, u[prima].blocco_da, u[prima].blocco_a});
        std::size_t k = prima + 1;
        while (k < u.size() && !u[k].in_cima && u[k].a + u[k].bordo - da <= alta + kUnPoco) ++k;
        if (k < u.size() && !u[k].in_cima) k = taglio(u, prima, k);
        pagine.push_back({da, u[k - 1].a, u[prima].blocco_da, u[k - 1].blocco_a});
        prima = k;
    }
    if (pagine.empty()) pagine.push_back({0, alta});
    return pagine;
}

void disegna_linee(QPainter& p, const QTextDocument& doc, const Fetta& fetta) {
    for (QTextBlock b = doc.findBlockByNumber(fetta.blocco_da);
         b.isValid() && b.blockNumber() <= fetta.blocco_a; b = b.next()) {
        const QRectF r = posto_di(doc, b);
        if (r.top() > fetta.a || r.bottom() < fetta.da || b.length() <= 1 || b.text() == QChar(u'\u200B'))
            continue;
        const QTextLayout* l = b.layout();
        per_ogni_linea(doc, b, [&](double da, double a, int i, int) {
            const double mezzo = (da + a) / 2;
            if (mezzo < fetta.da || mezzo >= fetta.a || i >= l->lineCount()) return;
            l->lineAt(i).draw(&p, r.topLeft());
            disegna_guide(p, b, l->lineAt(i), r.topLeft());
        });
    }
}

void ricorda_pagina(QTextBlockFormat& f, const rtf::FormatoParagrafo& p, bool in_cima, double sopra,
                    double sotto) {
    if (in_cima) f.setProperty(kInCima, true);
    if (p.sopra > 0) f.setProperty(kSopra, static_cast<double>(p.sopra));
    if (p.con_il_prossimo) f.setProperty(kConIlProssimo, true);
    if (p.insieme) f.setProperty(kInsieme, true);
    if (p.senza_vedove) f.setProperty(kSenzaVedove, true);
    if (sopra > 0) f.setProperty(kBordoSopra, sopra);
    if (sotto > 0) f.setProperty(kBordoSotto, sotto);
}

}  // namespace ambra
