#include "core/numeri.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>

#include "core/testo.h"

namespace ambra {

namespace {

constexpr std::size_t kCifreEsatte = 15;  // of a whole number that a Double holds for sure

// The decimal text of |x|: at most 15 significant digits d1 d2 ..., the point standing `esp` digits in.
struct Decimale {
    char cifre[16];
    int quante = 0;
    int esp = 0;
};

Decimale decimale_di(double x) {
    Decimale d;
    char buf[40];
    const auto r = std::to_chars(buf, buf + sizeof buf, std::fabs(x), std::chars_format::scientific, 14);
    // d.dddddddddddddde±XX
    const char* e = r.ptr;
    while (*--e != 'e') {
    }
    for (const char* p = buf; p < e; ++p)
        if (*p != '.') d.cifre[d.quante++] = *p;
    int esponente = 0;
    std::from_chars(e[1] == '+' ? e + 2 : e + 1, r.ptr, esponente);
    d.esp = esponente + 1;
    while (d.quante > 1 && d.cifre[d.quante - 1] == '0') --d.quante;
    return d;
}

char cifra(const Decimale& d, int posto) {
    return posto >= 0 && posto < d.quante ? d.cifre[posto] : '0';
}

std::string non_finito(double x) {
    return std::isnan(x) ? "NaN" : x < 0 ? "-Inf" : "Inf";
}

// Adds one unit to the last digit of a run of decimal digits.
void incrementa(std::string& cifre) {
    std::size_t i = cifre.size();
    while (i > 0) {
        if (cifre[i - 1] != '9') {
            ++cifre[i - 1];
            return;
        }
        cifre[--i] = '0';
    }
    cifre.insert(cifre.begin(), '1');
}

// Integer and decimal digits of |x| with exactly `decimali` decimals, half away from zero, no separators.
std::string cifre_arrotondate(double x, int decimali) {
    const Decimale d = decimale_di(x);
    std::string r;
    for (int i = 0; i < d.esp; ++i) r += cifra(d, i);
    if (d.esp <= 0) r = "0";
    for (int i = 0; i < decimali; ++i) r += cifra(d, d.esp + i);
    if (cifra(d, d.esp + decimali) >= '5') incrementa(r);
    return r;
}

bool lire_per_numero(const Cambio& c) {
    return leggi_numero(c[1]) == 0;
}
bool lire_per_testo(const Cambio& c) {
    return c[1] == "0";
}

// The common amount, below ten million: cents as an integer, when the 15-digit text agrees with it.
bool formatta_svelto(double x, std::string& r) {
    const double a = std::fabs(x);
    if (!(a < 1e7)) return false;
    const double scalato = a * 100;
    const double vicino = std::nearbyint(scalato);
    if (std::fabs(scalato - vicino) > 1e-6) return false;
    auto cent = static_cast<std::uint32_t>(vicino);
    char buf[16];
    char* p = buf + sizeof buf;
    *--p = static_cast<char>('0' + cent % 10);
    cent /= 10;
    *--p = static_cast<char>('0' + cent % 10);
    cent /= 10;
    *--p = ',';
    for (int i = 0; i == 0 || cent > 0; ++i) {
        if (i > 0 && i % 3 == 0) *--p = '.';
        *--p = static_cast<char>('0' + cent % 10);
        cent /= 10;
    }
    if (x < 0) *--p = '-';
    r.assign(p, static_cast<std::size_t>(buf + sizeof buf - p));
    return true;
}

}  // namespace

bool inizia_numero(std::string_view s, double& valore, std::size_t& fine) {
    std::size_t i = 0;
    while (i < s.size() && (s[i] == ' ' || s[i] == '\t')) ++i;
    bool meno = false;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) meno = s[i++] == '-';
    const std::size_t inizio = i;
    bool punto = false, cifre = false;
    for (; i < s.size(); ++i) {
        if (cifra(s[i])) {
            cifre = true;
        } else if (s[i] == '.' && !punto) {
            punto = true;
        } else {
            break;
        }
    }
    valore = 0;
    fine = 0;
    if (!cifre) return false;
    fine = i;
    if (!punto && i - inizio <= kCifreEsatte) {
        for (const char c : s.substr(inizio, i - inizio)) valore = valore * 10 + (c - '0');
    } else {
        // A run of digits that no Double can hold reads as 0.
        const auto r = std::from_chars(s.data() + inizio, s.data() + i, valore, std::chars_format::fixed);
        if (r.ec != std::errc{}) valore = 0;
    }
    if (meno) valore = -valore;
    return true;
}

double leggi_numero(std::string_view s) {
    double v;
    std::size_t fine;
    inizia_numero(s, v, fine);
    return v;
}

int leggi_intero(std::string_view s, Errore& err, int prima) {
    const double v = std::nearbyint(leggi_numero(s));
    if (v >= -32768 && v <= 32767) return static_cast<int>(v);
    err.numero = errore::overflow;
    return prima;
}

std::string testo_numero(double x) {
    if (x == 0) return "0";
    if (!std::isfinite(x)) return non_finito(x);
    const Decimale d = decimale_di(x);
    std::string r = x < 0 ? "-" : "";
    if (d.esp <= 0) r += '0';
    for (int i = 0; i < d.esp; ++i) r += cifra(d, i);
    if (d.quante > d.esp) {
        r += '.';
        for (int i = d.esp; i < d.quante; ++i) r += cifra(d, i);
    }
    return r;
}

std::string testo_con_segno(double x) {
    return x < 0 ? testo_numero(x) : ' ' + testo_numero(x);
}

std::string formatta(double x, Formato f) {
    if (!std::isfinite(x)) return non_finito(x);
    std::string svelto;
    if (f == Formato::due_decimali && formatta_svelto(x, svelto)) return svelto;
    const int decimali = f == Formato::due_decimali ? 2 : f == Formato::tre_decimali ? 3 : 0;
    const std::string cifre = cifre_arrotondate(x, decimali);
    if (f == Formato::intero_o_nulla && cifre.find_first_not_of('0') == std::string::npos) return "";
    const std::size_t interi = cifre.size() - static_cast<std::size_t>(decimali);
    std::string r;
    if (x < 0) r += '-';
    for (std::size_t i = 0; i < interi; ++i) {
        r += cifre[i];
        const std::size_t restano = interi - 1 - i;
        if (restano > 0 && restano % 3 == 0) r += '.';
    }
    if (decimali > 0) r += ',' + cifre.substr(interi);
    return r;
}

std::string fmtimporto(const Cambio& cambio, double x) {
    if (x == 0) return "";
    return formatta(x, lire_per_numero(cambio) ? Formato::intero : Formato::due_decimali);
}

double valimporto(std::string& s) {
    s = std::string(rifila(s));
    const std::size_t fine = s.size();
    for (std::size_t i = 0; i < fine; ++i) {
        if (i < s.size() && s[i] == '.') s.erase(i, 1);
        if (i < s.size() && s[i] == ',') s[i] = '.';
    }
    return leggi_numero(s);
}

double valimporto_di(std::string_view s) {
    std::string copia(s);
    return valimporto(copia);
}

double arrotonda(const Cambio& cambio, double x) {
    return lire_per_testo(cambio) ? std::floor(x + 0.51) : std::floor(x * 100 + 0.51) / 100;
}

double applicaperc(const Cambio& cambio, double p, double x) {
    return lire_per_testo(cambio) ? std::floor(x * p / 100 + 0.99) : std::floor(x * p + 0.51) / 100;
}

}  // namespace ambra
