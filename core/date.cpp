#include "core/date.h"

#include <chrono>

#include "core/testo.h"

namespace ambra {

namespace {

std::chrono::sys_days giorno_di(const Data& d) {
    return std::chrono::year{d.anno} / d.mese / d.giorno;
}

bool e_separatore(char c) {
    return c == '/' || c == '-' || c == '.';
}

// Reads 1 to `massimo` digits at `i`; -1 when there is none.
int leggi_cifre(std::string_view s, std::size_t& i, int massimo) {
    int v = -1;
    for (int n = 0; n < massimo && i < s.size() && cifra(s[i]); ++n, ++i)
        v = (v < 0 ? 0 : v) * 10 + (s[i] - '0');
    return v;
}

}  // namespace

std::tm adesso() {
    const std::time_t t = std::time(nullptr);
    return *std::localtime(&t);  // NOLINT: asked for by one thread alone
}

int giorni_del_mese(int mese, int anno) {
    return static_cast<int>(unsigned{(std::chrono::year{anno} / mese / std::chrono::last).day()});
}

std::optional<Data> data_valida(std::string_view s) {
    s = rifila(s);
    std::size_t i = 0;
    Data d;
    d.giorno = leggi_cifre(s, i, 2);
    if (i >= s.size() || !e_separatore(s[i++])) return {};
    d.mese = leggi_cifre(s, i, 2);
    if (i >= s.size() || !e_separatore(s[i++])) return {};
    if (s.size() - i != 4) return {};
    d.anno = leggi_cifre(s, i, 4);
    if (i != s.size() || d.mese < 1 || d.mese > 12 || d.giorno < 1 || d.anno < 100) return {};
    if (d.giorno > giorni_del_mese(d.mese, d.anno)) return {};
    return d;
}

std::optional<Data> data_iso(std::string_view s) {
    if (s.size() != 10 || s[4] != '-' || s[7] != '-' || s[8] == ' ') return {};
    return data_valida(unisci(s.substr(8), "-", s.substr(5, 2), "-", s.substr(0, 4)));
}

std::string testo_iso(const Data& d) {
    return unisci(con_zeri(d.anno, 4), "-", con_zeri(d.mese, 2), "-", con_zeri(d.giorno, 2));
}

std::string testo_data(const Data& d) {
    return unisci(con_zeri(d.giorno, 2), "/", con_zeri(d.mese, 2), "/", con_zeri(d.anno, 4));
}

// The dates of records are whole, and come by the ten thousand: those are not cut out piece by piece.

std::string mostra_aaaammgg(std::string_view s) {
    if (s.size() == 8) return {s[6], s[7], '/', s[4], s[5], '/', s[0], s[1], s[2], s[3]};
    return unisci(medio(s, 7, 2), "/", medio(s, 5, 2), "/", sinistra(s, 4));
}

std::string mostra_ggmmaaaa(std::string_view s) {
    return unisci(sinistra(s, 2), "/", medio(s, 3, 2), "/", medio(s, 5, 4));
}

std::string in_aaaammgg(std::string_view m) {
    return unisci(destra(m, 4), medio(m, 4, 2), sinistra(m, 2));
}

std::string in_ggmmaaaa(std::string_view m) {
    return unisci(sinistra(m, 2), medio(m, 4, 2), medio(m, 7, 4));
}

std::string da_ggmmaaaa_a_aaaammgg(std::string_view s) {
    if (s.size() == 8) return {s[4], s[5], s[6], s[7], s[2], s[3], s[0], s[1]};
    return unisci(medio(s, 5, 4), medio(s, 3, 2), sinistra(s, 2));
}

int giorno_settimana(const Data& d) {
    return static_cast<int>(std::chrono::weekday{giorno_di(d)}.c_encoding());
}

Data piu_giorni(Data d, int giorni) {
    const std::chrono::year_month_day dopo{giorno_di(d) + std::chrono::days{giorni}};
    return {static_cast<int>(unsigned{dopo.day()}), static_cast<int>(unsigned{dopo.month()}),
            int{dopo.year()}};
}

}  // namespace ambra
