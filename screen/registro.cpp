#include "screen/registro.h"

#include <algorithm>

namespace ambra {

Registro::~Registro() = default;

void Registro::registra(std::string nome, Fabbrica fabbrica, Opzioni opzioni) {
    voci_[std::move(nome)] = {std::move(fabbrica), std::move(opzioni)};
}

std::vector<std::string> Registro::nomi() const {
    std::vector<std::string> r;
    for (const auto& [nome, v] : voci_) r.push_back(nome);
    return r;
}

std::vector<Registro::Strumento> Registro::strumenti() const {
    std::map<int, Strumento> per_posto;
    for (const auto& [nome, v] : voci_)
        if (!v.opzioni.strumento.empty()) per_posto[v.opzioni.posto] = {v.opzioni.strumento, nome};
    std::vector<Strumento> r;
    for (auto& [posto, s] : per_posto) r.push_back(std::move(s));
    return r;
}

Schermo* Registro::caricato(std::string_view nome) const {
    for (const auto& s : caricati_)
        if (s->nome() == nome) return s.get();
    return nullptr;
}

Schermo* Registro::carica(std::string_view nome) {
    if (Schermo* s = caricato(nome)) return s;
    const auto it = voci_.find(nome);
    if (it == voci_.end()) return nullptr;
    caricati_.push_back(it->second.fabbrica(prog_));
    return caricati_.back().get();
}

void Registro::apri(std::string_view nome) {
    Turno turno(*this);
    Schermo* s = carica(nome);
    if (!s) return;
    if (s->in_attesa()) return porta_davanti(*s);
    const bool nuova = !s->visible_;
    s->visible_ = true;
    davanti(*s);
    if (nuova && spia) spia(Evento::open, *s);
    attiva(*s, Attivazione::aperta);
}

bool Registro::apri_foglia(std::string_view nome) {
    const auto it = voci_.find(nome);
    if (it == voci_.end() || it->second.opzioni.vuole_documento) return false;
    if (it->second.opzioni.prepara) it->second.opzioni.prepara(prog_);
    apri(nome);
    return true;
}

void Registro::porta_davanti(Schermo& s) {
    davanti(s);
    if (spia) spia(Evento::davanti, s);
}

void Registro::davanti(Schermo& s) {
    std::erase(pila_, &s);
    pila_.push_back(&s);
}

void Registro::attiva(Schermo& s, Attivazione come) {
    if (spia) spia(Evento::activate, s);
    if (s.attivata) s.attivata(come);
}

void Registro::togli(Schermo& s, Evento come) {
    const bool in_cima = !pila_.empty() && pila_.back() == &s;
    std::erase(pila_, &s);
    s.visible_ = false;
    if (spia) spia(come, s);
    if (in_cima && !pila_.empty()) attiva(*pila_.back(), Attivazione::scoperta);
}

void Registro::nascondi(std::string_view nome) {
    Turno turno(*this);
    Schermo* s = caricato(nome);
    if (s && s->visible_) togli(*s, Evento::hide);
}

void Registro::chiudi(std::string_view nome) {
    Turno turno(*this);
    const auto it =
        std::find_if(caricati_.begin(), caricati_.end(), [&](const auto& s) { return s->nome() == nome; });
    if (it == caricati_.end()) return;
    // Unloaded by name at once, so that an `apri` from here on makes a fresh one; destroyed later.
    chiusi_.push_back(std::move(*it));
    caricati_.erase(it);
    togli(*chiusi_.back(), Evento::close);
}

void Registro::chiudi_dal_bordo(Schermo& s) {
    Turno turno(*this);
    if (s.in_attesa()) return;
    if (s.via_d_uscita) {
        s.via_d_uscita();
    } else {
        chiudi(s.nome());
    }
}

std::vector<Schermo*> Registro::caricati() const {
    std::vector<Schermo*> r;
    for (const auto& s : caricati_) r.push_back(s.get());
    return r;
}

void Registro::raccogli() {
    while (!chiusi_.empty()) {
        auto s = std::move(chiusi_.back());
        chiusi_.pop_back();
    }
}

}  // namespace ambra
