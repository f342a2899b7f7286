// The borders of tables and paragraphs of a laid-out rich text. The window library draws none with cells that
// have borders of their own, so they are drawn over its pages from the recorded ones.
#pragma once

#include <QPainter>
#include <QTextDocument>
#include <QTextTable>
#include <vector>

#include "print/rtf.h"

namespace ambra {

/// A table of the laid-out text, and the rows of the document that it stands for.
struct TabellaPosata {
    QTextTable* tabella = nullptr;
    int prima = 0;        ///< number of the first row
    double sinistra = 0;  ///< the left edge of the whole, as the rows count
};

/// Row heights that the document asks for: too low rows grow. Lay the text out before.
void alza_righe(const QTextDocument& doc, const rtf::Documento& d, const std::vector<TabellaPosata>& tabelle);
/// Draws the borders that fall between `da` and `a`, the stretch of one page.
void disegna_bordi(QPainter& p, const QTextDocument& doc, const rtf::Documento& d,
                   const std::vector<TabellaPosata>& tabelle, double da, double a);

/// Keeps the borders of a paragraph with its format.
void ricorda_bordi(QTextBlockFormat& f, const rtf::FormatoParagrafo& p);

}  // namespace ambra
