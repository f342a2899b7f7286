#include "screen/griglia.h"

#include <algorithm>
#include <cassert>
#include <numeric>

#include "core/numeri.h"

namespace ambra {

namespace {

constexpr std::size_t kByteDiUnaCella = 10;  // of most lists; a longer text finds its room all the same

// What the sort needs of a cell, worked out once per row.
struct Chiave {
    bool numero = false;
    double valore = 0;
    std::string_view resto;
    int coda = 0;  ///< rows that stay behind, whatever they hold
};

Chiave chiave_generica(std::string_view s) {
    Chiave k;
    std::size_t fine = 0;
    k.numero = inizia_numero(s, k.valore, fine);
    k.resto = k.numero ? s.substr(fine) : s;
    return k;
}

int confronta(const Chiave& a, const Chiave& b) {
    if (a.coda != b.coda) return a.coda - b.coda;
    if (a.numero != b.numero) return a.numero ? -1 : 1;
    if (a.valore != b.valore) return a.valore < b.valore ? -1 : 1;
    return a.resto.compare(b.resto);
}

}  // namespace

int confronta_generico(std::string_view a, std::string_view b) {
    return confronta(chiave_generica(a), chiave_generica(b));
}

void Griglia::mossa() {
    if (ridisegna_) avvisa();
}

void Griglia::colonne(std::vector<Colonna> c, int larghezza, int margine) {
    colonne_ = std::move(c);
    int resto = larghezza - margine;
    for (const auto& col : colonne_)
        if (col.larghezza != kResto) resto -= col.larghezza;
    for (auto& col : colonne_)
        if (col.larghezza == kResto) col.larghezza = std::max(resto, 0);
    righe(1);
}

void Griglia::righe(int n) {
    const std::size_t voluti = n < 1 ? 0 : static_cast<std::size_t>(n - 1);
    if (voluti == 0) {
        ordine_.clear();
        celle_.clear();
        deposito_.clear();
        scarti_ = 0;
        colori_.assign(colonne_.size(), {});
        testi_riga_.clear();
        chiavi_.clear();
        prima_ = 1;
    } else if (voluti < ordine_.size()) {
        ordine_.resize(voluti);
    } else {
        while (ordine_.size() < voluti) ordine_.push_back(nuova_riga());
    }
    mossa();
}

void Griglia::riserva(int n) {
    const std::size_t quante = n < 0 ? 0 : static_cast<std::size_t>(n);
    ordine_.reserve(quante);
    chiavi_.reserve(quante);
    celle_.reserve(quante * colonne_.size());
    deposito_.reserve(quante * colonne_.size() * kByteDiUnaCella);
}

std::uint32_t Griglia::nuova_riga() {
    const auto n = colonne_.empty() ? 0 : celle_.size() / colonne_.size();
    celle_.resize(celle_.size() + colonne_.size());
    return static_cast<std::uint32_t>(n);
}

int Griglia::aggiungi() {
    ordine_.push_back(nuova_riga());
    mossa();
    return righe() - 1;
}

int Griglia::aggiungi(std::span<const Contenuto> celle) {
    ordine_.push_back(nuova_riga());
    const int r = righe() - 1;
    const std::size_t b = base(r);
    const std::size_t n = std::min(celle.size(), colonne_.size());
    for (std::size_t c = 0; c < n; ++c)
        celle_[b + c] = celle[c].testo ? deposita({celle[c].testo, celle[c].cella.n}) : celle[c].cella;
    mossa();
    return r;
}

void Griglia::inserisci(int r) {
    r = std::clamp(r, 1, righe());
    ordine_.insert(ordine_.begin() + (r - 1), nuova_riga());
    mossa();
}

void Griglia::scambia_righe(Griglia& altra) {
    assert(colonne_.size() == altra.colonne_.size());
    ordine_.swap(altra.ordine_);
    celle_.swap(altra.celle_);
    deposito_.swap(altra.deposito_);
    std::swap(scarti_, altra.scarti_);
    colori_.swap(altra.colori_);
    testi_riga_.swap(altra.testi_riga_);
    chiavi_.swap(altra.chiavi_);
    std::swap(prima_, altra.prima_);
    altra.mossa();
    mossa();
}

std::string_view Griglia::vista(int r, int c) const {
    if (r == 0 && c >= 0 && c < quante_colonne()) return colonna(c).titolo;
    if (!dentro(r, c)) return {};
    const Cella& x = celle_[base(r) + static_cast<std::size_t>(c)];
    return std::string_view(deposito_).substr(x.da, x.n);
}

Griglia::Cella Griglia::deposita(std::string_view t) {
    const Cella x{static_cast<std::uint32_t>(deposito_.size()), static_cast<std::uint32_t>(t.size())};
    deposito_.append(t);
    return x;
}

void Griglia::compatta() {
    std::string nuovo;
    nuovo.reserve(deposito_.size() - scarti_);
    for (Cella& x : celle_) {
        const auto da = static_cast<std::uint32_t>(nuovo.size());
        nuovo.append(deposito_, x.da, x.n);
        x.da = da;
    }
    deposito_ = std::move(nuovo);
    scarti_ = 0;
}

void Griglia::scrivi(int r, int c, std::string_view t) {
    if (r == 0 && c >= 0 && c < quante_colonne()) {
        colonne_[static_cast<std::size_t>(c)].titolo = std::string(t);
        mossa();
        return;
    }
    if (!dentro(r, c)) return;
    Cella& x = celle_[base(r) + static_cast<std::size_t>(c)];
    scarti_ += x.n;                // left as it is: other cells may show it
    x = deposita(std::string(t));  // a copy: `t` may lie in the pool that is about to grow
    if (scarti_ > 65536 && scarti_ > deposito_.size() / 2) compatta();
    mossa();
}

long Griglia::colore(int r, int c) const {
    if (!dentro(r, c)) return -1;
    const auto& col = colori_[static_cast<std::size_t>(c)];
    const std::uint32_t id = ordine_[static_cast<std::size_t>(r - 1)];
    return id < col.size() ? col[id] : -1;
}

void Griglia::colora(int r, int c, long rgb) {
    if (!dentro(r, c)) return;
    auto& col = colori_[static_cast<std::size_t>(c)];
    const std::uint32_t id = ordine_[static_cast<std::size_t>(r - 1)];
    if (id >= col.size()) {
        if (rgb < 0) return;
        col.resize(std::max<std::size_t>(id + 1, col.size() + col.size() / 2), -1);
    }
    col[id] = static_cast<std::int32_t>(rgb);
    mossa();
}

bool Griglia::colorata(int c) const {
    return c >= 0 && c < quante_colonne() && !colori_[static_cast<std::size_t>(c)].empty();
}

long Griglia::colore_testo_riga(int r) const {
    if (!dentro(r, 0)) return -1;
    const std::uint32_t id = ordine_[static_cast<std::size_t>(r - 1)];
    return id < testi_riga_.size() ? testi_riga_[id] : -1;
}

void Griglia::colora_testo_riga(int r, long rgb) {
    if (!dentro(r, 0)) return;
    const std::uint32_t id = ordine_[static_cast<std::size_t>(r - 1)];
    if (id >= testi_riga_.size()) testi_riga_.resize(id + 1, -1);
    testi_riga_[id] = static_cast<std::int32_t>(rgb);
    mossa();
}

long Griglia::chiave(int r) const {
    if (!dentro(r, 0)) return 0;
    const std::uint32_t id = ordine_[static_cast<std::size_t>(r - 1)];
    return id < chiavi_.size() ? chiavi_[id] : 0;
}

void Griglia::chiave(int r, long k) {
    if (!dentro(r, 0)) return;
    const std::uint32_t id = ordine_[static_cast<std::size_t>(r - 1)];
    if (id >= chiavi_.size()) chiavi_.resize(std::max<std::size_t>(id + 1, chiavi_.size() * 2), 0);
    chiavi_[id] = static_cast<std::int32_t>(k);
}

void Griglia::ordina(int c, Ordine come) {
    ordina(c, come, false);
}

void Griglia::ordina_dati(int c, Ordine come) {
    ordina(c, come, true);
}

void Griglia::ordina(int c, Ordine come, bool coda_ferma) {
    if (c < 0 || c >= quante_colonne()) return;
    std::vector<Chiave> chiavi(ordine_.size());
    for (int r = 1; r < righe(); ++r) {
        Chiave& k = chiavi[static_cast<std::size_t>(r - 1)];
        if (come == Ordine::numerico) {
            k.valore = leggi_numero(vista(r, c));
        } else {
            k = chiave_generica(vista(r, c));
        }
        if (const long n = coda_ferma ? chiave(r) : 1; n <= 0) k.coda = n < 0 ? 1 : 2;
    }
    std::vector<std::uint32_t> posti(ordine_.size());
    std::iota(posti.begin(), posti.end(), 0u);
    std::stable_sort(posti.begin(), posti.end(),
                     [&](std::uint32_t a, std::uint32_t b) { return confronta(chiavi[a], chiavi[b]) < 0; });
    std::vector<std::uint32_t> nuovo(ordine_.size());
    for (std::size_t i = 0; i < posti.size(); ++i) nuovo[i] = ordine_[posti[i]];
    ordine_ = std::move(nuovo);
    mossa();
}

void Griglia::ridisegna(bool v) {
    const bool prima = ridisegna_;
    ridisegna_ = v;
    if (v && !prima) avvisa();
}

void Griglia::prima_visibile(int r) {
    prima_ = std::clamp(r, 1, std::max(1, righe() - 1));
    mossa();
}

}  // namespace ambra
