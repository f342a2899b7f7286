// Turns the paragraphs of a rich-text document into a text document of the window library, in twips.
#pragma once

#include <QTextDocument>
#include <vector>

#include "print/rtf.h"
#include "qt/ricco_bordi.h"

namespace ambra {

/// The number of the page in hand, for the fields that show it; 0 leaves what the document holds.
struct NumeriPagina {
    int pagina = 0, pagine = 0;
};

/// Fills `doc` with paragraphs [da, a) of `d`, whose first character is `posto` of its text. Returns its
/// tables.
std::vector<TabellaPosata> componi(QTextDocument& doc, const rtf::Documento& d, std::size_t da, std::size_t a,
                                   std::size_t posto, NumeriPagina numeri = {});

}  // namespace ambra
