// Replays recorded print jobs on a device: the same pages as on paper.
#pragma once

#include <QString>

#include "print/registratore.h"
#include "qt/pittore.h"
#include "qt/uscita.h"

namespace ambra {

/// Paints all pages of a job, which the device may take more of; false when it failed.
bool dipingi(const LavoroStampa& lavoro, Uscita& uscita, Facce& facce);
/// Paints all pages of a job and ends it; false when the device failed.
bool replica(const LavoroStampa& lavoro, Uscita& uscita, Facce& facce);
/// The whole job as one PDF file; false when it could not be written.
bool scrivi_pdf(const LavoroStampa& lavoro, const QString& percorso, Facce& facce);

/// A file name out of a job's title: no character that a file system minds, at most 80 of them.
QString nome_di_file(std::string_view titolo);
/// `base`.pdf in the folder, or "base (2).pdf" and so on when that is taken.
QString pdf_libero(const QString& cartella, const QString& base);

}  // namespace ambra
