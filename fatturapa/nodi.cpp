#include "fatturapa/nodi.h"

namespace ambra::fatturapa {

namespace {

constexpr std::string_view kBianchi = " \t\r\n";
constexpr std::size_t kMostrato = 40;  // bytes of a wrong amount that a refusal quotes

std::string rifilato(std::string_view s) {
    const std::size_t da = s.find_first_not_of(kBianchi);
    return da == s.npos ? "" : std::string(s.substr(da, s.find_last_not_of(kBianchi) - da + 1));
}

}  // namespace

std::string testo_di(pugi::xml_node n) {
    const pugi::xml_node primo = n.first_child();
    std::string s;
    if (!primo.next_sibling()) {
        s = rifilato(primo.value());
    } else {
        for (const pugi::xml_node p : n.children())
            if (p.type() == pugi::node_pcdata || p.type() == pugi::node_cdata) s += p.value();
        s = rifilato(s);
    }
    // A character reference can write what no text may hold.
    senza_controlli(s);
    if (!utf8_valido(s))
        for (char& c : s)
            if (static_cast<unsigned char>(c) >= 0x80) c = '?';
    return s;
}

void controlla_importo(std::string_view nome, const std::string& testo, Difetto& difetto) {
    if (testo.empty() || !difetto.empty() || Decimale::leggi(testo)) return;
    const std::string_view mostrato = std::string_view(testo).substr(0, kMostrato);
    difetto = "importo non leggibile (" + std::string(nome) + ": ";
    difetto += (utf8_valido(mostrato) ? std::string(mostrato) : "?") + ")";
}

}  // namespace ambra::fatturapa
