// On which rows of the VAT table the amounts go, and what of them bears the withheld tax. A base that is less
// than the taxable amount must stand on a row of its own: the certificates add up whole rows.
#include <algorithm>

#include "core/numeri.h"
#include "core/testo.h"
#include "invoices/proposta_parti.h"

namespace ambra::passi {

Decimale di_tabella(const std::string& testo) {
    return Decimale::leggi(testo_numero(leggi_numero(testo))).value_or(Decimale());
}

namespace {

using Indice = std::optional<std::size_t>;

Decimale aliquota(const Cantiere& k, std::size_t i) {
    return di_tabella(k.c.iva->codice[i + 1].aliquota);
}

Decimale trattenuta(const Cantiere& k, std::size_t i) {
    return di_tabella(k.c.iva->codice[i + 1].ritenuta);
}

// The rows of one rate: the first, the first that withholds as the document does, the first that does not.
struct Righe {
    Indice prima, con, senza;
    int quante = 0;
};

Righe righe_di(const Cantiere& k, Decimale quale) {
    Righe r;
    for (std::size_t i = 0; i < kCodiciIva; ++i) {
        if (aliquota(k, i) != quale) continue;
        ++r.quante;
        if (!r.prima) r.prima = i;
        const Decimale t = trattenuta(k, i);
        if (!r.con && c_e(t) && t == k.a.aliquota_ritenuta) r.con = i;
        if (!r.senza && t <= Decimale()) r.senza = i;
    }
    return r;
}

// ---- the base, rate by rate; what is exempt counts as rate 0 ----

Decimale disponibile(const Cantiere& k, Decimale quale) {
    Decimale x;
    for (const SommaAliquota& s : k.a.iva)
        if (s.aliquota == quale) x += s.imponibile;
    if (!c_e(quale))
        for (const SommaNatura& s : k.a.esenti) x += s.importo;
    return x;
}

Decimale base_di(const std::vector<BaseAliquota>& parti, Decimale quale) {
    for (const BaseAliquota& b : parti)
        if (b.aliquota == quale) return b.importo;
    return {};
}

// The rates of the document in the order of the table; those that it lacks after them.
std::vector<Decimale> in_ordine(const Cantiere& k) {
    std::vector<Decimale> r;
    const auto metti = [&](Decimale x) {
        const bool nel_documento =
            std::ranges::any_of(k.a.iva, [x](const SommaAliquota& s) { return s.aliquota == x; });
        if (nel_documento && std::ranges::find(r, x) == r.end()) r.push_back(x);
    };
    for (std::size_t i = 0; i < kCodiciIva; ++i) metti(aliquota(k, i));
    for (const SommaAliquota& s : k.a.iva) metti(s.aliquota);
    return r;
}

bool marcati_fanno_la_base(const Cantiere& k, Decimale base) {
    Decimale s;
    for (const BaseAliquota& m : k.a.marcati) {
        if (m.importo < Decimale() || m.importo > disponibile(k, m.aliquota)) return false;
        s += m.importo;
    }
    return s == base;
}

std::vector<BaseAliquota> parti(const Cantiere& k) {
    if (!c_e(k.a.ritenuta)) return {};
    const std::vector<Decimale> ordine = in_ordine(k);
    Decimale resta;
    for (const Decimale x : ordine) resta += disponibile(k, x);
    if (k.a.base_ritenuta) resta = *k.a.base_ritenuta;
    if (marcati_fanno_la_base(k, resta)) return k.a.marcati;
    std::vector<BaseAliquota> r;
    const auto prendi = [&](Decimale x) {
        const Decimale qui = std::min(disponibile(k, x), resta);
        if (qui <= Decimale()) return;
        r.push_back({x, qui});
        resta -= qui;
    };
    for (const Decimale x : ordine) prendi(x);
    prendi(Decimale());
    return r;
}

// The tax of each part; what rounding leaves over goes to the first.
std::vector<Decimale> tasse(const Cantiere& k, const std::vector<BaseAliquota>& parti) {
    Decimale base, resto = k.a.ritenuta;
    for (const BaseAliquota& b : parti) base += b.importo;
    std::vector<Decimale> r;
    for (const BaseAliquota& b : parti) {
        r.push_back(per_su(k.a.ritenuta, b.importo, base));
        resto -= r.back();
    }
    if (!r.empty()) r.front() += resto;
    return r;
}

// ---- on the rows ----

void metti(Cantiere& k, std::size_t riga, Decimale imponibile, Decimale imposta, Decimale tassa) {
    k.impon[riga] += imponibile;
    k.ivai[riga] += imposta;
    k.rac[riga] += tassa;
}

// Why the tax does not stand on a row that withholds it; a file may not say its rate.
std::string perche(const Cantiere& k, const std::string& tabella) {
    if (!c_e(k.a.aliquota_ritenuta)) return "Il file non dice la percentuale della ritenuta";
    return tabella;
}

void metti_aliquota(Cantiere& k, const SommaAliquota& s, Decimale base, Decimale tassa) {
    if (!c_e(s.imponibile) && !c_e(s.imposta)) return;
    const Righe r = righe_di(k, s.aliquota);
    const std::string quale = s.aliquota.testo_breve() + "%";
    if (!r.prima) {
        k.avvisa("aliquota-non-in-tabella", "La tabella iva non ha l'aliquota " + quale + ": imponibile " +
                                                s.imponibile.testo_italiano() + " e imposta " +
                                                s.imposta.testo_italiano() + " non sono riportati");
        return;
    }
    if (!c_e(base)) return metti(k, r.senza.value_or(*r.prima), s.imponibile, s.imposta, tassa);
    if (r.con && base == s.imponibile) return metti(k, *r.con, s.imponibile, s.imposta, tassa);
    if (r.con && r.senza) {
        const Decimale imposta = per_su(s.imposta, base, s.imponibile);
        metti(k, *r.con, base, imposta, tassa);
        return metti(k, *r.senza, s.imponibile - base, s.imposta - imposta, {});
    }
    metti(k, r.con.value_or(*r.prima), s.imponibile, s.imposta, tassa);
    const std::string manca =
        !r.con ? "non ha una riga con ritenuta " + k.a.aliquota_ritenuta.testo_breve() + "%"
               : "non ha una riga senza ritenuta"_it;
    k.avvisa(r.quante == 1 ? "una-sola-riga-iva" : "riga-iva-senza-ritenuta",
             perche(k, "Per l'aliquota " + quale + " la tabella iva " + manca) + ": tutto l'imponibile " +
                 s.imponibile.testo_italiano() + " sta su una riga con la ritenuta " +
                 tassa.testo_italiano() + "; le certificazioni lo sommeranno tutto");
}

// Takes `quanto` out of what is exempt: fees before advances made for the customer.
void togli_dagli_esenti(Analisi& a, Decimale quanto) {
    for (const bool anticipi : {false, true})
        for (SommaNatura& s : a.esenti) {
            if (s.natura.starts_with("N1") != anticipi || s.importo <= Decimale()) continue;
            const Decimale qui = std::min(s.importo, quanto);
            s.importo -= qui;
            quanto -= qui;
        }
}

// Tax on what bears no VAT: a code of rate 0 holds the base, else the tax stands alone.
void metti_esente(Cantiere& k, Decimale base, Decimale tassa) {
    if (const Righe r = righe_di(k, Decimale()); r.con && c_e(base)) {
        metti(k, *r.con, base, {}, tassa);
        togli_dagli_esenti(k.a, base);
        return;
    }
    std::size_t riga = 0;
    while (riga + 1 < kCodiciIva && (c_e(k.impon[riga]) || c_e(k.ivai[riga]))) ++riga;
    k.rac[riga] += tassa;
    const std::string manca = "La tabella iva non ha un codice ad aliquota 0 con ritenuta " +
                              k.a.aliquota_ritenuta.testo_breve() + "%";
    k.avvisa("ritenuta-su-esente", perche(k, manca) + ": la ritenuta " + tassa.testo_italiano() +
                                       " sta sulla riga " + std::to_string(riga + 1) +
                                       ", senza imponibile"_it);
}

}  // namespace

void righe_iva(Cantiere& k) {
    const std::vector<BaseAliquota> base = parti(k);
    const std::vector<Decimale> tassa = tasse(k, base);
    for (const SommaAliquota& s : k.a.iva) {
        Decimale t;
        for (std::size_t i = 0; i < base.size(); ++i)
            if (base[i].aliquota == s.aliquota) t = tassa[i];
        metti_aliquota(k, s, base_di(base, s.aliquota), t);
    }
    for (std::size_t i = 0; i < base.size(); ++i)
        if (!c_e(base[i].aliquota)) metti_esente(k, base[i].importo, tassa[i]);
    if (base.empty() && c_e(k.a.ritenuta)) metti_esente(k, {}, k.a.ritenuta);
}

}  // namespace ambra::passi
