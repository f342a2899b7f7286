// The supplier that a screen shows, as it was last seen.
#pragma once

#include "archivio/archivio.h"

namespace ambra {

class FornitoreVisto : public Osservatore {
  public:
    explicit FornitoreVisto(Archivio& arc) : Osservatore(arc) {}

    void vedi(long n, const RecFornitore& f) {
        record_ = n;
        visto_ = f;
        eliminato_ = false;
    }
    long record() const { return record_; }
    const RecFornitore& visto() const { return visto_; }
    /// Reads the record again: false if it is another supplier's by now, deleted since, or changed in name,
    /// fiscal code and VAT number together. A record that cannot be read is taken for the same.
    [[nodiscard]] bool ancora_lui(RecFornitore& ora);

    void fornitore_scritto(long n, const RecFornitore& prima, const RecFornitore& dopo) override;

  private:
    long record_ = 0;
    bool eliminato_ = false;  // by this program, since he was seen: his record may be anybody's by now
    RecFornitore visto_{};
};

/// Tells everybody who looks at suppliers that record `n` was rewritten by this program.
void annuncia(Archivio& arc, long n, const RecFornitore& prima, const RecFornitore& dopo);

}  // namespace ambra
