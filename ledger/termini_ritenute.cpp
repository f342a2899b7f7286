#include "ledger/termini_ritenute.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <limits>
#include <map>

#include "ledger/festivi.h"

namespace ambra {

namespace {

// What was withheld up to the end of `mese` waits no longer than `giorno` of `mese_termine` (13: January).
struct Chiusura {
    int mese, giorno, mese_termine;
};
constexpr int kGennaioDopo = 13;
constexpr Chiusura kDicembre{12, 16, kGennaioDopo};

struct Regola {
    Famiglia famiglia;
    int dal_anno;                      // of the payment
    Centesimi soglia;                  // from this amount on: the 16th of the month after
    std::array<Chiusura, 3> chiusure;  // none: each month by itself
};
constexpr Regola kRegole[] = {
    {Famiglia::lavori, 2024, 500'00, {{{5, 16, 6}, {11, 16, 12}, kDicembre}}},
    {Famiglia::lavori, 2017, 500'00, {{{5, 30, 6}, {11, 20, 12}, kDicembre}}},
    {Famiglia::lavori, 0, 0, {}},
    {Famiglia::compensi, 2024, 100'01, {{{11, 16, 12}, kDicembre}}},
    {Famiglia::compensi, 0, 0, {}},
};

const Regola& regola(Famiglia f, int anno) {
    for (const Regola& r : kRegole)
        if (r.famiglia == f && anno >= r.dal_anno) return r;
    return *std::rbegin(kRegole);
}

// August stands still until the 20th.
Data utile(Data d) {
    if (d.mese == 8 && d.giorno < 20) d.giorno = 20;
    return giorno_lavorativo(d);
}

Data al_giorno(int giorno, int mese) {
    return utile({giorno, mese % 12 + 1, mese / 12});
}

Data sedici_del_mese_dopo(int mese) {
    return al_giorno(16, mese + 1);
}

// The stretch of months that wait for the same last date.
struct Finestra {
    int dal_mese, al_mese;
    Data ultima;
};

Finestra finestra(const Regola& r, int mese) {
    const int gennaio = mese / 12 * 12;
    int dal = gennaio;
    for (const Chiusura& c : r.chiusure) {
        const int al = gennaio + c.mese - 1;
        if (mese <= al) return {dal, al, al_giorno(c.giorno, gennaio + c.mese_termine - 1)};
        dal = al + 1;
    }
    return {mese, mese, sedici_del_mese_dopo(mese)};
}

using Mesi = std::map<int, std::vector<std::size_t>>;

Centesimi dovuto_a_fine(int mese, const Termine& t, std::span<const Trattenuta> tutte) {
    Centesimi somma = 0;
    for (const std::size_t i : t.trattenute)
        if (!tutte[i].versata || numero_mese(*tutte[i].versata) > mese) somma += tutte[i].ritenuta;
    return somma;
}

// The months of one family, in order, gathered into terms.
void raccogli(Famiglia f, const Mesi& mesi, std::span<const Trattenuta> tutte, std::vector<Termine>& esito) {
    Termine t;
    bool aperto = false;
    const auto chiudi = [&] {
        if (aperto) esito.push_back(std::move(t));
        aperto = false;
    };
    int dopo = std::numeric_limits<int>::min();  // the month after the last one due by the threshold
    for (const auto& [mese, quali] : mesi) {
        const Regola& r = regola(f, mese / 12);
        const Finestra fin = finestra(r, mese);
        if (aperto && mese > t.al_mese) chiudi();
        if (!aperto) t = {f, fin.ultima, std::max(fin.dal_mese, dopo), fin.al_mese, 0, {}};
        aperto = true;
        for (const std::size_t i : quali) {
            t.importo += tutte[i].ritenuta;
            t.trattenute.push_back(i);
        }
        if (dovuto_a_fine(mese, t, tutte) < r.soglia) continue;
        t.scadenza = sedici_del_mese_dopo(mese);
        t.al_mese = mese;
        dopo = mese + 1;
        chiudi();
    }
    chiudi();
}

int chiave(const Data& d) {
    return (d.anno * 100 + d.mese) * 100 + d.giorno;
}

}  // namespace

std::vector<Termine> termini(std::span<const Trattenuta> trattenute) {
    Mesi lavori, compensi;
    for (std::size_t i = 0; i < trattenute.size(); ++i) {
        const Trattenuta& t = trattenute[i];
        (t.famiglia == Famiglia::lavori ? lavori : compensi)[numero_mese(t.pagata)].push_back(i);
    }
    std::vector<Termine> esito;
    raccogli(Famiglia::lavori, lavori, trattenute, esito);
    raccogli(Famiglia::compensi, compensi, trattenute, esito);
    std::ranges::stable_sort(esito, {}, [](const Termine& t) { return chiave(t.scadenza); });
    return esito;
}

StatoTermine stato(const Termine& t, const Data& oggi) {
    if (chiave(t.scadenza) < chiave(oggi)) return StatoTermine::scaduto;
    // The first month in which more could still be withheld: would its threshold come before this term?
    const int mese = std::max(numero_mese(oggi), t.dal_mese);
    const bool puo_anticipare = t.famiglia == Famiglia::lavori && mese <= t.al_mese &&
                                chiave(sedici_del_mese_dopo(mese)) < chiave(t.scadenza);
    return puo_anticipare ? StatoTermine::in_formazione : StatoTermine::da_versare;
}

Centesimi soglia(Famiglia f, int anno) {
    return regola(f, anno).soglia;
}

}  // namespace ambra
