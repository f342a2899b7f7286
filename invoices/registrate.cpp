#include "invoices/registrate.h"

#include "core/testo.h"

namespace ambra {

namespace {

bool viva(const RecFattura& f) {
    return f.cancellata == 0;
}

std::string anno_di(const RecFattura& f) {
    return std::string(sinistra(f.datadoc.testo(), 4));
}

ChiaveDocumento chiave_documento(const RecFattura& f) {
    return {f.numfor, f.numdoc.testo(), anno_di(f), f.tipodc == 1};
}

// A question of its own never leaves an error of its own.
class ErroreIntatto {
  public:
    explicit ErroreIntatto(Errore& e) : e_(e), numero_(e.numero) {}
    ~ErroreIntatto() { e_.numero = numero_; }
    ErroreIntatto(const ErroreIntatto&) = delete;
    ErroreIntatto& operator=(const ErroreIntatto&) = delete;

  private:
    Errore& e_;
    int numero_;
};

}  // namespace

std::string numero_confrontabile(std::string_view numero) {
    std::string tutto;
    for (const char c : maiuscolo(destra(rifila(numero), sizeof(RecFattura::numdoc))))
        if (c != ' ') tutto += c;
    std::string r;
    for (std::size_t i = 0; i < tutto.size(); ++i) {
        const bool inizia = cifra(tutto[i]) && (i == 0 || !cifra(tutto[i - 1]));
        if (inizia)
            while (tutto[i] == '0' && i + 1 < tutto.size() && cifra(tutto[i + 1])) ++i;
        r += tutto[i];
    }
    return r;
}

Registrate& Registrate::di(Programma& p) {
    if (!p.registrate) p.registrate = std::make_shared<Registrate>(p);
    return *p.registrate;
}

const std::string& Registrate::chi_e(long fornitore) {
    const auto [e, nuovo] = fornitori_.try_emplace(fornitore);
    if (!nuovo) return e->second;
    RecFornitore r{};
    std::string piva;
    if (fornitore > 0 && leggi(arc_.fornitori, fornitore, r)) piva = maiuscolo(r.piva.rifilato());
    e->second = piva.empty() ? "n" + std::to_string(fornitore) : piva;
    return e->second;
}

std::string Registrate::chiave(const ChiaveDocumento& k) {
    const std::string numero = numero_confrontabile(k.numero);
    if (numero.empty() || k.fornitore < 1) return "";
    return unisci(chi_e(k.fornitore), k.nota_credito ? "|c" : "|f", k.anno, "|", numero);
}

std::string Registrate::chiave_di(const RecFattura& f) {
    return viva(f) ? chiave(chiave_documento(f)) : std::string();
}

void Registrate::leggi_fino_a(long quante) {
    Passata<RecFattura> documenti(arc_.ftr);
    per_chiave_.reserve(static_cast<std::size_t>(quante));
    for (long n = letti_ + 1; n <= quante; ++n) {
        const RecFattura* f = documenti.vista(n);
        if (!f || !viva(*f)) continue;
        ultime_[f->numfor] = n;
        if (const std::string k = chiave_di(*f); !k.empty()) per_chiave_[k].push_back(n);
    }
    letti_ = quante;
}

void Registrate::aggiorna() {
    const long quante = quante_fatture(arc_);
    if (letti_ < 0 || quante < letti_) {
        per_chiave_.clear();
        ultime_.clear();
        fornitori_.clear();
        letti_ = 0;
    }
    if (quante > letti_) leggi_fino_a(quante);
}

// What is found is looked at where it stands: another program may have changed it meanwhile.
long Registrate::cerca(const ChiaveDocumento& k, long escluso, RecFattura& f) {
    const ErroreIntatto intatto(arc_.err);
    aggiorna();
    const std::string cercata = chiave(k);
    const auto e = cercata.empty() ? per_chiave_.end() : per_chiave_.find(cercata);
    if (e == per_chiave_.end()) return 0;
    for (const long n : e->second)
        if (n != escluso && leggi(arc_.ftr, n, f) && chiave_di(f) == cercata) return n;
    return 0;
}

long Registrate::ultima(long fornitore, RecFattura& f) {
    const ErroreIntatto intatto(arc_.err);
    for (int volta = 0; volta < 2; ++volta) {
        aggiorna();
        const auto e = ultime_.find(fornitore);
        if (e == ultime_.end()) return 0;
        if (leggi(arc_.ftr, e->second, f) && viva(f) && f.numfor == fornitore) return e->second;
        rifai();
    }
    return 0;
}

void Registrate::scritta(long n, const RecFattura& prima, const RecFattura& dopo) {
    if (n <= letti_ && chiave_di(prima) != chiave_di(dopo)) rifai();
}

}  // namespace ambra
