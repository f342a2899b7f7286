// Where painted pages go: a PDF file or a real printer. Pages are made one at a time and are gone from
// memory once the next one begins.
#pragma once

#include <QBuffer>
#include <QPainter>
#include <QPrinter>
#include <QString>
#include <memory>

#include "print/printer.h"

namespace ambra {

class Uscita {
  public:
    virtual ~Uscita() = default;
    /// Begins the next page, so many twips large; the painter's unit is the twip, its origin the corner of
    /// the sheet. Null when the device failed.
    virtual QPainter* pagina(double larghezza, double altezza) = 0;
    /// Ends the job; false when the device failed somewhere.
    virtual bool fine() = 0;
};

/// A PDF file with embedded fonts and text that can be selected.
std::unique_ptr<Uscita> uscita_pdf(const QString& percorso, const QString& titolo);
/// The same into memory, which must live longer.
std::unique_ptr<Uscita> uscita_pdf(QBuffer& dove);
/// A printer of the machine. `stampante` is handed over ready: its name, tray and copies are set.
std::unique_ptr<Uscita> uscita_stampante(std::unique_ptr<QPrinter> stampante, const QString& titolo);

}  // namespace ambra
