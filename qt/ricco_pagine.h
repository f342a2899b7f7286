// Where the pages of a laid-out rich text begin and end. The text is laid out in one long strip; a page shows
// a slice of it, cut between two lines as word processors cut: no first or last line alone where the
// paragraph asks so, no heading parted from its text, no spacing on top of a page that begins by itself.
#pragma once

#include <QPainter>
#include <QTextDocument>
#include <vector>

#include "print/rtf.h"
#include "qt/ricco_bordi.h"

namespace ambra {

/// The pages, each at most `alta` high; at least one.
std::vector<Fetta> taglia_pagine(const QTextDocument& doc, const rtf::Documento& d,
                                 const std::vector<TabellaPosata>& tabelle, double alta);

/// Draws the lines of a slice and no others, even where they overlap.
void disegna_linee(QPainter& p, const QTextDocument& doc, const Fetta& fetta);

/// Keeps with a paragraph's format what its pages depend on. `in_cima`: it begins a page; `sopra`, `sotto`:
/// the room that its borders take.
void ricorda_pagina(QTextBlockFormat& f, const rtf::FormatoParagrafo& p, bool in_cima, double sopra,
                    double sotto);

}  // namespace ambra
