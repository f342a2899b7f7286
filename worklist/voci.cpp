#include "worklist/voci.h"

#include "core/date.h"
#include "core/testo.h"

namespace ambra {

VoceElenco voce_di(const RecFattura& f, std::string_view oggi) {
    const int verso = segno(f);
    VoceElenco v;
    v.totale = (somma(f.impon) + somma(f.ivai) + somma(f.esent)) * verso;
    v.scoperto = (somma(f.sca) - somma(f.ver)) * verso;
    v.eliminata = f.cancellata == 1;
    v.pdf = !f.pdf.rifilato().empty();
    for (std::size_t k = 0; k < kRate; ++k) {
        const double resta = f.sca[k] - f.ver[k];
        if (resta == 0) continue;  // most are paid, and a date is dear to turn round
        const std::string data = f.dsca[k].testo();
        if (!rifila(data).empty() && da_ggmmaaaa_a_aaaammgg(data) < oggi) v.scaduto += resta * verso;
    }
    return v;
}

}  // namespace ambra
