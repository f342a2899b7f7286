// The instalments of the file, brought to the net to pay where they can be.
#include "core/date.h"
#include "invoices/analisi_parti.h"
#include "records/fattura.h"

namespace ambra::passi {

namespace {

// The due date, or the one that days from a date make; empty where there is neither.
std::string scadenza(const PagamentoLetto& p, const FatturaLetta& f) {
    if (data_iso(p.scadenza)) return p.scadenza;
    const auto giorni = Decimale::leggi(p.giorni);
    const auto da = data_iso(p.riferimento.empty() ? f.data : p.riferimento);
    if (!giorni || !da) return "";
    const std::int64_t n = giorni->centesimi() / 100;
    return n < 0 || n > 3650 ? "" : testo_iso(piu_giorni(*da, static_cast<int>(n)));
}

std::vector<Rata> del_file(const FatturaLetta& f) {
    std::vector<Rata> rate;
    Decimale somma;
    for (const PagamentoLetto& p : f.pagamenti) {
        const Decimale x = importo(p.importo).al_centesimo();
        if (c_e(x)) rate.push_back({scadenza(p, f), x});
        somma += x;
    }
    if (somma < Decimale())
        for (Rata& r : rate) r.importo = -r.importo;
    return rate;
}

Decimale somma(const std::vector<Rata>& rate) {
    Decimale s;
    for (const Rata& r : rate) s += r.importo;
    return s;
}

void al_netto(Analisi& a) {
    for (Rata& r : a.nel_file) r.importo = per_su(r.importo, a.netto, a.totale);
    a.nel_file.front().importo += a.netto - somma(a.nel_file);
    a.rate_da = RateDa::lordo_a_netto;
}

}  // namespace

void rate(const FatturaLetta& f, Analisi& a) {
    a.nel_file = del_file(f);
    if (a.nel_file.empty()) return;
    if (a.nel_file.size() > kRate) {
        a.avvisi.push_back("piu-di-quattro-rate");
        for (std::size_t i = kRate; i < a.nel_file.size(); ++i)
            a.nel_file[kRate - 1].importo += a.nel_file[i].importo;
        a.nel_file.resize(kRate);
    }
    for (const Rata& r : a.nel_file)
        if (r.data.empty()) a.avvisi.push_back("scadenza-assente");
    const Decimale s = somma(a.nel_file);
    const bool trattenuto = c_e(a.ritenuta) || c_e(a.contributi);
    if (s.in_misura() && s == a.netto)
        a.rate_da = RateDa::file;
    else if (trattenuto && s.in_misura() && s == a.totale)
        al_netto(a);
    else
        a.rate_da = RateDa::non_quadrano;
    if (a.rate_da == RateDa::non_quadrano)
        a.avvisi.push_back("rate-non-quadrano");
    else
        a.rate = a.nel_file;
}

}  // namespace ambra::passi
