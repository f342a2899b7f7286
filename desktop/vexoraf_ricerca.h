// What narrows the worklist: the search field and its filters; and what it adds up to.
#pragma once

#include <QWidget>

#include "desktop/parts/righe_cercate.h"

class QLabel;
class QLineEdit;
class QToolButton;

namespace ambra {

class Vexoraf;
class VistaGriglia;

/// The view alone: the rows of the grid and their numbers stay.
class Ricerca : public QWidget {
    Q_OBJECT
  public:
    Ricerca(Vexoraf& s, VistaGriglia& elenco, QWidget* padre);
    /// The line of totals of what is shown.
    QLabel* totali() const { return totali_; }
    QLineEdit* campo() const { return cerca_; }
    QToolButton* filtro(int i) const { return filtri_[i]; }
    /// Clears the search and the filters; false if there was nothing to clear.
    bool svuota();
    /// The list is another: its texts are taken again.
    void rifatta();
    /// Adds up what is shown, if the list was made anew since.
    void riconta();

  protected:
    bool eventFilter(QObject* o, QEvent* e) override;

  private:
    enum Filtro { da_pagare, scadute, eliminate, quanti };
    void applica();
    void conta();
    bool passa(int riga);
    Vexoraf& s_;
    VistaGriglia& elenco_;
    RigheCercate righe_;
    QLineEdit* cerca_;
    QToolButton* filtri_[quanti];
    QLabel* quante_;
    QLabel* totali_;
    long contata_ = -1;
};

}  // namespace ambra
