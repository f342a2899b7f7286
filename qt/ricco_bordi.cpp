#include "qt/ricco_bordi.h"

#include <QAbstractTextDocumentLayout>
#include <QTextLayout>
#include <algorithm>
#include <cmath>
#include <limits>

#include "qt/caratteri.h"

namespace ambra {

namespace {

enum Ricordo { kFormato = QTextFormat::UserProperty + 1, kUnitoSopra, kUnitoSotto };
constexpr double kLontano = std::numeric_limits<double>::max();
constexpr int kStessoBordo = 15;

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

// A cell where it falls on the page in hand.
struct CellaPosata {
    const rtf::Cella& cella;
    QRectF dove;
    bool in_alto, in_basso;  // whether its upper and lower edge are its own
};

template <class F>
void per_ogni_cella(const QTextDocument& doc, const rtf::Documento& d, const TabellaPosata& t, double da,
                    double a, const F& fai) {
    // The library tells the corner of the first cell's content for that of the table.
    const QRectF tutta = doc.documentLayout()->frameBoundingRect(t.tabella);
    const QTextTableCell angolo = t.tabella->cellAt(0, 0);
    if (tutta.bottom() < da || tutta.top() > a) return;
    const AltezzeRighe y(doc, *t.tabella);
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
            fai(CellaPosata{c, QRectF(QPointF(sinistra, sopra), QPointF(destra, sotto)),
                            !c.continua || y.sopra[i] < da, !sotto_continua});
            sinistra = destra;
        }
    }
}

void borda(QPainter& p, const CellaPosata& x) {
    const QRectF& r = x.dove;
    if (x.in_alto) traccia(p, x.cella.sopra, r.topLeft(), r.topRight());
    if (x.in_basso) traccia(p, x.cella.sotto, r.bottomLeft(), r.bottomRight());
    traccia(p, x.cella.sinistra, r.topLeft(), r.bottomLeft());
    traccia(p, x.cella.bordo_destro, r.topRight(), r.bottomRight());
}

// The frame of one paragraph, around the text and the space that keeps the lines off it.
void disegna_paragrafo(QPainter& p, const QTextDocument& doc, const QTextBlock& b,
                       const rtf::FormatoParagrafo& f, double da, double a) {
    const QTextBlockFormat q = b.blockFormat();
    const auto fuori = [](const rtf::Bordo& x) { return x.spessore > 0 ? x.spazio + x.spessore / 2.0 : 0; };
    QRectF r = posto_di(doc, b);
    if (!QTextCursor(b).currentTable()) {
        r.setLeft(f.sinistra + std::min(0, f.prima_riga));
        r.setRight(doc.textWidth() - f.destra);
    }
    const bool unito_sopra = q.boolProperty(kUnitoSopra), unito_sotto = q.boolProperty(kUnitoSotto);
    if (unito_sotto) r.setBottom(posto_di(doc, b.next()).top());
    r.adjust(-fuori(f.bordo_sinistra), unito_sopra ? 0 : -fuori(f.bordo_sopra), fuori(f.bordo_destra),
             unito_sotto ? 0 : fuori(f.bordo_sotto));
    const double alto = std::max(r.top(), da), basso = std::min(r.bottom(), a);
    if (alto >= basso) return;
    if (!unito_sopra && r.top() >= da) traccia(p, f.bordo_sopra, r.topLeft(), r.topRight());
    if (!unito_sotto && r.bottom() <= a) traccia(p, f.bordo_sotto, r.bottomLeft(), r.bottomRight());
    traccia(p, f.bordo_sinistra, {r.left(), alto}, {r.left(), basso});
    traccia(p, f.bordo_destra, {r.right(), alto}, {r.right(), basso});
}

void disegna_paragrafi(QPainter& p, const QTextDocument& doc, const rtf::Documento& d, const Fetta& fetta) {
    for (QTextBlock b = doc.findBlockByNumber(fetta.blocco_da);
         b.isValid() && b.blockNumber() <= fetta.blocco_a; b = b.next()) {
        const QTextBlockFormat f = b.blockFormat();
        if (!f.hasProperty(kFormato)) continue;
        disegna_paragrafo(p, doc, b, d.formati_paragrafo[static_cast<std::size_t>(f.intProperty(kFormato))],
                          fetta.da, fetta.a);
    }
}

struct CellaAlzata {
    QTextTableCell cella;
    QTextTableCellFormat formato;
};

