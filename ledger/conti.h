// The chart of accounts as a list: the named accounts of a range of voci, as the posting screen and the
// supplier register offer them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "archivio/archivio.h"
#include "records/conto.h"
#include "records/tabelle.h"

namespace ambra {

struct RigaConto {
    std::string voce;   ///< name of the voce, on its first account only
    std::string conto;  ///< name of the account
    int numero_voce = 0;
    int numero_conto = 0;
};

/// A name as it is shown and tested for emptiness: trimmed, then without control characters.
std::string nome_pulito(std::string_view nome);

/// The named accounts of voci `da_voce` to `a_voce`, in record order; a voce without a name is left out
/// whole. `ultimo`, if given, starts as and ends as the record in hand.
std::vector<RigaConto> elenca_conti(Archivio& arc, const TabellaVoci& tabella, int da_voce, int a_voce,
                                    RecConto* ultimo = nullptr);

}  // namespace ambra
