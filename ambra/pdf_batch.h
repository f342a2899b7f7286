// The PDF files of a batch run: one for each recorded print job.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "parti/parti.h"

namespace ambra {

/// Writes jobs into a folder, numbered; see PartePdf. Those of a run are drawn a block at a time.
class PdfBatch {
  public:
    explicit PdfBatch(std::string cartella) : cartella_(std::move(cartella)) {}
    /// Told why a file could not be written (UTF-8).
    std::function<void(const std::string&)> fallito;

    void aggiungi(LavoroStampa&& lavoro, int numero);
    /// A run begins, or has ended: what is left of it is written.
    void tornata(bool inizia);

  private:
    void scrivi();

    std::string cartella_;
    std::vector<LavoroNumerato> in_attesa_;
    bool in_tornata_ = false;
};

/// Makes the folder where it is missing. Null, with the reason in `perche`, when this program has no PDF or
/// the folder cannot be written.
std::unique_ptr<PdfBatch> crea_pdf_batch(const std::string& cartella, std::string& perche);

}  // namespace ambra
