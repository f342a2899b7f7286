// The live picture of a design of labels: the sample label with its fields, and below it the sheet with its
// borders and all its labels.
#pragma once

#include <QWidget>

#include "forms/foglio_etichette.h"

namespace ambra {

class Finestra;
class Mrvteti;

class VistaEtichetta : public QWidget {
    Q_OBJECT
  public:
    VistaEtichetta(Finestra& f, Mrvteti& s);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Where a field stands in the picture of the label, pixels; empty if it has no place. Rows from 1.
    QRectF posto(int riga) const;
    /// The label and the sheet inside the widget; empty when their measures are none.
    QRectF etichetta() const;
    QRectF foglio() const;

  protected:
    void paintEvent(QPaintEvent* e) override;

  private:
    const Mrvteti* schermo() const;
    GeometriaFoglio misure() const;
    /// Pixels to a millimetre in the picture of the label.
    double scala() const;
    QFont carattere(int riga) const;
    QString testo_campo(int riga) const;
    void disegna_etichetta(QPainter& p) const;
    void disegna_foglio(QPainter& p) const;

    Finestra& f_;
};

}  // namespace ambra
