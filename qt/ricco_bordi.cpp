#include "qt/ricco_bordi.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <algorithm>
#include <cmath>
#include <limits>

#include "qt/caratteri.h"

namespace ambra {

namespace {

enum Ricordo { kSopra = QTextFormat::UserProperty + 1, kColoreSopra, kSotto, kColoreSotto };
constexpr double kLontano = std::numeric_limits<double>::max();
constexpr int kStessoBordo = 15;

// Upper and lower edge of each row, as the layout put them.
struct Altezze {
    Altezze(const QTextDocument& doc, const QTextTable& t);
    std::vector<double> sopra, sotto;
};

// The highest text of a row begins at its upper edge, whatever the other cells are aligned to.
Altezze::Altezze(const QTextDocument& doc, const QTextTable& t) {
    const auto* posa = doc.documentLayout();
    const auto righe = static_cast<std::size_t>(t.rows());
    sopra.assign(righe, kLontano);
    sotto.assign(righe, 0);
    for (std::size_t r = 0; r < righe; ++r) {
        const int riga = static_cast<int>(r);
        for (int c = 0; c < t.columns(); ++c) {
            const QTextTableCell cella = t.cellAt(riga, c);
            if (cella.column() != c) continue;
            const QTextTableCellFormat f = cella.format().toTableCellFormat();
            if (cella.row() == riga) {
                const QTextBlock b = cella.firstCursorPosition().block();
                sopra[r] = std::min(sopra[r], posa->blockBoundingRect(b).top() - b.blockFormat().topMargin() -
                                                  f.topPadding());
            }
            if (cella.row() + cella.rowSpan() - 1 == riga) {
                const QTextBlock b = cella.lastCursorPosition().block();
                sotto[r] = std::max(sotto[r], posa->blockBoundingRect(b).bottom() +
                                                  b.blockFormat().bottomMargin() + f.bottomPadding());
            }
        }
    }
    for (std::size_t r = righe; r-- > 0;)
        if (sopra[r] == kLontano) sopra[r] = r + 1 < righe ? sopra[r + 1] : sotto[r];
    const double foglio = doc.pageSize().height();
    const auto pagina = [&](double y) { return foglio > 0 ? std::floor(y / foglio) : 0; };
    for (std::size_t r = 0; r + 1 < righe; ++r)
        if (pagina(sotto[r]) == pagina(sopra[r + 1])) sotto[r] = sopra[r + 1];
}

void traccia(QPainter& p, const rtf::Bordo& b, QPointF da, QPointF a) {
    if (b.spessore <= 0) return;
    const double mezzo = b.spessore / 2.0;
    p.fillRect(QRectF(da, a).adjusted(-mezzo, -mezzo, mezzo, mezzo), colore_qt(b.colore));
}

bool continua(const rtf::Documento& d, int riga, int destra) {
    const auto& celle = d.righe[static_cast<std::size_t>(riga)].celle;
    return std::any_of(celle.begin(), celle.end(), [&](const rtf::Cella& c) {
        return c.continua && std::abs(c.destra - destra) < kStessoBordo;
    });
}

void disegna_tabella(QPainter& p, const QTextDocument& doc, const rtf::Documento& d, const TabellaPosata& t,
                     double da, double a) {
    // The library tells the corner of the first cell's content for that of the table.
    const QRectF tutta = doc.documentLayout()->frameBoundingRect(t.tabella);
    const QTextTableCell angolo = t.tabella->cellAt(0, 0);
    if (tutta.bottom() < da || tutta.top() > a + std::max(doc.pageSize().height(), 0.0)) return;
    const Altezze y(doc, *t.tabella);
    const double x0 = tutta.left() - angolo.format().toTableCellFormat().leftPadding() - t.sinistra;
    for (int r = 0; r < t.tabella->rows(); ++r) {
        const auto i = static_cast<std::size_t>(r);
        const double sopra = std::max(y.sopra[i], da), sotto = std::min(y.sotto[i], a);
        if (sotto <= sopra) continue;
        const rtf::Riga& riga = d.righe[static_cast<std::size_t>(t.prima + r)];
        double sinistra = x0 + riga.sinistra;
        for (const rtf::Cella& c : riga.celle) {
            const double destra = x0 + c.destra;
            const bool sotto_continua =
                r + 1 < t.tabella->rows() && continua(d, t.prima + r + 1, c.destra) && y.sotto[i] <= a;
            if (!c.continua || y.sopra[i] < da) traccia(p, c.sopra, {sinistra, sopra}, {destra, sopra});
            if (!sotto_continua) traccia(p, c.sotto, {sinistra, sotto}, {destra, sotto});
            traccia(p, c.sinistra, {sinistra, sopra}, {sinistra, sotto});
            traccia(p, c.bordo_destro, {destra, sopra}, {destra, sotto});
            sinistra = destra;
        }
    }
}

void disegna_paragrafi(QPainter& p, const QTextDocument& doc, double da, double a) {
    const auto* posa = doc.documentLayout();
    for (QTextBlock b = doc.begin(); b.isValid(); b = b.next()) {
        const QTextBlockFormat f = b.blockFormat();
        if (!f.hasProperty(kSopra)) continue;
        const QRectF r = posa->blockBoundingRect(b);
        const auto linea = [&](double y, int spessore, int colore) {
            if (y < da || y > a) return;
            traccia(p, {f.intProperty(spessore), static_cast<long>(f.intProperty(colore))}, {r.left(), y},
                    {r.right(), y});
        };
        linea(r.top(), kSopra, kColoreSopra);
        linea(r.bottom(), kSotto, kColoreSotto);
    }
}

}  // namespace

void ricorda_bordi(QTextBlockFormat& f, const rtf::FormatoParagrafo& p) {
    if (p.bordo_sopra.spessore <= 0 && p.bordo_sotto.spessore <= 0) return;
    f.setProperty(kSopra, p.bordo_sopra.spessore);
    f.setProperty(kColoreSopra, static_cast<int>(p.bordo_sopra.colore));
    f.setProperty(kSotto, p.bordo_sotto.spessore);
    f.setProperty(kColoreSotto, static_cast<int>(p.bordo_sotto.colore));
}

void alza_righe(const QTextDocument& doc, const rtf::Documento& d,
                const std::vector<TabellaPosata>& tabelle) {
    for (const TabellaPosata& t : tabelle) {
        const auto vuole = [&](int r) { return d.righe[static_cast<std::size_t>(t.prima + r)].altezza; };
        bool serve = false;
        for (int r = 0; r < t.tabella->rows(); ++r) serve = serve || vuole(r) > 0;
        if (!serve) continue;
        const Altezze y(doc, *t.tabella);
        for (int r = 0; r < t.tabella->rows(); ++r) {
            const auto i = static_cast<std::size_t>(r);
            const double manca = vuole(r) - (y.sotto[i] - y.sopra[i]);
            if (manca <= 0) continue;
            // Every cell of one row alone gets taller, each on the side that its text leaves free.
            for (int c = 0; c < t.tabella->columns(); ++c) {
                QTextTableCell cella = t.tabella->cellAt(r, c);
                if (cella.column() != c || cella.rowSpan() != 1) continue;
                QTextTableCellFormat f = cella.format().toTableCellFormat();
                const double alta =
                    doc.documentLayout()->blockBoundingRect(cella.lastCursorPosition().block()).bottom() -
                    doc.documentLayout()->blockBoundingRect(cella.firstCursorPosition().block()).top();
                const double resta = std::max(manca, vuole(r) - alta - f.topPadding() - f.bottomPadding());
                const auto verso = f.verticalAlignment();
                const double su = verso == QTextCharFormat::AlignBottom   ? resta
                                  : verso == QTextCharFormat::AlignMiddle ? resta / 2
                                                                          : 0;
                f.setTopPadding(f.topPadding() + su);
                f.setBottomPadding(f.bottomPadding() + resta - su);
                cella.setFormat(f);
            }
        }
    }
}

void disegna_bordi(QPainter& p, const QTextDocument& doc, const rtf::Documento& d,
                   const std::vector<TabellaPosata>& tabelle, double da, double a) {
    for (const TabellaPosata& t : tabelle) disegna_tabella(p, doc, d, t, da, a);
    disegna_paragrafi(p, doc, da, a);
}

}  // namespace ambra
