#include "invoices/mano.h"

namespace ambra {

void Mano::digita(std::string_view campo, const std::string& testo) {
    if (auto* c = dynamic_cast<CampoTesto*>(schermo_.trova(campo))) c->digita(testo);
}

void Mano::clicca(std::string_view controllo) {
    Controllo* c = schermo_.trova(controllo);
    if (auto* o = dynamic_cast<Opzione*>(c))
        o->clicca();
    else if (c)
        c->premi();
}

void Mano::scegli(std::string_view lista, int voce) {
    if (auto* l = dynamic_cast<Lista*>(schermo_.trova(lista))) l->scegli(voce);
}

void Mano::spunta(std::string_view casella, bool si) {
    auto* c = dynamic_cast<Casella*>(schermo_.trova(casella));
    if (c && c->spuntata() != si) c->clicca();
}

}  // namespace ambra
