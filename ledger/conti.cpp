#include "ledger/conti.h"

#include "core/lettura.h"
#include "core/testo.h"

namespace ambra {

std::string nome_pulito(std::string_view nome) {
    return puliscitesto(rifila(nome));
}

std::vector<RigaConto> elenca_conti(Archivio& arc, const TabellaVoci& tabella, int da_voce, int a_voce,
                                    RecConto* ultimo) {
    std::vector<RigaConto> elenco;
    Passata<RecConto> piano(arc.pia);
    RecConto qui{};
    RecConto& conto = ultimo ? *ultimo : qui;
    for (int v = da_voce; v <= a_voce; ++v) {
        std::string voce = nome_pulito(tabella.nome(v));
        if (voce.empty()) continue;
        for (int c = 1; c <= kContiPerVoce; ++c) {
            leggi_o_resta(piano, idconto(v, c), conto);
            std::string nome = nome_pulito(conto.cnome.testo());
            if (nome.empty()) continue;
            elenco.push_back({std::move(voce), std::move(nome), v, c});
            voce.clear();
        }
    }
    return elenco;
}

}  // namespace ambra
