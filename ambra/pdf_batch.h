// The PDF files of a batch run: one for each recorded print job.
#pragma once

#include <memory>
#include <string>

#include "print/registratore.h"

namespace ambra {

/// Writes the jobs of a run as `lavoro-001.pdf`, with the title behind the number where there is one.
class PdfBatch {
  public:
    virtual ~PdfBatch() = default;
    /// False when the file could not be written.
    virtual bool scrivi(const LavoroStampa& lavoro, int numero) = 0;
};

/// Null, with the reason in `perche`, when this build has no PDF or the folder cannot be written.
std::unique_ptr<PdfBatch> crea_pdf_batch(const std::string& cartella, std::string& perche);

}  // namespace ambra
