// Elements of the parsed file by local name, into the texts of plain structs.
#pragma once

#include <cstddef>
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
/// The same in UTF-8, without control characters and blanks at the ends.
std::string testo_di(pugi::xml_node n);

/// What a field holds; amounts are checked.
enum class Tipo { testo, importo };

/// The element that fills a member.
template <class T>
struct Campo {
    std::string_view nome;
    std::string T::*dove;
    Tipo tipo = Tipo::testo;
};

/// Why a document is refused: "importo non leggibile (Imposta: 1e999)"; empty while it is not.
using Difetto = std::string;

void controlla_importo(std::string_view nome, std::string_view testo, Difetto& difetto);

/// Fills one member if the element is one of the table's; the first of a name holds. `da` is where the search
/// begins, as elements come in the table's order.
template <class T, std::size_t N>
bool riempi_campo(pugi::xml_node n, T& t, const Campo<T> (&tabella)[N], std::size_t& da, Difetto& difetto) {
    const std::string_view nome = nome_di(n);
    for (std::size_t k = 0; k < N; ++k) {
        const Campo<T>& c = tabella[(da + k) % N];
        if (c.nome != nome) continue;
        da = (da + k + 1) % N;
        std::string& dove = t.*c.dove;
        if (dove.empty()) dove = testo_di(n);
        if (c.tipo == Tipo::importo) controlla_importo(nome, dove, difetto);
        return true;
    }
    return false;
}

/// Fills the members from the children; `altro` gets those that the table does not know.
template <class T, std::size_t N, class F>
void riempi_campi(pugi::xml_node padre, T& t, const Campo<T> (&tabella)[N], Difetto& difetto,
                  const F& altro) {
    std::size_t da = 0;
    for (pugi::xml_node n = padre.first_child(); n; n = n.next_sibling())
        if (!riempi_campo(n, t, tabella, da, difetto)) altro(n);
}

template <class T, std::size_t N>
void riempi_campi(pugi::xml_node padre, T& t, const Campo<T> (&tabella)[N], Difetto& difetto) {
    riempi_campi(padre, t, tabella, difetto, [](pugi::xml_node) {});
}

}  // namespace ambra::fatturapa
