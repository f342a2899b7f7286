// Colours of the program on the palette in force: a told colour stays as told where it fills a cell, and
// gives way as far as needed where it is a text that must be read.
#pragma once

#include <QColor>
#include <QFont>

namespace ambra {

/// An RGB number of the program, blue in the high byte.
QColor colore_di(long rgb);
/// Contrast of two colours, 1 (the same) to 21 (black on white).
double contrasto(const QColor& a, const QColor& b);
/// Black or white, whichever reads better on the background.
QColor testo_su(const QColor& sfondo);
/// `testo`, made lighter or darker until it reads on the background (contrast 4.5).
QColor leggibile(const QColor& testo, const QColor& sfondo);
/// The font with digits of one width: the same where it has them, else one that does.
QFont cifre_pari(const QFont& f);

}  // namespace ambra
