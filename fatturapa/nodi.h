// Elements of the parsed file by local name, into the texts of plain structs.
#pragma once

#include <cstddef>
#include <pugixml.hpp>
#include <string>
#include <string_view>

#include "core/decimale.h"
#include "fatturapa/testo_xml.h"

namespace ambra::fatturapa {

inline std::string_view nome_di(pugi::xml_node n) {
    return senza_prefisso(n.name());
}

/// The text of an element, of all its pieces, in UTF-8 without control characters and blanks at the ends.
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

void controlla_importo(std::string_view nome, const std::string& testo, Difetto& difetto);

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
    for (const pugi::xml_node n : padre.children())
        if (n.type() == pugi::node_element && !riempi_campo(n, t, tabella, da, difetto)) altro(n);
}

template <class T, std::size_t N>
void riempi_campi(pugi::xml_node padre, T& t, const Campo<T> (&tabella)[N], Difetto& difetto) {
    riempi_campi(padre, t, tabella, difetto, [](pugi::xml_node) {});
}

}  // namespace ambra::fatturapa
