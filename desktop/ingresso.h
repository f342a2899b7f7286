// Before a building is opened: what stands in the way, and the choice among the buildings there are.
#pragma once

#include <QDialog>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/disco.h"

class QLineEdit;
class QListWidget;
class QPushButton;

namespace ambra {

struct StabileInArchivio {
    int numero = 0;
    QString nome;
};

/// The buildings of lumora.tot that have a name, by number; none where it cannot be read.
std::vector<StabileInArchivio> stabili_in_archivio(Disco& disco);

/// Why a building cannot be opened as it should be.
struct Ostacolo {
    enum class Che {
        niente,
        senza_archivio,  ///< there is no archive on the drive
        chiuso,          ///< a file is there and cannot be opened
        senza_stabile,   ///< the building is not in lumora.tot
        sola_lettura     ///< it can be looked at, and nothing be stored
    };
    Che che = Che::niente;
    QString parole;
};

/// Looks at the archive without making a file. `scrivibile` tells whether a file of the system may be
/// written.
Ostacolo ostacolo(Disco& disco, const std::string& nnn,
                  const std::function<bool(const QString&)>& scrivibile);

/// The buildings by name, the last ones opened first.
class SceltaStabile : public QDialog {
    Q_OBJECT
  public:
    /// `avviso` stands above the list; it may be empty.
    SceltaStabile(const std::vector<StabileInArchivio>& stabili, const QString& avviso);
    /// The number of the row in hand, 0 for none.
    int scelto() const;

  protected:
    bool eventFilter(QObject* o, QEvent* e) override;

  private:
    void filtra(const QString& testo);
    QLineEdit* cerca_;
    QListWidget* lista_;
    QPushButton* apri_;
};

/// Remembers a building as the last one opened.
void ricorda_stabile(int numero);

/// The way in: the user is told what stands in the way and chooses among the buildings where `comando` is
/// empty or names one that is not there. The command line to open with, or nothing: the program ends.
std::optional<std::string> ingresso(const std::string& radice, std::string comando);

}  // namespace ambra
