#include "core/disco_comune.h"

#include <algorithm>
#include <atomic>

#include "core/errori.h"

namespace ambra {

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

int leggi_aprendo(Disco& disco, std::string_view percorso, std::string& contenuto) {
    std::unique_ptr<FileAperto> f;
    if (const int e = disco.apri(percorso, Apertura::lettura, f)) return e;
    std::string s(static_cast<std::size_t>(f->lunghezza()), '\0');
    std::size_t letti = 0;
    if (const int e = f->leggi(0, std::as_writable_bytes(std::span(s)), letti)) return e;
    s.resize(letti);
    contenuto = std::move(s);
    return 0;
}

bool forse_tra_poco(int e) {
    return e == errore::gia_aperto || e == errore::troppi_file || e == errore::disco_non_pronto;
}

std::string nome_provvisorio(const std::string& vero, long processo) {
    static std::atomic<unsigned> contatore{0};
    return vero + ".~" + std::to_string(processo) + "-" + std::to_string(contatore++);
}

}  // namespace ambra
