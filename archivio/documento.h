// One document in a screen's hands, and the only road back to its file.
#pragma once

#include <functional>

#include "archivio/visti.h"

namespace ambra {

class DocumentoInMano {
  public:
    /// What came of a write; but for the first nothing was written.
    enum class Esito {
        scritto,
        sparito,   ///< not to be found any more, or its amounts were changed here and elsewhere
        occupato,  ///< another program holds the archive
        guasto     ///< the disc refused it
    };
    /// A screen's fields into a record; changes nothing else.
    using Campi = std::function<void(RecFattura&)>;
    /// What is written beside the record, and when.
    enum class Contatori {
        nessuno,
        modifica,           ///< after it: the index of documents is dirty
        eliminazione,       ///< after it: dirty, and something was deleted
        prima_eliminazione  ///< the same before it
    };

    explicit DocumentoInMano(Archivio& arc) : arc_(arc), visti_(arc) {}

    /// A new document: record 0 until it is stored.
    void nuovo();
    /// The document of record `n` as it stands now. False: it cannot be read; what is in hand is then a blank
    /// record that is not to be found again.
    bool prendi(long n);
    /// The fields were filled: what a screen left untouched would write.
    void base(const Campi& c);

    /// Whether it was never stored.
    bool mai_scritto() const { return nuovo_; }
    /// Where it was last found, 0 for a new one and for one that is gone.
    long record() const { return visti_.posto(1); }
    /// As it was when it was taken.
    const RecFattura& visto() const { return visto_; }

    /// Looks where it stands now, before a command asks anything; `sparito` or `scritto`.
    [[nodiscard]] Esito ritrova();
    /// What `scrivi` would store now, without storing it. `scritto` means that it could be.
    [[nodiscard]] Esito anteprima(const Campi& c, RecFattura& r);
    /// Stores the document: a new one at the end, another merged with what stands there now. `poi` works on
    /// the merged record.
    [[nodiscard]] Esito scrivi(const Campi& c, const Campi& poi = {}, Contatori quali = Contatori::modifica);
    /// Changes what stands there now.
    [[nodiscard]] Esito cambia(const Campi& c, Contatori quali = Contatori::nessuno);
    /// Marks it as deleted, in the order of writes that the caller's command has.
    [[nodiscard]] Esito elimina(Contatori quali);

  private:
    Esito fuso(const Campi& c, RecFattura& disco, RecFattura& r);
    Esito aggiungi(const Campi& c);
    Esito deposita(const RecFattura& prima, const RecFattura& dopo, Contatori quali);

    Archivio& arc_;
    DocumentiVisti visti_;
    RecFattura visto_{}, base_{};
    bool nuovo_ = true;
};

/// Changes the document of a row on what stands there now, its place found again; as DocumentoInMano::cambia.
[[nodiscard]] DocumentoInMano::Esito cambia_documento(
    Archivio& arc, DocumentiVisti& visti, int chiave, const DocumentoInMano::Campi& c,
    DocumentoInMano::Contatori quali = DocumentoInMano::Contatori::nessuno);
/// Marks a document as deleted; for `cambia_documento`.
void segna_eliminata(RecFattura& f);

/// Tells everybody who looks at documents that record `n` was rewritten by this program.
void annuncia(Archivio& arc, long n, const RecFattura& prima, const RecFattura& dopo);

}  // namespace ambra