// The cells of too low rows, as they have to be. Every cell of one row alone gets taller, each on the side
// that its text leaves free.
void misura_righe(const QTextDocument& doc, const rtf::Documento& d, const TabellaPosata& t,
                  std::vector<CellaAlzata>& alzate) {
    const auto vuole = [&](int r) { return d.righe[static_cast<std::size_t>(t.prima + r)].altezza; };
    bool serve = false;
    for (int r = 0; r < t.tabella->rows(); ++r) serve = serve || vuole(r) > 0;
    if (!serve) return;
    const AltezzeRighe y(doc, *t.tabella);
    for (int r = 0; r < t.tabella->rows(); ++r) {
        const auto i = static_cast<std::size_t>(r);
        const double manca = vuole(r) - (y.sotto[i] - y.sopra[i]);
        if (manca <= 0) continue;
        for (int c = 0; c < t.tabella->columns(); ++c) {
            const QTextTableCell cella = t.tabella->cellAt(r, c);
            if (cella.column() != c || cella.rowSpan() != 1) continue;
            QTextTableCellFormat f = cella.format().toTableCellFormat();
            const double alta = posto_di(doc, cella.lastCursorPosition().block()).bottom() -
                                posto_di(doc, cella.firstCursorPosition().block()).top();
            const double resta = std::max(manca, vuole(r) - alta - f.topPadding() - f.bottomPadding());
            const auto verso = f.verticalAlignment();
            const double su = verso == QTextCharFormat::AlignBottom   ? resta
                              : verso == QTextCharFormat::AlignMiddle ? resta / 2
                                                                      : 0;
            f.setTopPadding(f.topPadding() + su);
            f.setBottomPadding(f.bottomPadding() + resta - su);
            alzate.push_back({cella, f});
        }
    }
}

}  // namespace

// The library tells the size of the lines from the first of them, which may begin lower than the paragraph.
QRectF posto_di(const QTextDocument& doc, const QTextBlock& b) {
    QRectF r = doc.documentLayout()->blockBoundingRect(b);
    if (b.layout()) r.setHeight(b.layout()->boundingRect().bottom());
    return r;
}

// The highest text of a row begins at its upper edge, whatever the other cells are aligned to.
AltezzeRighe::AltezzeRighe(const QTextDocument& doc, const QTextTable& t) {
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
                sopra[r] =
                    std::min(sopra[r], posto_di(doc, b).top() - b.blockFormat().topMargin() - f.topPadding());
            }
            if (cella.row() + cella.rowSpan() - 1 == riga) {
                const QTextBlock b = cella.lastCursorPosition().block();
                sotto[r] = std::max(
                    sotto[r], posto_di(doc, b).bottom() + b.blockFormat().bottomMargin() + f.bottomPadding());
            }
        }
    }
    for (std::size_t r = righe; r-- > 0;)
        if (sopra[r] == kLontano) sopra[r] = r + 1 < righe ? sopra[r + 1] : sotto[r];
    for (std::size_t r = 0; r + 1 < righe; ++r) sotto[r] = sopra[r + 1];
}

bool stessi_bordi(const rtf::FormatoParagrafo& a, const rtf::FormatoParagrafo& b) {
    return a.bordo_sopra == b.bordo_sopra && a.bordo_sotto == b.bordo_sotto &&
           a.bordo_sinistra == b.bordo_sinistra && a.bordo_destra == b.bordo_destra &&
           a.sinistra == b.sinistra && a.destra == b.destra;
}

void ricorda_bordi(QTextBlockFormat& f, const rtf::Documento& d, std::uint32_t formato, bool unito_sopra,
                   bool unito_sotto) {
    const rtf::FormatoParagrafo& p = d.formati_paragrafo[formato];
    if (p.bordo_sopra.spessore <= 0 && p.bordo_sotto.spessore <= 0 && p.bordo_sinistra.spessore <= 0 &&
        p.bordo_destra.spessore <= 0)
        return;
    f.setProperty(kFormato, static_cast<int>(formato));
    f.setProperty(kUnitoSopra, unito_sopra);
    f.setProperty(kUnitoSotto, unito_sotto);
}

bool alza_righe(const QTextDocument& doc, const rtf::Documento& d,
                const std::vector<TabellaPosata>& tabelle) {
    std::vector<CellaAlzata> alzate;
    for (const TabellaPosata& t : tabelle) misura_righe(doc, d, t, alzate);
    if (alzate.empty()) return false;
    // All at once: after each change the library would lay the text out anew.
    QTextCursor insieme(tabelle.front().tabella->document());
    insieme.beginEditBlock();
    for (CellaAlzata& c : alzate) c.cella.setFormat(c.formato);
    insieme.endEditBlock();
    return true;
}

void disegna_sfondi(QPainter& p, const QTextDocument& doc, const rtf::Documento& d,
                    const std::vector<TabellaPosata>& tabelle, const Fetta& fetta) {
    for (const TabellaPosata& t : tabelle)
        per_ogni_cella(doc, d, t, fetta.da, fetta.a, [&p](const CellaPosata& x) {
            if (x.cella.sfondo != rtf::kColoreAutomatico) p.fillRect(x.dove, colore_qt(x.cella.sfondo));
        });
}

void disegna_bordi(QPainter& p, const QTextDocument& doc, const rtf::Documento& d,
                   const std::vector<TabellaPosata>& tabelle, const Fetta& fetta) {
    for (const TabellaPosata& t : tabelle)
        per_ogni_cella(doc, d, t, fetta.da, fetta.a, [&p](const CellaPosata& x) { borda(p, x); });
    disegna_paragrafi(p, doc, d, fetta);
}

}  // namespace ambra
