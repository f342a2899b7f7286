// The borders of tables and paragraphs of a laid-out rich text, and the colours of cells. The window library
// draws no borders with cells that have their own, so they are drawn over its text from the recorded ones.
#pragma once

#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>
#include <limits>
#include <vector>

#include "print/rtf.h"

namespace ambra {

/// A stretch of the laid-out text, as one page shows it.
struct Fetta {
    double da = 0, a = 0;
    int blocco_da = 0, blocco_a = std::numeric_limits<int>::max();  ///< paragraphs that may reach into it
};

/// A table of the laid-out text, and the rows of the document that it stands for.
struct TabellaPosata {
    QTextTable* tabella = nullptr;
    int prima = 0;        ///< number of the first row
    double sinistra = 0;  ///< the left edge of the whole, as the rows count
};

/// Where the library laid a paragraph: its corner, and as far down as its lines reach.
QRectF posto_di(const QTextDocument& doc, const QTextBlock& b);

/// Upper and lower edge of each row of a table, as the layout put them.
struct AltezzeRighe {
    AltezzeRighe(const QTextDocument& doc, const QTextTable& t);
    std::vector<double> sopra, sotto;
};

/// Row heights that the document asks for: too low rows grow. Lay the text out before, and once more when it
/// says so.
bool alza_righe(const QTextDocument& doc, const rtf::Documento& d, const std::vector<TabellaPosata>& tabelle);
/// Fills the cells that have a colour, before the text.
void disegna_sfondi(QPainter& p, const QTextDocument& doc, const rtf::Documento& d,
                    const std::vector<TabellaPosata>& tabelle, const Fetta& fetta);
/// Draws the borders.
void disegna_bordi(QPainter& p, const QTextDocument& doc, const rtf::Documento& d,
                   const std::vector<TabellaPosata>& tabelle, const Fetta& fetta);

/// Paragraphs that follow each other so stand in one frame.
bool stessi_bordi(const rtf::FormatoParagrafo& a, const rtf::FormatoParagrafo& b);
/// Keeps with a paragraph's format what its borders depend on.
void ricorda_bordi(QTextBlockFormat& f, const rtf::Documento& d, std::uint32_t formato, bool unito_sopra,
                   bool unito_sotto);

}  // namespace ambra
