// One supplier in a screen's hands with his place in the index, and the only road back to the files of the
// suppliers.
#pragma once

#include <string>
#include <string_view>

#include "archivio/fornitore_visto.h"

namespace ambra {

class FornitoreInMano {
  public:
    /// What came of a write; but for the first the archive is as it was.
    enum class Esito {
        scritto,
        un_altro,  ///< his record is another supplier's by now, or was deleted since
        occupato,  ///< another program holds the archive
        guasto     ///< the disc refused it
    };

    explicit FornitoreInMano(Archivio& arc) : arc_(arc), visto_(arc) {}

    /// Takes the supplier of record `n`, as read at position `posto` of the index.
    void prendi(int posto, long n, const RecFornitore& letto);
    /// His fields were filled: what a screen left untouched would write.
    void base(const RecFornitore& b) { base_ = b; }

    long record() const { return visto_.record(); }
    /// Whether he is deleted, as far as this program knows.
    bool eliminato() const { return visto_.visto().cancellata != 0; }
    /// As he was when he was taken or stored.
    const RecFornitore& letto() const { return letto_; }
    /// His position in the index: the last one if it still bears his number, else the first that does; the
    /// last one if none does.
    int posto();

    /// Looks whether his record is still his, before a command asks anything; `un_altro` or `scritto`.
    [[nodiscard]] Esito ritrova();
    /// The supplier as he stands now, with what `mio` changed since he was taken, into `r`; as `ritrova`.
    [[nodiscard]] Esito anteprima(const RecFornitore& mio, RecFornitore& r);
    /// Stores a new supplier over the first deleted one of the index, or at the end, and takes him in hand.
    [[nodiscard]] Esito inserisci(const RecFornitore& nuovo);
    /// Stores `mio` merged with what stands there now; the index follows a new name.
    [[nodiscard]] Esito cambia(const RecFornitore& mio);
    /// The same, marked as deleted.
    [[nodiscard]] Esito elimina(RecFornitore mio);

  private:
    Esito fuso(const RecFornitore& base, const RecFornitore& mio, RecFornitore& disco, RecFornitore& r);
    Esito scrivi(const RecFornitore& base, const RecFornitore& mio);
    Esito in_coda(const RecFornitore& nuovo, int n);
    Esito deposita(int posto, long n, const RecFornitore& prima, const RecFornitore& dopo);

    Archivio& arc_;
    FornitoreVisto visto_;
    int posto_ = 0;
    RecFornitore letto_{}, base_{};
};

/// The files of the suppliers of a building, this one or another.
struct FileFornitori {
    FileDi<RecTotali>& tfr;
    FileDi<RecFornitore>& fornitori;
    FileDi<RecNome>& srf;
};

/// Appends a supplier, his name in the index as given, under the lock of that building. False: the counters
/// cannot be read or are at their end, or the disc refused it; the count has not risen then.
[[nodiscard]] bool aggiungi_fornitore(const FileFornitori& f, Errore& err, const RecFornitore& nuovo,
                                      std::string_view nome);

/// Notes in the counters whether the index is out of order; under the lock.
bool segna_disordine(Archivio& arc, bool disordine);

/// The first position among the first `quanti` of the index that bears the number `n`; 0 if none.
int posto_nell_indice(Archivio& arc, int quanti, long n);

/// The name with the mark of a deleted supplier in front, cut to 40.
std::string nome_marcato(const RecFornitore& f);

}  // namespace ambra
