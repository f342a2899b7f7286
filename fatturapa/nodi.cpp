#include "fatturapa/nodi.h"

#include <algorithm>

namespace ambra::fatturapa {

namespace {

constexpr std::size_t kMostrato = 40;  // bytes of a wrong amount that a refusal quotes

bool bianco(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool semplice(char c) {
    return c >= ' ' && c <= '~';
}

std::string pulito(std::string_view grezzo) {
    while (!grezzo.empty() && bianco(grezzo.front())) grezzo.remove_prefix(1);
    while (!grezzo.empty() && bianco(grezzo.back())) grezzo.remove_suffix(1);
    std::string s(grezzo);
    if (std::ranges::all_of(s, semplice)) return s;
    // A character reference can write what no text may hold.
    senza_controlli(s);
    if (!utf8_valido(s))
        for (char& c : s)
            if (static_cast<unsigned char>(c) >= 0x80) c = '?';
    return s;
}

}  // namespace

std::string testo_intero(pugi::xml_node n) {
    std::string s = n.value();
    for (const pugi::xml_node p : n.children())
        if (p.type() == pugi::node_pcdata || p.type() == pugi::node_cdata) s += p.value();
    return s;
}

std::string testo_di(pugi::xml_node n) {
    return n.first_child() ? pulito(testo_intero(n)) : pulito(n.value());
}

void controlla_importo(std::string_view nome, std::string_view testo, Difetto& difetto) {
    if (testo.empty() || !difetto.empty() || Decimale::leggi(testo)) return;
    const std::string_view mostrato = testo.substr(0, kMostrato);
    difetto = "importo non leggibile (" + std::string(nome) + ": ";
    difetto += (utf8_valido(mostrato) ? std::string(mostrato) : "?") + ")";
}

}  // namespace ambra::fatturapa
