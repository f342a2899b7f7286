// The archive set of one building: twelve record files, opened once at start and open until the process ends.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "archivio/impronta.h"
#include "archivio/sezione.h"
#include "core/disco.h"
#include "core/filerecord.h"
#include "core/nomi_file.h"
#include "records/condomino.h"
#include "records/conto.h"
#include "records/fattura.h"
#include "records/fornitore.h"
#include "records/movimento.h"
#include "records/nome.h"
#include "records/stabile.h"
#include "records/totali.h"

namespace ambra {

struct Archivio;

/// Told of what this program writes, so that its rows and screens go on seeing their own.
class Osservatore {
  public:
    explicit Osservatore(Archivio& arc);
    virtual ~Osservatore();
    Osservatore(const Osservatore&) = delete;
    Osservatore& operator=(const Osservatore&) = delete;
    /// Record `n` held `prima` and holds `dopo` now.
    virtual void scritta(long /*n*/, const RecFattura& /*prima*/, const RecFattura& /*dopo*/) {}
    /// The documents were moved: `vecchi[i]` stood in record i + 1 and stands in record `nuovi[i]` now, 0 for
    /// those that went.
    virtual void spostate(std::span<const Impronta> /*vecchi*/, std::span<const long> /*nuovi*/) {}
    /// The supplier of record `n` was `prima` and is `dopo` now.
    virtual void fornitore_scritto(long /*n*/, const RecFornitore& /*prima*/, const RecFornitore& /*dopo*/) {}

  protected:
    Archivio& arc_;
};

struct Archivio {
    explicit Archivio(Errore& e)
        : err(e),
          cnd(e, 1),
          cns(e, 2),
          pia(e, 3),
          mov(e, 4),
          cn2(e, 5),
          tot(e, 15),
          edifici(e, 20),
          tfr(e, 21),
          fornitori(e, 22),
          srf(e, 23),
          ftr(e, 24),
          edifici2(e, 30) {}
    Archivio(const Archivio&) = delete;
    Archivio& operator=(const Archivio&) = delete;

    Errore& err;
    Disco* disco = nullptr;  ///< null until it was opened
    std::string nnn;

    FileDi<RecCondomino> cnd;
    FileDi<RecNome> cns;  ///< order of the condomini
    FileDi<RecConto> pia;
    FileDi<RecMovimento> mov;
    FileDi<RecCondomino2> cn2;
    FileDi<RecTotaliLedger> tot;
    FileDi<RecStabile> edifici;  ///< all buildings (lumora.tot)
    FileDi<RecTotali> tfr;       ///< counters of suppliers (record 1) and documents (record 2)
    FileDi<RecFornitore> fornitori;
    FileDi<RecNome> srf;  ///< index of the suppliers
    FileDi<RecFattura> ftr;
    FileDi<RecStabile2> edifici2;  ///< all buildings (lumora.tt2)

    Serratura serratura;
    std::vector<Osservatore*> osservatori;

    /// Sections held; 0 whenever a user is waited for.
    int sezioni_prese() const { return serratura.prese(); }
    /// What this program wrote into its record files survives a power cut from here on.
    void consolida();
};

/// Opens the set of building `nnn` in the binding order and reads its two master records. `err` is not
/// cleared on the way: any error gives .tfr its five initial records.
void apriarchivi(Disco& disco, Archivio& arc, std::string_view nnn, RecStabile& stabile,
                 RecStabile2& stabile2);

/// Counts as they stand now; a failed read gives 0.
int quanti_fornitori(Archivio& arc);
int quante_fatture(Archivio& arc);

}  // namespace ambra
