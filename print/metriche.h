// Fixed font metrics: the standard advance widths of Helvetica and Helvetica-Bold.
#pragma once

#include <string_view>

namespace ambra {

/// Advance width of a Windows-1252 text in thousandths of the font size.
long larghezza_millesimi(std::string_view testo, bool grassetto);
/// Height of a line in font sizes.
constexpr double kAltezzaRiga = 1.15;

}  // namespace ambra
