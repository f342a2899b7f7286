// A form layout (lummmi.lay, lumNNN.lay and their kin): where on the sheet each field of a form stands and
// in which font. A text file of 600 lines, six for each of 100 fields, fields without a meaning included.
//
// Values are kept as the text of their line, so that a file read and written back is the same file,
// whatever rubbish it holds; the numeric readings below are lenient.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/disco.h"
#include "core/errori.h"

namespace ambra {

struct CampoLayout {
    std::string posizione = "000000";  ///< three digits across, three down, millimetres from the sheet's edge
    std::string corpo = "9";           ///< font size, points
    std::string carattere = "Arial";   ///< font name
    std::string grassetto = "0";       ///< "1" when bold
    std::string corsivo = "0";         ///< "1" when italic
    std::string colore = "0";          ///< RGB number, blue in the high byte
    bool operator==(const CampoLayout&) const = default;

    /// The first three characters of the position and the last three.
    std::string_view orizzontale() const;
    std::string_view verticale() const;
    /// Whole millimetres of each half; rubbish is 0.
    double x_mm() const;
    double y_mm() const;
    /// The colour, 0 to 0xFFFFFF; rubbish is 0, black.
    long rgb() const;
};

/// An RGB number, blue in the high byte, out of a text; what is none is 0, black.
long leggi_rgb(std::string_view s);

constexpr std::size_t kCampiLayout = 100;

struct Layout {
    std::array<CampoLayout, kCampiLayout + 1> campo;  ///< by row, 1 to 100
    bool operator==(const Layout&) const = default;
};

/// The path of the ministerial form's layout, one for all buildings.
std::string file_ministeriale();

/// Reads a layout. False, and every field as `difetto`, if the file is missing or has fewer than 600 lines.
bool carica_layout(Disco& disco, Errore& err, std::string_view percorso, const CampoLayout& difetto,
                   Layout& layout);
/// Writes the 600 lines.
bool salva_layout(Disco& disco, Errore& err, std::string_view percorso, const Layout& layout);

}  // namespace ambra
