// Tax and contributions withheld, and the amount that the tax was taken on.
#include <algorithm>

#include "invoices/analisi_parti.h"

namespace ambra::passi {

namespace {

const Decimale kCentesimo = Decimale::di_centesimi(1), kCento = Decimale::di_centesimi(10'000);

void segna(Analisi& a, const std::string& aliquota, Decimale quanto) {
    const Decimale x = importo(aliquota);
    for (BaseAliquota& m : a.marcati)
        if (m.aliquota == x) {
            m.importo += quanto;
            return;
        }
    a.marcati.push_back({x, quanto});
}

// Marked lines and funds; true if a line is among them.
bool marcati(const FatturaLetta& f, bool voltata, Analisi& a) {
    bool righe = false;
    const auto girato = [voltata](Decimale x) { return voltata ? -x : x; };
    for (const RigaLetta& r : f.righe)
        if (r.ritenuta) {
            segna(a, r.aliquota, girato(importo(r.totale)));
            righe = true;
        }
    for (const CassaLetta& c : f.casse)
        if (c.ritenuta) segna(a, c.aliquota, girato(importo(c.importo)));
    for (BaseAliquota& m : a.marcati) m.importo = m.importo.al_centesimo();
    return righe;
}

void trattenute(const FatturaLetta& f, Analisi& a) {
    Decimale maggiore, contributi;
    for (const RitenutaLetta& r : f.ritenute) {
        const Decimale x = importo(r.importo).al_centesimo();
        if (r.tipo == "RT01" || r.tipo == "RT02") {
            a.ritenuta += x;
            if (assoluto(x) > maggiore) {
                maggiore = assoluto(x);
                a.aliquota_ritenuta = importo(r.aliquota);
            }
        } else {
            contributi += x;
        }
    }
    a.ritenuta = assoluto(a.ritenuta);
    a.contributi = assoluto(contributi);
}

bool da_la_ritenuta(Decimale base, const Analisi& a) {
    const Decimale scarto = base * (a.aliquota_ritenuta * kCentesimo) - a.ritenuta;
    return scarto.in_misura() && assoluto(scarto) <= kCentesimo;
}

// The first of the bases that give the tax: what is marked, the taxable amount, that without unmarked funds.
std::optional<Decimale> base(const FatturaLetta& f, Decimale marcato, bool voltata, const Analisi& a) {
    Decimale imponibile, casse;
    for (const SommaAliquota& s : a.iva) imponibile += s.imponibile;
    if (a.iva.empty())
        for (const SommaNatura& s : a.esenti) imponibile += s.importo;
    for (const CassaLetta& c : f.casse)
        if (!c.ritenuta) casse += voltata ? -importo(c.importo) : importo(c.importo);
    for (const Decimale b : {marcato, imponibile, imponibile - casse.al_centesimo()})
        if (da_la_ritenuta(b, a)) return b;
    if (!c_e(a.aliquota_ritenuta)) return {};
    return per_su(a.ritenuta, kCento, a.aliquota_ritenuta);
}

}  // namespace

void ritenute(const FatturaLetta& f, bool voltata, Analisi& a) {
    trattenute(f, a);
    const bool righe = marcati(f, voltata, a);
    if (c_e(a.contributi)) a.avvisi.push_back("contributi-trattenuti");
    if (!c_e(a.ritenuta)) return;
    Decimale marcato;
    for (const BaseAliquota& m : a.marcati) marcato += m.importo;
    a.base_ritenuta = base(f, marcato, voltata, a);
    if (!righe)
        a.avvisi.push_back("ritenuta-solo-in-testata");
    else if (!da_la_ritenuta(marcato, a))
        a.avvisi.push_back("righe-e-ritenuta-non-concordano");
    if (f.fornitore.regime == "RF19" || f.fornitore.regime == "RF02")
        a.avvisi.push_back("forfettario-con-ritenuta");
}

}  // namespace ambra::passi
