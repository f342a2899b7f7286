#include "ledger/festivi.h"

#include <algorithm>
#include <iterator>

namespace ambra {

namespace {

constexpr int kDomenica = 0, kSabato = 6;
constexpr int kAnnoSanFrancesco = 2026;
constexpr struct {
    int giorno, mese;
} kFisse[] = {{1, 1}, {6, 1}, {25, 4}, {1, 5}, {2, 6}, {15, 8}, {1, 11}, {8, 12}, {25, 12}, {26, 12}};

Data domani(Data d) {
    if (d.giorno < giorni_del_mese(d.mese, d.anno)) return {d.giorno + 1, d.mese, d.anno};
    return d.mese < 12 ? Data{1, d.mese + 1, d.anno} : Data{1, 1, d.anno + 1};
}

// 32 March is 1 April.
Data di_marzo(int giorno, int anno) {
    return giorno <= 31 ? Data{giorno, 3, anno} : Data{giorno - 31, 4, anno};
}

}  // namespace

// The full moon by the cycle of 19 years, corrected by the centuries, then the Sunday after it.
Data pasqua(int anno) {
    const int aureo = anno % 19, secolo = anno / 100;
    const int correzione = secolo - secolo / 4 - (8 * secolo + 13) / 25 + 15;
    const int epatta = (19 * aureo + correzione) % 30;
    const int luna = epatta - (epatta > 28 || (epatta == 28 && aureo > 10) ? 1 : 0);
    const Data piena = di_marzo(21 + luna, anno);
    return di_marzo(21 + luna + 7 - giorno_settimana(piena), anno);
}

bool festivo(const Data& d) {
    if (d.giorno == 4 && d.mese == 10) return d.anno >= kAnnoSanFrancesco;
    if ((d.mese == 3 || d.mese == 4) && d == domani(pasqua(d.anno))) return true;
    return std::any_of(std::begin(kFisse), std::end(kFisse),
                       [&](const auto& f) { return f.giorno == d.giorno && f.mese == d.mese; });
}

Data giorno_lavorativo(Data d) {
    while (giorno_settimana(d) == kSabato || giorno_settimana(d) == kDomenica || festivo(d)) d = domani(d);
    return d;
}

}  // namespace ambra
