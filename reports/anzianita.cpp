#include "reports/anzianita.h"

#include <chrono>

namespace ambra {

namespace {

constexpr std::size_t kSenzaData = 5;
constexpr int kUltimoGiorno[] = {0, 30, 60, 90};  // of the first four ages

std::chrono::sys_days giorno(const Data& d) {
    return std::chrono::year(d.anno) / std::chrono::month(static_cast<unsigned>(d.mese)) /
           std::chrono::day(static_cast<unsigned>(d.giorno));
}

std::size_t eta(const std::optional<Data>& scadenza, const Data& al) {
    if (!scadenza) return kSenzaData;
    const auto giorni = (giorno(al) - giorno(*scadenza)).count();
    std::size_t k = 0;
    while (k < std::size(kUltimoGiorno) && giorni > kUltimoGiorno[k]) ++k;
    return k;
}

}  // namespace

Anzianita anzianita(const RecFattura& f, const Data& al) {
    Anzianita esito{};
    if (f.cancellata == 1 || centesimi(somma(f.sca)) == centesimi(somma(f.ver))) return esito;
    for (std::size_t k = 0; k < std::size(f.sca); ++k)
        if (const Centesimi aperto = centesimi(f.sca[k] - f.ver[k]); aperto != 0)
            esito[eta(data_memorizzata(f.dsca[k]), al)] += aperto * segno(f);
    return esito;
}

}  // namespace ambra
