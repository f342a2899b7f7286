// Instalments: those of the file where they add up to the net, their dates, and the tax that the user applies
// where the file has none.
#include <algorithm>
#include <cmath>

#include "core/date.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "invoices/proposta_parti.h"

namespace ambra {

namespace {

// A rate is taken for the document's when it gives its tax within so much.
constexpr double kTolleranza = 0.05;

}  // namespace

std::optional<Decimale> aliquota_trattenuta(const RecFattura& f, const TabellaIva& t) {
    double base = 0, tassa = 0;
    for (std::size_t i = 0; i < kCodiciIva; ++i) {
        tassa += f.rac[i];
        if (f.rac[i] != 0) base += f.impon[i];
    }
    if (base == 0) base = somma(f.esent);
    if (!(tassa > 0) || !(base > 0)) return {};
    const double precisa = tassa * 100 / base;
    std::vector<double> note;
    for (std::size_t i = 1; i <= kCodiciIva; ++i) note.push_back(leggi_numero(t.codice[i].ritenuta));
    note.push_back(std::round(precisa));
    for (const double x : note)
        if (x > 0 && std::abs(base * x / 100 - tassa) <= kTolleranza) return Decimale::leggi(testo_numero(x));
    return Decimale::leggi(testo_numero(std::round(precisa * 100) / 100));
}

namespace passi {

namespace {

const Decimale kCento = Decimale::di_centesimi(10'000);

Decimale somma(const std::vector<Rata>& rate) {
    Decimale s;
    for (const Rata& r : rate) s += r.importo;
    return s;
}

// What stood at `prima` brought to `netto`, to the cent; the first takes what rounding leaves over.
void scala(std::vector<Rata>& rate, Decimale netto, Decimale prima) {
    for (Rata& r : rate) r.importo = per_su(r.importo, netto, prima);
    rate.front().importo += netto - somma(rate);
}

void rate_con_ritenuta(Analisi& a, Decimale netto_prima) {
    if (a.nel_file.empty()) return;
    const Decimale s = somma(a.nel_file);
    a.rate = a.nel_file;
    a.rate_da = RateDa::file;
    if (s != a.netto && (s == netto_prima || s == a.totale)) {
        scala(a.rate, a.netto, s);
        a.rate_da = RateDa::lordo_a_netto;
    } else if (s != a.netto) {
        a.rate.clear();
        a.rate_da = RateDa::non_quadrano;
    }
    std::erase(a.avvisi, "rate-non-quadrano");
    if (a.rate_da == RateDa::non_quadrano) a.avvisi.push_back("rate-non-quadrano");
}

Termine termine(const Cantiere& k) {
    return termine_di(k.c.pagamenti->termine[static_cast<std::size_t>(k.p.termine) + 1].codice);
}

// The due dates of the supplier's term; a gap is the date before it.
std::array<std::string, kRate> scadenze(const Cantiere& k) {
    const auto base = data_valida(k.p.datadoc);
    const Scadenze s = calcscad(termine(k), base ? *base : data_valida(k.c.oggi).value_or(Data{}));
    std::array<std::string, kRate> r;
    for (std::size_t i = 0; i < kRate; ++i) r[i] = s[i].value_or(i > 0 ? r[i - 1] : "");
    return r;
}

// Nothing in the file says when, and the net is not what the screen would split.
void rate_del_termine(Cantiere& k) {
    const Termine t = termine(k);
    const auto n = Decimale::di_centesimi(100 * t.rate());
    const Decimale una = per_su(k.a.netto, Decimale::di_centesimi(100), n);
    const auto date = scadenze(k);
    Decimale resto = k.a.netto;
    k.p.con_rate = true;
    for (std::size_t i = 1; i < kRate; ++i) {
        if (t.mesi[i] <= 0) continue;
        k.p.sca[i] = una.testo();
        k.p.dsca[i] = date[i];
        resto -= una;
    }
    k.p.sca[0] = resto.testo();
    k.p.dsca[0] = date[0];
}

}  // namespace

void ritenuta_offerta(Cantiere& k) {
    if (c_e(k.a.ritenuta) || !k.c.ultima) return;
    const auto aliquota = aliquota_trattenuta(*k.c.ultima, *k.c.iva);
    if (!aliquota) return;
    k.p.ritenuta_offerta = aliquota->testo_breve();
    if (!k.c.applica_ritenuta) return;
    Decimale base;
    for (const SommaAliquota& s : k.a.iva) base += s.imponibile;
    if (k.a.iva.empty())
        for (const SommaNatura& s : k.a.esenti) base += s.importo;
    const Decimale prima = k.a.netto;
    k.a.aliquota_ritenuta = *aliquota;
    k.a.base_ritenuta = base;
    k.a.ritenuta = per_su(base, *aliquota, kCento);
    k.a.netto -= k.a.ritenuta;
    rate_con_ritenuta(k.a, prima);
}

void rate_proposte(Cantiere& k) {
    const Analisi& a = k.a;
    if (a.rate_da == RateDa::non_quadrano) return;
    if (a.rate.empty()) {
        if (a.netto != a.totale - a.ritenuta) rate_del_termine(k);
        return;
    }
    const auto date = scadenze(k);
    k.p.con_rate = true;
    for (std::size_t i = 0; i < a.rate.size() && i < kRate; ++i) {
        const auto d = data_iso(a.rate[i].data);
        k.p.sca[i] = a.rate[i].importo.testo();
        k.p.dsca[i] = d ? testo_data(*d) : date[i];
    }
}

}  // namespace passi

}  // namespace ambra
