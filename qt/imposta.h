// The dialog of "Imposta": printer or PDF file, orientation, paper, and whether a preview comes first.
#pragma once

#include <QDialog>

#include "print/printer.h"
#include "qt/stampante_qt.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QRadioButton;
class QWidget;

namespace ambra {

class DialogoImposta : public QDialog {
  public:
    DialogoImposta(const SceltaStampa& ora, Orientamento verso, QWidget* padre = nullptr);
    /// What the user chose.
    SceltaStampa scelta() const;
    Orientamento orientamento() const;

  private:
    void aggiorna();
    void scegli_cartella();
    void riempi_stampanti(const QString& ora);
    void riempi_carte(const QPageSize& ora);

    QComboBox* stampante_;
    QLineEdit* cartella_;
    QWidget* riga_cartella_;
    QRadioButton* verticale_;
    QRadioButton* orizzontale_;
    QComboBox* carta_;
    QCheckBox* anteprima_;
};

}  // namespace ambra
