// The strip at the top of the main window that tells which writes of the archive were refused, until closed.
#pragma once

#include <QFrame>

#include "core/disco_attento.h"

class QLabel;

namespace ambra {

class Striscia : public QFrame {
    Q_OBJECT
  public:
    explicit Striscia(QWidget* padre);
    /// Shows a refused write; those of the same file and reason are counted.
    void aggiungi(const Guasto& g);
    QString testo() const;

  private:
    void chiudi();
    QLabel* detto_;
    std::vector<std::pair<Guasto, int>> guasti_;
};

/// What the user can do about a refused write.
QString rimedio(int errore);

}  // namespace ambra
