#include "fatturapa/nodi.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>

namespace ambra::fatturapa {

namespace {

constexpr std::size_t kMostrato = 40;  // bytes of a wrong amount that a refusal quotes

bool bianco(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool semplice(char c) {
    return c >= ' ' && c <= '~';
}

// The same of as many characters as T has bytes.
template <class T>
bool semplici(const char* da) {
    constexpr T kUni = std::numeric_limits<T>::max() / 0xFF, kSpazi = kUni * 0x20, kAlti = kUni * 0x80;
    T t = 0;
    std::memcpy(&t, da, sizeof t);
    return ((t | (t - kSpazi)) & kAlti) == 0;
}

// Nothing but ASCII without control characters; the last few are looked at twice rather than one by one.
bool semplice(std::string_view s) {
    const char *da = s.data(), *fine = da + s.size();
    if (s.size() < 4) return std::all_of(da, fine, [](char c) { return semplice(c); });
    if (s.size() < 8) return semplici<std::uint32_t>(da) && semplici<std::uint32_t>(fine - 4);
    for (; fine - da > 8; da += 8)
        if (!semplici<std::uint64_t>(da)) return false;
    return semplici<std::uint64_t>(fine - 8);
}

std::string_view senza_bianchi(std::string_view s) {
    while (!s.empty() && bianco(s.front())) s.remove_prefix(1);
    while (!s.empty() && bianco(s.back())) s.remove_suffix(1);
    return s;
}

void metti(std::string_view grezzo, std::string& dove) {
    const std::string_view s = senza_bianchi(grezzo);
    dove = s;
    if (semplice(s)) return;
    // A character reference can write what no text may hold.
    senza_controlli(dove);
    if (!utf8_valido(dove))
        for (char& c : dove)
            if (static_cast<unsigned char>(c) >= 0x80) c = '?';
}

}  // namespace

std::string testo_intero(pugi::xml_node n) {
    std::string s = n.value();
    for (const pugi::xml_node p : n.children())
        if (p.type() == pugi::node_pcdata || p.type() == pugi::node_cdata) s += p.value();
    return s;
}

void metti_testo(pugi::xml_node n, std::string& dove) {
    if (n.first_child())
        metti(testo_intero(n), dove);
    else
        metti(n.value(), dove);
}

std::string testo_di(pugi::xml_node n) {
    std::string s;
    metti_testo(n, s);
    return s;
}

void controlla_importo(std::string_view nome, std::string_view testo, Difetto& difetto) {
    if (testo.empty() || !difetto.empty() || Decimale::leggi(testo)) return;
    const std::string_view mostrato = testo.substr(0, kMostrato);
    difetto = "importo non leggibile (" + std::string(nome) + ": ";
    difetto += (utf8_valido(mostrato) ? std::string(mostrato) : "?") + ")";
}

}  // namespace ambra::fatturapa
