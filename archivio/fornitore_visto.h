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
        sostituito_ = false;
    }
    long record() const { return record_; }
    const RecFornitore& visto() const { return visto_; }
    /// Reads the record again: false if it is another supplier's by now, deleted elsewhere since, live again,
    /// or changed in name, fiscal code and VAT number together. A deletion by this program is one's own
    /// doing: he is still himself. So is a record that cannot be read.
    [[nodiscard]] bool ancora_lui(RecFornitore& ora);

    void fornitore_scritto(long n, const RecFornitore& prima, const RecFornitore& dopo) override;

  private:
    long record_ = 0;
    bool sostituito_ = false;  // by this program: another firm stands over his deleted record
    RecFornitore visto_{};
};

/// Tells everybody who looks at suppliers that record `n` was rewritten by this program.
void annuncia(Archivio& arc, long n, const RecFornitore& prima, const RecFornitore& dopo);

}  // namespace ambra
