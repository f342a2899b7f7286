// Paints the operations of a page on a painter whose unit is the twip. One layout, many painters: paper,
// PDF and preview all come through here.
#pragma once

#include <QPainter>

#include "print/registratore.h"
#include "qt/caratteri.h"

namespace ambra {

/// Twips of one dot of the pen: lines are told in dots of 1/600 inch, whatever the device.
constexpr double kTwipPerPuntoPenna = 1440.0 / 600;

/// Texts of one face and colour that follow each other go to the painter as one: a run costs the PDF far more
/// than its glyphs. The last are drawn when the Pittore goes.
class Pittore {
  public:
    Pittore(QPainter& p, Facce& facce) : p_(p), facce_(facce) {}
    ~Pittore() { disegna_testi(); }
    Pittore(const Pittore&) = delete;
    Pittore& operator=(const Pittore&) = delete;

    /// Coordinates in twips.
    void testo(double x, double y, std::string_view testo, const Carattere& font, long colore);
    void linea(double x1, double y1, double x2, double y2, long colore, int stile, int spessore);
    void riquadro(double x1, double y1, double x2, double y2, long colore, int stile, int spessore);
    void pieno(double x1, double y1, double x2, double y2, long colore);

    /// An operation in its own unit. Rich text is not drawn here: it has pages of its own.
    void operazione(const OperazioneStampa& o);

  private:
    void penna(long colore, int stile, int spessore);
    void disegna_testi();

    QPainter& p_;
    Facce& facce_;
    Glifi testi_;  // not drawn yet, of this face and colour
    QRawFont faccia_;
    Carattere font_;
    long colore_testi_ = 0;
    long colore_ = -1;  // of the pen that the painter has; -1 unknown
    int stile_ = -1, spessore_ = -1;
};

}  // namespace ambra
