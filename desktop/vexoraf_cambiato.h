// Whether the archive has changed since the worklist was made, by this program or by another.
#pragma once

#include <QDateTime>
#include <QTimer>
#include <functional>

#include "archivio/archivio.h"

namespace ambra {

class Programma;

class ElencoCambiato : public QObject, public Osservatore {
  public:
    /// `detto` is told each time the answer turns.
    ElencoCambiato(Programma& prog, QObject* padre, std::function<void(bool)> detto);
    /// The list was made just now.
    void fatto();
    /// Looks at the lengths and the times of the files.
    void guarda();

    void scritta(long, const RecFattura&, const RecFattura&) override { cambia(true); }
    void spostate(std::span<const Impronta>, std::span<const long>) override { cambia(true); }
    void fornitore_scritto(long, const RecFornitore&, const RecFornitore&) override { cambia(true); }

  private:
    struct Segno {
        long fatture = 0, fornitori = 0;
        QDateTime ora_fatture, ora_fornitori;
        bool operator==(const Segno&) const = default;
    };
    Segno segno() const;
    void cambia(bool si);

    Programma& prog_;
    std::function<void(bool)> detto_;
    Segno fatto_;
    bool cambiato_ = false;
    QTimer orologio_;
};

}  // namespace ambra
