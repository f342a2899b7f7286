// A plain model of the register: the suppliers, their index, the archive's own sort and search.
#pragma once

#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "core/testo.h"

namespace ambra {

inline std::string largo(std::string s, std::size_t n) {
    s.resize(n, ' ');
    return s;
}

inline std::string grande(std::string s) {
    for (char& c : s) {
        const auto u = static_cast<unsigned char>(c);
        if ((u >= 'a' && u <= 'z') || (u >= 0xE0 && u < 0xFF && u != 0xF7)) c = static_cast<char>(u - 32);
    }
    return s;
}

// One supplier as the model knows it: the few texts that the test types, at their places in the record.
struct Scheda {
    std::string nome, telefono, mail;
    bool cancellata = false;
    std::string byte() const {
        std::string r(600, ' ');
        const auto metti = [&r](std::size_t dove, const std::string& s) { r.replace(dove, s.size(), s); };
        metti(0, largo(nome, 40));
        metti(330, largo(telefono, 15));
        metti(404, largo(mail, 50).substr(0, 38));
        metti(570, largo(mail, 50).substr(38, 12));
        r[569] = 'M';
        for (const std::size_t numero : {402u, 442u, 494u, 496u, 563u}) metti(numero, std::string(2, '\0'));
        metti(584, std::string(14, '\0'));
        metti(598, std::string(1, cancellata ? '\1' : '\0') + '\0');
        return r;
    }
};

struct Modello {
    struct Nome {
        std::string nome;
        int numero;
    };
    std::vector<Scheda> schede;
    std::vector<Nome> indice;
    bool sporco = false;
    int qui = 0;  // position shown, from 1

    Scheda& mostrata() {
        return schede[static_cast<std::size_t>(indice[static_cast<std::size_t>(qui - 1)].numero - 1)];
    }

    void inserisci(const Scheda& s) {
        for (std::size_t i = 0; i < indice.size(); ++i) {
            Scheda& libera = schede[static_cast<std::size_t>(indice[i].numero - 1)];
            if (!libera.cancellata) continue;
            libera = s;
            indice[i].nome = largo(grande(s.nome), 40);
            qui = static_cast<int>(i) + 1;
            sporco = true;
            return;
        }
        schede.push_back(s);
        indice.push_back({largo(grande(s.nome), 40), static_cast<int>(schede.size())});
        qui = static_cast<int>(indice.size());
        sporco = true;
    }
    void cambia(const Scheda& s) {
        const std::string prima(rifila(mostrata().nome));
        mostrata() = s;
        if (rifila(s.nome) == prima) return;
        indice[static_cast<std::size_t>(qui - 1)].nome = largo(grande(s.nome), 40);
        sporco = true;
    }
    void elimina() {
        Scheda& s = mostrata();
        s.cancellata = true;
        s.nome = ("\xFF" + largo(s.nome, 40)).substr(0, 40);
        indice[static_cast<std::size_t>(qui - 1)].nome = s.nome;
        sporco = true;
    }
    // The archive's sort, exchange by exchange.
    void ordina() {
        const int n = static_cast<int>(indice.size());
        int passo = n;
        for (int p = 1; p <= static_cast<int>(std::log2(n)); ++p) {
            passo /= 2;
            for (int i = 0; i < n - passo; ++i)
                for (int j = i; j >= 0; j -= passo) {
                    auto& a = indice[static_cast<std::size_t>(j)];
                    auto& b = indice[static_cast<std::size_t>(j + passo)];
                    if (a.nome <= b.nome) break;
                    std::swap(a, b);
                }
        }
        sporco = false;
        qui = 1;
    }
    void riordina() {
        for (std::size_t i = 0; i < schede.size(); ++i) {
            const std::string nome = largo(schede[i].nome, 40);
            indice[i] = {grande(schede[i].cancellata ? ("\xFF" + nome).substr(0, 40) : nome),
                         static_cast<int>(i) + 1};
        }
        ordina();
    }
    int cerca(const std::string& chiave) const {
        int basso = 1, alto = static_cast<int>(indice.size()) + 1, precedente = 0;
        for (;;) {
            const int mezzo = basso + (alto - basso) / 2;
            if (mezzo == precedente) return 0;
            precedente = mezzo;
            const std::string nome =
                mezzo <= static_cast<int>(indice.size())
                    ? grande(indice[static_cast<std::size_t>(mezzo - 1)].nome.substr(0, chiave.size()))
                    : std::string(chiave.size(), ' ');
            if (nome == chiave) return mezzo;
            if (chiave > nome) {
                basso = mezzo;
            } else {
                alto = mezzo;
            }
        }
    }
};

}  // namespace ambra
