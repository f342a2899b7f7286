// The label files: geometry of a sheet of labels and the place and font of each field on a label.
//
// A label file is a text file of 210 lines, 30 rows of seven values. Rows 1 to 27 are fields, row 28 the
// fixed texts, row 29 columns and labels per column, row 30 the sheet and its borders. There is one file for
// each kind of label, the same for all buildings.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/disco.h"
#include "core/errori.h"
#include "print/printer.h"

namespace ambra {

constexpr int kEtichetteFornitori = 3;  ///< the kind that this system opens

class Etic {
  public:
    static constexpr int kRighe = 30, kValori = 7, kCampi = 27;
    static constexpr int kTestiFissi = 28, kDisposizione = 29, kFoglio = 30;
    // Values of a field row.
    static constexpr int kX = 1, kY = 2, kNome = 3, kPunti = 4, kGrassetto = 5, kCorsivo = 6, kColore = 7;

    /// Row 0 to 30, value 1 to 7; row 0 is not in the file.
    std::string& operator()(int riga, int valore) { return celle_[indice(riga)][indice(valore)]; }
    const std::string& operator()(int riga, int valore) const { return celle_[indice(riga)][indice(valore)]; }
    /// The value as a number, by lenient reading.
    double numero(int riga, int valore) const;
    /// The font of a field row; a size that is no size gives 0.
    Carattere carattere(int riga) const;
    void carattere(int riga, const Carattere& c);
    /// The colour of a field row, an RGB number.
    long colore(int riga) const;
    void colore(int riga, long rgb);

  private:
    static std::size_t indice(int i) { return static_cast<std::size_t>(i); }
    std::array<std::array<std::string, 8>, kRighe + 1> celle_;
};

/// "&h" and six hexadecimal digits.
std::string testo_colore(long rgb);
/// Reads "&h" and hexadecimal digits, or plain digits; anything else is 0.
long leggi_colore(std::string_view s);

/// The file of a kind (1 condomini, 2 studio, 3 suppliers); "" for a kind without one.
std::string file_etichette(int tipo);
/// The names of the fields of a kind, row 1 first.
const std::vector<std::string>& campi_etichetta(int tipo);
/// Clears the error number and reads the file of the kind. False if it is missing or short; `e` then holds
/// what could be read.
bool leggi_etichette(Disco& disco, Errore& err, int tipo, Etic& e);
bool salva_etichette(Disco& disco, Errore& err, int tipo, const Etic& e);

/// All rows without a position, the fonts and the sheet as every default has them.
Etic etichette_in_bianco();
/// What the design screen starts from when the file of the kind is missing or short.
Etic etichette_predefinite(int tipo);

}  // namespace ambra
