#include "archivio/azzeramento.h"

#include <array>
#include <vector>

#include "core/lettura.h"
#include "core/scrittura.h"

namespace ambra {

bool azzera_prima_di(Archivio& arc, std::string_view limite) {
    const Sezione sezione(arc.serratura, Serratura::documenti);
    if (!sezione.presa()) return false;
    RecTotali totali{};
    leggi_o_resta(arc.tfr, 2, totali);
    const int quante = totali.parola[0];
    if (quante < 1) return true;

    std::vector<Impronta> vecchi;
    std::vector<long> nuovi;
    int tolte = 0;
    {
        // The writer stays behind the reader, so that no block is read after it was overwritten.
        Passata<RecFattura> documenti(arc.ftr);
        Scrittura<RecFattura> restano(arc.ftr);
        RecFattura f{};
        for (int i = 1; i <= quante; ++i) {
            leggi_o_resta(documenti, i, f);
            const bool via = f.datareg.testo() < limite;
            if (via) {
                ++tolte;
            } else {
                restano.scrivi(i - tolte, f);
            }
            vecchi.push_back(Impronta::di(f));
            nuovi.push_back(via ? 0 : i - tolte);
        }
    }
    totali.parola[0] = quante - tolte;
    scrivi(arc.tfr, 2, totali);
    for (Osservatore* o : arc.osservatori) o->spostate(vecchi, nuovi);
    return true;
}

bool scrivi_limiti(Archivio& arc, const std::array<RecTotali, 2>& totali) {
    const Sezione fornitori(arc.serratura, Serratura::fornitori);
    if (!fornitori.presa()) return false;
    const Sezione documenti(arc.serratura, Serratura::documenti);
    if (!documenti.presa()) return false;
    for (std::size_t i = 0; i < totali.size(); ++i) scrivi(arc.tfr, static_cast<long>(i) + 1, totali[i]);
    return true;
}

}  // namespace ambra
