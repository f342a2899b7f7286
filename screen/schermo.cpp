#include "screen/schermo.h"

namespace ambra {

Schermo::Schermo(Programma& programma, std::string nome, std::string caption)
    : prog(programma), nome_(std::move(nome)), caption_(std::move(caption)) {}

void Schermo::caption(std::string c) {
    if (caption_ == c) return;
    caption_ = std::move(c);
    if (osservatore) osservatore();
}

void Schermo::aggiungi(std::string_view nome, Controllo& c, std::string_view caption) {
    c.nome_ = std::string(nome);
    c.schermo_ = this;
    if (!caption.empty()) c.caption(std::string(caption));
    controlli_.push_back(&c);
    per_nome_.emplace(c.nome_, &c);
}

bool Controllo::fermo() const {
    return schermo_ && schermo_->in_attesa();
}

Controllo* Schermo::trova(std::string_view nome) const {
    const auto it = per_nome_.find(nome);
    return it == per_nome_.end() ? nullptr : it->second;
}

void Schermo::fuoco(Controllo& c) {
    fuoco_ = &c;
    if (osservatore) osservatore();
    if (c.ricevuto) c.ricevuto();
}

}  // namespace ambra
