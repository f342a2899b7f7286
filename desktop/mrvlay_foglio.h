// The live picture of a form's sheet: each field at its place, in its font and colour, as the editor of the
// coordinates has it at this moment.
#pragma once

#include <QWidget>

class QLabel;

namespace ambra {

class Finestra;
class Mrvlay;
class VistaGriglia;

class VistaFoglio : public QWidget {
    Q_OBJECT
  public:
    /// `campione` is the label that shows the chosen font; it takes that font over. The list's cursor follows
    /// a field that is chosen on the sheet.
    VistaFoglio(Finestra& f, Mrvlay& s, VistaGriglia* elenco, QLabel* campione);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Where the text of a field stands in the picture, empty if it has no place; rows count from 1.
    QRectF posto(int riga) const;

  protected:
    void paintEvent(QPaintEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    bool event(QEvent* e) override;

  private:
    const Mrvlay* schermo() const;
    /// The sheet inside the widget, and pixels to a millimetre.
    QRectF foglio() const;
    double scala() const;
    QFont carattere(int riga, double punti_pixel) const;
    int riga_a(const QPointF& p) const;
    void mutato();

    void disegna_scelto(QPainter& p, int riga, const QRectF& foglio) const;

    Finestra& f_;
    VistaGriglia* elenco_;
    QLabel* campione_;
};

}  // namespace ambra
