// The PDF files of a batch run: one for each recorded print job.
#pragma once

#include <memory>
#include <string>

#include "print/registratore.h"

namespace ambra {

/// Writes the jobs of a run into a folder, numbered; see PartePdf.
class PdfBatch {
  public:
    explicit PdfBatch(std::string cartella) : cartella_(std::move(cartella)) {}
    /// "" or why the file could not be written (UTF-8).
    std::string scrivi(const LavoroStampa& lavoro, int numero);

  private:
    std::string cartella_;
};

/// Makes the folder where it is missing. Null, with the reason in `perche`, when this program has no PDF or
/// the folder cannot be written.
std::unique_ptr<PdfBatch> crea_pdf_batch(const std::string& cartella, std::string& perche);

}  // namespace ambra
