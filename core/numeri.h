// Amounts and number text. An amount is a Double in euro with the cents in its fraction.
//
// The biases below (0.51, 0.99) are odd and binding: stored archives were computed with them.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/errori.h"

namespace ambra {

/// The lines of the currency file, 1 to 10 in use; line 1 tells lire ("0") from euro.
using Cambio = std::array<std::string, 21>;

/// Lenient reading: blanks, an optional sign, digits with at most one point, stop. Nothing readable is 0.
double leggi_numero(std::string_view s);
/// True if lenient reading finds at least one digit; `fine` is where it stopped.
bool inizia_numero(std::string_view s, double& valore, std::size_t& fine);
/// Lenient reading rounded to an Integer (half to even); out of range sets 6 and gives `prima`.
int leggi_intero(std::string_view s, Errore& err, int prima = 0);

/// Number text: at most 15 significant digits, a point, no exponent, no trailing zeros. -0.0 is "0".
std::string testo_numero(double x);
/// Number-to-text with its sign column: one leading blank for what is not negative.
std::string testo_con_segno(double x);

/// The number formats of lists and prints; all group by thousands with Italian separators.
enum class Formato {
    intero,         ///< ###,###,###,##0
    due_decimali,   ///< ###,###,###,##0.#0
    tre_decimali,   ///< ###,###,###,##0.##0
    intero_o_nulla  ///< ###,###,###,###: zero is blank
};
/// `x` in the format, rounded half away from zero on its 15-digit decimal text.
std::string formatta(double x, Formato f);

/// Amount to text: exact zero is empty, else two decimals (whole lire when line 1 reads as 0).
std::string fmtimporto(const Cambio& cambio, double x);
/// Text to amount, Italian notation. `s` is trimmed, loses its points, and its comma becomes a point.
double valimporto(std::string& s);
/// The same for a caller that does not need the changed text.
double valimporto_di(std::string_view s);
/// Rounds to the currency unit: floor(x * 100 + 0.51) / 100 in euro, floor(x + 0.51) in lire.
double arrotonda(const Cambio& cambio, double x);
/// `p` per cent of `x`, to the currency unit: floor(x * p + 0.51) / 100 in euro.
double applicaperc(const Cambio& cambio, double p, double x);

}  // namespace ambra
