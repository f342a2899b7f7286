// The payments that "azzera" wiped, kept until the program ends so that they can be put back.
#pragma once

#include <vector>

#include "archivio/documento.h"

namespace ambra {

class SaldiAzzerati {
  public:
    explicit SaldiAzzerati(Archivio& arc) : arc_(arc), visti_(arc) {}
    /// The document of record `n` had the payments of `prima`.
    void ricorda(long n, const RecFattura& prima);
    /// Whether the document that stands in record `n` was wiped here and not put back.
    bool di(long n) const { return chiave_di(n) > 0; }
    /// Puts back what the document of record `n` had. `sparito` if it has other payments by now.
    [[nodiscard]] DocumentoInMano::Esito rimetti(long n);

  private:
    struct Saldo {
        RecFattura prima{};
        bool rimesso = false;
    };
    int chiave_di(long n) const;

    Archivio& arc_;
    DocumentiVisti visti_;
    std::vector<Saldo> saldi_;  // by key
};

/// Wipes the payments of a document.
void azzera_saldo(RecFattura& f);
/// A deleted document is live again; for `cambia_documento`.
void segna_viva(RecFattura& f);

}  // namespace ambra
