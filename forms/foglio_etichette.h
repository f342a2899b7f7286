// Labels on a sheet: which place comes next, where it lies, what is drawn there.
#pragma once

#include <functional>
#include <string>

#include "forms/etichette.h"
#include "print/printer.h"

namespace ambra {

/// The geometry of a sheet, millimetres. Rubbish in the file gives rubbish here, never a crash: a division by
/// no columns leaves a width of 0.
struct GeometriaFoglio {
    double x0 = 0, x1 = 0, y0 = 0, y1 = 0;  ///< inside the borders
    int colonne = 0, righe = 0;             ///< columns, labels per column
    double larghezza = 0, altezza = 0;      ///< of one label
};
GeometriaFoglio geometria(const Etic& e);

/// The default layout of the label print; not that of the design screen.
Etic etichette_di_stampa();
/// Field rows that a print walks; those past the field list have no text.
constexpr int kCampiStampati = 23;

class FoglioEtichette {
  public:
    /// The printer is set to millimetres. `tagli`: cut lines on every sheet.
    FoglioEtichette(Printer& p, const Etic& e, bool tagli);
    /// Passes over the labels of a partly used sheet, 1 being a whole one.
    void salta_fino_a(int prima_etichetta);
    /// The next label, on a new page when the sheet is full; `testo_di(row)` gives the text of a field.
    void etichetta(const std::function<std::string(int riga)>& testo_di);
    /// Draws the cut lines of the last sheet and closes the job.
    void fine();

  private:
    bool avanti();
    void linee_di_taglio();

    Printer& p_;
    const Etic& e_;
    GeometriaFoglio g_;
    bool tagli_;
    int c_ = 0, r_ = 1;
};

/// The fixed text of a free field (rows 6 to 10), or "".
std::string testo_libero(const Etic& e, int riga);

}  // namespace ambra
