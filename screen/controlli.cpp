#include "screen/controlli.h"

#include <algorithm>

#include "core/date.h"
#include "core/numeri.h"
#include "core/testo.h"

namespace ambra {

namespace {

constexpr std::size_t kCifreData = 10;  // of "dd/mm/yyyy"

}  // namespace

std::string_view nome_genere(Genere g) {
    switch (g) {
        case Genere::text:
            return "text";
        case Genere::date:
            return "date";
        case Genere::label:
            return "label";
        case Genere::button:
            return "button";
        case Genere::check:
            return "check";
        case Genere::option:
            return "option";
        case Genere::list:
            return "list";
        case Genere::scroll:
            return "scroll";
        case Genere::progress:
            return "progress";
        case Genere::grid:
            return "grid";
    }
    return "";
}

void Controllo::visible(bool v) {
    if (visible_ == v) return;
    visible_ = v;
    avvisa();
}

void Controllo::enabled(bool v) {
    if (enabled_ == v) return;
    enabled_ = v;
    avvisa();
}

void Controllo::caption(std::string c) {
    if (caption_ == c) return;
    caption_ = std::move(c);
    avvisa();
}

void Controllo::colore_testo(long rgb) {
    colore_testo_ = rgb;
    avvisa();
}

void Controllo::colore_sfondo(long rgb) {
    colore_sfondo_ = rgb;
    avvisa();
}

void CampoTesto::testo(std::string t) {
    if (testo_ == t) return;
    testo_ = std::move(t);
    cambia();
}

void CampoTesto::digita(std::string t) {
    if (testo_ == t) return;
    testo(std::move(t));
    if (digitato) digitato();
}

void CampoData::testo(std::string t) {
    if (altro_ != Altro::intatto) {
        if (const auto d = data_valida(t)) {
            t = testo_data(*d);
        } else if (altro_ == Altro::rifiuta && !t.empty()) {
            return;
        }
    }
    CampoTesto::testo(std::move(t));
}

void CampoData::digita(std::string t) {
    if (t.empty() && altro_ == Altro::rifiuta) return;
    const std::string prima = testo();
    const bool stesso_giorno = t == prima;
    testo(std::move(t));
    // The day that a picker stands on can be picked too; what is not taken is no pick.
    if ((stesso_giorno || testo() != prima) && digitato) digitato();
}

bool riordina_data(CampoTesto& campo) {
    const std::string s = campo.testo();
    if (s.size() != kCifreData) return leggi_numero(s) <= 0;
    campo.testo(unisci(sinistra(s, 2), "/", medio(s, 4, 2), "/", destra(s, 4)));
    return true;
}

void Casella::spuntata(bool v) {
    if (spuntata_ == v) return;
    spuntata_ = v;
    cambia();
}

void Casella::clicca() {
    spuntata(!spuntata_);
    if (digitato) digitato();
    premi();
}

void Opzione::gruppo(std::vector<Opzione*> tutte) {
    for (Opzione* o : tutte) o->compagne_ = tutte;
}

void Opzione::scelta(bool v) {
    if (scelta_ == v) return;
    if (v)
        for (Opzione* o : compagne_)
            if (o != this && o->scelta_) {
                o->scelta_ = false;
                o->cambia();
            }
    scelta_ = v;
    cambia();
}

void Opzione::clicca() {
    const bool nuova = !scelta_;
    scelta(true);
    if (nuova && digitato) digitato();
    premi();
}

void Lista::aggiungi(std::string voce) {
    voci_.push_back(std::move(voce));
    avvisa();
}

void Lista::svuota() {
    voci_.clear();
    scelta_ = -1;
    avvisa();
}

void Lista::scelta(int n) {
    if (n < 0 || n >= static_cast<int>(voci_.size())) n = -1;
    if (scelta_ == n) return;
    scelta_ = n;
    cambia();
}

void Lista::scegli(int n) {
    if (fermo()) return;
    const int prima = scelta_;
    scelta(n);
    if (scelta_ != prima && digitato) digitato();
}

std::string Lista::testo() const {
    return scelta_ < 0 ? "" : voci_[static_cast<std::size_t>(scelta_)];
}

void Scorrimento::limiti(int minimo, int massimo) {
    minimo_ = minimo;
    massimo_ = std::max(minimo, massimo);
    avvisa();
    valore(valore_);
}

void Scorrimento::valore(int v) {
    v = std::clamp(v, minimo_, massimo_);
    if (valore_ == v) return;
    valore_ = v;
    cambia();
}

void Scorrimento::scorri(int v) {
    const int prima = valore_;
    valore(v);
    if (valore_ != prima && digitato) digitato();
}

void Progresso::massimo(int m) {
    massimo_ = m;
    avvisa();
}

void Progresso::valore(int v) {
    valore_ = v;
    avvisa();
}

}  // namespace ambra
