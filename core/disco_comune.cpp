#include "core/disco_comune.h"

#include <algorithm>
#include <atomic>

namespace ambra {

std::string nome_minuscolo(std::string_view nome) {
    std::string r(nome);
    for (char& c : r)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 32);
    return r;
}

std::vector<std::string> nomi_del_percorso(std::string_view percorso) {
    std::vector<std::string> nomi;
    if (percorso.size() >= 2 && percorso[1] == ':') {
        nomi.emplace_back(percorso.substr(0, 1));
        percorso.remove_prefix(2);
    }
    for (std::size_t i = 0; i < percorso.size();) {
        const std::size_t fine = std::min(percorso.find_first_of("\\/", i), percorso.size());
        if (fine > i) nomi.emplace_back(percorso.substr(i, fine - i));
        i = fine + 1;
    }
    return nomi;
}

std::string nome_provvisorio(const std::string& vero, long processo) {
    static std::atomic<unsigned> contatore{0};
    return vero + ".~" + std::to_string(processo) + "-" + std::to_string(contatore++);
}

}  // namespace ambra
