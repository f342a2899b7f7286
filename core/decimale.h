// Exact decimals: what stands in a file as decimal text never goes through a Double.
//
// Held in hundred-millionths (eight decimals, the most that an electronic invoice writes), below a thousand
// million in size. What leaves that range is "fuori misura": it stays so through every operation, so that a
// whole calculation can be asked once, at its end.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ambra {

class Decimale {
  public:
    constexpr Decimale() = default;
    /// A whole number of cents.
    static Decimale di_centesimi(std::int64_t centesimi);
    /// Decimal text: blanks around, a sign, digits with at most one point (at most eight decimals but for
    /// further zeros). Nothing for an empty text, an exponent, a comma, any other character, or what is out
    /// of range.
    static std::optional<Decimale> leggi(std::string_view testo);

    /// False once a calculation has left the range; then all that follows from it is false too.
    bool in_misura() const;
    /// The same, to the cent, half away from zero.
    Decimale al_centesimo() const;
    /// Whole cents, rounded as `al_centesimo` does; 0 when out of range.
    std::int64_t centesimi() const;
    /// Two decimals and a point, rounded to the cent: "-12.50"; empty when out of range. Zero has no sign.
    std::string testo() const;
    /// The same as people read it: "-1.234,50".
    std::string testo_italiano() const;
    /// Without needless zeros: "22", "5.5"; empty when out of range.
    std::string testo_breve() const;

    Decimale operator-() const;
    friend Decimale operator+(Decimale a, Decimale b);
    friend Decimale operator-(Decimale a, Decimale b) { return a + -b; }
    Decimale& operator+=(Decimale b) { return *this = *this + b; }
    Decimale& operator-=(Decimale b) { return *this = *this - b; }
    friend constexpr auto operator<=>(Decimale, Decimale) = default;

    /// The product; decimals after the eighth are cut.
    friend Decimale operator*(Decimale a, Decimale b);
    /// `a` × `b` / `c`, to the cent, half away from zero; out of range when `c` is zero.
    friend Decimale per_su(Decimale a, Decimale b, Decimale c);
    /// `percento` per cent of `x`, to the cent, half away from zero.
    friend Decimale percentuale(Decimale x, Decimale percento);
    friend Decimale assoluto(Decimale x) { return x < Decimale() ? -x : x; }

  private:
    friend Decimale tagliato(Decimale a, Decimale b, Decimale c);  // a × b / c, eight decimals
    explicit constexpr Decimale(std::int64_t unita) : unita_(unita) {}
    std::int64_t unita_ = 0;  // hundred-millionths, or the mark of what is out of range
};

Decimale per_su(Decimale a, Decimale b, Decimale c);
Decimale percentuale(Decimale x, Decimale percento);

}  // namespace ambra
