// Elements of the parsed file by local name, into the texts of plain structs.
#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <pugixml.hpp>
#include <string>
#include <string_view>

#include "core/decimale.h"
#include "fatturapa/testo_xml.h"

namespace ambra::fatturapa {

/// How files are parsed. The text that begins an element stands in the element itself, not in a node of its
/// own.
constexpr unsigned kLettura =
    pugi::parse_cdata | pugi::parse_escapes | pugi::parse_eol | pugi::parse_embed_pcdata;

/// The name of an element after its last ':'; empty for a text.
inline std::string_view nome_di(pugi::xml_node n) {
    const char* da = n.name();
    const char* fine = da;
    for (; *fine; ++fine)
        if (*fine == ':') da = fine + 1;
    return {da, fine};
}

/// All the text of an element as it stands.
std::string testo_intero(pugi::xml_node n);
/// The same in UTF-8, without control characters and blanks at the ends; `metti_testo` puts it where it goes.
std::string testo_di(pugi::xml_node n);
void metti_testo(pugi::xml_node n, std::string& dove);

/// What a field holds; amounts are checked.
enum class Tipo { testo, importo };

/// The element that fills a member.
template <class T>
struct Campo {
    std::string_view nome;
    std::string T::*dove;
    Tipo tipo = Tipo::testo;
    bool operator==(std::string_view n) const { return nome == n; }
};

/// Why a document is refused: "importo non leggibile (Imposta: 1e999)"; empty while it is not.
using Difetto = std::string;

void controlla_importo(std::string_view nome, std::string_view testo, Difetto& difetto);

/// Whether the element bears exactly this name, prefix and all.
inline bool si_chiama(pugi::xml_node n, std::string_view nome) {
    const char* c = n.name();
    for (const char atteso : nome)
        if (*c++ != atteso) return false;
    return *c == '\0';
}

/// The place in the table of the element's name, N if it is not there. `da` is tried first, as elements come
/// in the table's order.
template <class T, std::size_t N>
std::size_t posto_del_campo(pugi::xml_node n, const Campo<T> (&tabella)[N], std::size_t da) {
    if (da < N && si_chiama(n, tabella[da].nome)) return da;
    const auto* c = std::find(std::begin(tabella), std::end(tabella), nome_di(n));
    return static_cast<std::size_t>(c - std::begin(tabella));
}

/// Fills the members from the children, the first of a name; `altro` gets those that the table does not know.
template <class T, std::size_t N, class F>
void riempi_campi(pugi::xml_node padre, T& t, const Campo<T> (&tabella)[N], Difetto& difetto,
                  const F& altro) {
    std::size_t da = 0;
    for (pugi::xml_node n = padre.first_child(); n; n = n.next_sibling()) {
        const std::size_t posto = posto_del_campo(n, tabella, da);
        if (posto == N) {
            altro(n);
            continue;
        }
        da = posto + 1;
        const Campo<T>& c = tabella[posto];
        std::string& dove = t.*c.dove;
        if (dove.empty()) metti_testo(n, dove);
        if (c.tipo == Tipo::importo) controlla_importo(c.nome, dove, difetto);
    }
}

template <class T, std::size_t N>
void riempi_campi(pugi::xml_node padre, T& t, const Campo<T> (&tabella)[N], Difetto& difetto) {
    riempi_campi(padre, t, tabella, difetto, [](pugi::xml_node) {});
}

}  // namespace ambra::fatturapa
