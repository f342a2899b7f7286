#include "core/decimale.h"

#include <array>
#include <limits>

#include "core/testo.h"

namespace ambra {

namespace {

using Unita = std::int64_t;
constexpr std::size_t kInteri = 9, kDecimali = 8;  // digits before the point and after it
constexpr Unita kIntero = 100'000'000, kCentesimo = 1'000'000;
constexpr Unita kMassimo = 1'000'000'000 * kIntero - 1;
constexpr auto kPotenze = [] {
    std::array<Unita, kInteri + kDecimali + 1> p{1};
    for (std::size_t i = 1; i < p.size(); ++i) p[i] = 10 * p[i - 1];
    return p;
}();
constexpr Unita kFuori = std::numeric_limits<Unita>::min();

constexpr Unita entro(Unita u) {
    return u >= -kMassimo && u <= kMassimo ? u : kFuori;
}

// a × b / c of what is not negative, cut, digit by digit of b: nothing passes 64 bits, as all three are in
// range. A quotient out of range is kFuori.
Unita per_su_positivi(Unita a, Unita b, Unita c) {
    if (b == 0 || a <= std::numeric_limits<Unita>::max() / b) {  // as a rule
        const Unita intero = a * b / c;
        return intero > kMassimo ? kFuori : intero;
    }
    Unita quoziente = 0, resto = 0;
    for (Unita posto = 100'000'000'000'000'000; posto > 0; posto /= 10) {
        const Unita parte = resto * 10 + a * (b / posto % 10);
        quoziente = quoziente * 10 + parte / c;
        if (quoziente > kMassimo) return kFuori;
        resto = parte % c;
    }
    return quoziente;
}

Unita arrotonda(Unita u, Unita passo) {
    const Unita mezzo = passo / 2;
    return (u < 0 ? u - mezzo : u + mezzo) / passo * passo;
}

bool bianco(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

std::string_view senza_bianchi(std::string_view s) {
    while (!s.empty() && bianco(s.front())) s.remove_prefix(1);
    while (!s.empty() && bianco(s.back())) s.remove_suffix(1);
    return s;
}

// The digits as hundred-millionths; kFuori where they are none, or too many.
Unita leggi_cifre(std::string_view s) {
    Unita u = 0;
    std::size_t i = 0, decimali = 0;
    for (; i < s.size() && cifra(s[i]); ++i)
        if ((u = u * 10 + (s[i] - '0')) > kMassimo) return kFuori;
    const bool interi = i > 0;
    if (i < s.size() && s[i] == '.') ++i;
    for (; i < s.size() && cifra(s[i]) && decimali < kDecimali; ++i, ++decimali)
        if ((u = u * 10 + (s[i] - '0')) > kMassimo) return kFuori;
    while (i < s.size() && s[i] == '0') ++i;  // beyond the last that counts
    if (i < s.size() || (!interi && decimali == 0)) return kFuori;
    return u < kPotenze[kInteri + decimali] ? u * kPotenze[kDecimali - decimali] : kFuori;
}

std::string testo_di(Unita u, int decimali) {
    const bool meno = u < 0;
    if (meno) u = -u;
    std::string dopo = std::to_string(u % kIntero);
    dopo.insert(0, kDecimali - dopo.size(), '0');
    dopo.resize(static_cast<std::size_t>(decimali));
    return (meno ? "-" : "") + std::to_string(u / kIntero) + (decimali > 0 ? "." + dopo : "");
}

}  // namespace

Decimale Decimale::di_centesimi(std::int64_t centesimi) {
    const bool entra = centesimi <= kMassimo / kCentesimo && centesimi >= -kMassimo / kCentesimo;
    return Decimale(entra ? centesimi * kCentesimo : kFuori);
}

std::optional<Decimale> Decimale::leggi(std::string_view testo) {
    std::string_view s = senza_bianchi(testo);
    const bool meno = s.starts_with('-');
    if (meno || s.starts_with('+')) s.remove_prefix(1);
    const Unita u = leggi_cifre(s);
    if (u == kFuori) return {};
    return Decimale(meno ? -u : u);
}

bool Decimale::in_misura() const {
    return unita_ != kFuori;
}

Decimale Decimale::al_centesimo() const {
    return in_misura() ? Decimale(entro(arrotonda(unita_, kCentesimo))) : *this;
}

std::int64_t Decimale::centesimi() const {
    return in_misura() ? arrotonda(unita_, kCentesimo) / kCentesimo : 0;
}

std::string Decimale::testo() const {
    return in_misura() ? testo_di(arrotonda(unita_, kCentesimo), 2) : "";
}

std::string Decimale::testo_italiano() const {
    std::string s = testo();
    const std::size_t virgola = s.find('.');
    if (virgola == s.npos) return s;
    s[virgola] = ',';
    const std::size_t prima = s.front() == '-' ? 1 : 0;
    for (std::size_t i = virgola; i > prima + 3;) s.insert(i -= 3, 1, '.');
    return s;
}

std::string Decimale::testo_breve() const {
    if (!in_misura()) return "";
    int decimali = kDecimali;
    for (Unita u = unita_; decimali > 0 && u % 10 == 0; u /= 10) --decimali;
    return testo_di(unita_, decimali);
}

Decimale Decimale::operator-() const {
    return in_misura() ? Decimale(-unita_) : *this;
}

Decimale operator+(Decimale a, Decimale b) {
    if (!a.in_misura() || !b.in_misura()) return Decimale(kFuori);
    return Decimale(entro(a.unita_ + b.unita_));
}

Decimale tagliato(Decimale a, Decimale b, Decimale c) {
    if (!a.in_misura() || !b.in_misura() || !c.in_misura() || c.unita_ == 0) return Decimale(kFuori);
    const bool meno = (a.unita_ < 0) != (b.unita_ < 0) ? c.unita_ > 0 : c.unita_ < 0;
    const Unita u = per_su_positivi(assoluto(a).unita_, assoluto(b).unita_, assoluto(c).unita_);
    return Decimale(meno && u != kFuori ? -u : u);
}

Decimale operator*(Decimale a, Decimale b) {
    return tagliato(a, b, Decimale(kIntero));
}

// What is cut after the eighth decimal never reaches half a cent that was not there before.
Decimale per_su(Decimale a, Decimale b, Decimale c) {
    return tagliato(a, b, c).al_centesimo();
}

Decimale percentuale(Decimale x, Decimale percento) {
    return per_su(x, percento, Decimale::di_centesimi(10'000));
}

}  // namespace ambra
