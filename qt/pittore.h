// Paints the operations of a page on a painter whose unit is the twip. One layout, many painters: paper,
// PDF and preview all come through here.
#pragma once

#include <QPainter>

#include "print/registratore.h"
#include "qt/caratteri.h"

namespace ambra {

/// Twips of one dot of the pen: lines are told in dots of 1/600 inch, whatever the device.
constexpr double kTwipPerPuntoPenna = 1440.0 / 600;

class Pittore {
  public:
    Pittore(QPainter& p, Facce& facce) : p_(p), facce_(facce) {}

    /// Coordinates in twips.
    void testo(double x, double y, std::string_view testo, const Carattere& font, long colore);
    void linea(double x1, double y1, double x2, double y2, long colore, int stile, int spessore);
    void riquadro(double x1, double y1, double x2, double y2, long colore, int stile, int spessore);
    void pieno(double x1, double y1, double x2, double y2, long colore);

    /// An operation in its own unit. Rich text is not drawn here: it has pages of its own.
    void operazione(const OperazioneStampa& o);

  private:
    void penna(long colore, int stile, int spessore);

    QPainter& p_;
    Facce& facce_;
    long colore_ = -1;  // of the pen that the painter has; -1 unknown
    int stile_ = -1, spessore_ = -1;
};

}  // namespace ambra
