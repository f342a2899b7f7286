#include "maintenance/verifica.h"

#include <algorithm>
#include <set>

#include "core/impostazioni.h"
#include "maintenance/nomi_archivio.h"
#include "maintenance/verifica_cartella.h"

namespace ambra {

namespace {

// The checks of a building, in their order.
constexpr void (*kDelloStabile[])(Cartella&, Saputo&) = {verifica_stabile,   verifica_conti,
                                                         verifica_condomini, verifica_fornitori,
                                                         verifica_indice,    verifica_documenti};

}  // namespace

bool Verifica::quali_stabili(std::vector<std::string>& nnn) {
    std::vector<std::string> nomi;
    nnn.clear();
    if (disco_.elenca(kCartella, nomi) != 0) {
        illeggibile_ = true;
        return false;
    }
    std::set<std::string> trovati;
    for (const auto& n : nomi)
        if (fa_lo_stabile(n)) trovati.insert(padrone(n));
    nnn.assign(trovati.begin(), trovati.end());
    return true;
}

void Verifica::globali() {
    Cartella c(*this, "");
    std::vector<std::string> nomi;
    if (disco_.elenca(kCartella, nomi) != 0) {
        illeggibile_ = true;
        return;
    }
    std::sort(nomi.begin(), nomi.end());
    verifica_nomi(c, nomi);
    verifica_globali(c);
}

void Verifica::stabile(const std::string& nnn) {
    std::vector<std::string> presenti;
    if (!quali_stabili(presenti)) return;
    if (std::find(presenti.begin(), presenti.end(), nnn) == presenti.end()) {
        illeggibile_ = true;
        return;
    }
    Cartella c(*this, nnn);
    Saputo saputo;
    for (const auto controllo : kDelloStabile) controllo(c, saputo);
}

}  // namespace ambra
