#include "records/tabelle.h"

#include <vector>

#include "core/filetesto.h"
#include "core/impostazioni.h"
#include "core/nomi_file.h"
#include "core/numeri.h"

namespace ambra {

namespace {
const std::string kIva = kCartella + "lumora.iva";
const std::string kPag = kCartella + "lumora.pag";
}  // namespace

bool carica_iva(Disco& disco, Errore& err, TabellaIva& t) {
    t = {};
    LettoreTesto f(err);
    bool bene = f.apri(disco, kIva);
    for (std::size_t i = 1; i <= 8; ++i)
        for (std::string* s : {&t.codice[i].aliquota, &t.codice[i].detr, &t.codice[i].ritenuta})
            bene = f.riga(*s) && bene;
    for (std::size_t i = 1; i <= 8; ++i) bene = f.riga(t.esenzione[i]) && bene;
    return bene;
}

bool salva_iva(Disco& disco, Errore& err, const TabellaIva& t) {
    std::vector<std::string> righe;
    for (std::size_t i = 1; i <= 8; ++i)
        for (const std::string* s : {&t.codice[i].aliquota, &t.codice[i].detr, &t.codice[i].ritenuta})
            righe.push_back(*s);
    for (std::size_t i = 1; i <= 8; ++i) righe.push_back(t.esenzione[i]);
    return scrivi_righe(disco, err, kIva, righe);
}

bool carica_pagamenti(Disco& disco, Errore& err, TabellaPagamenti& t) {
    t = {};
    LettoreTesto f(err);
    bool bene = f.apri(disco, kPag);
    for (std::size_t i = 1; i <= kTermini; ++i) {
        bene = f.riga(t.termine[i].nome) && bene;
        bene = f.riga(t.termine[i].codice) && bene;
    }
    return bene;
}

bool salva_pagamenti(Disco& disco, Errore& err, const TabellaPagamenti& t) {
    std::vector<std::string> righe;
    for (std::size_t i = 1; i <= kTermini; ++i) {
        righe.push_back(t.termine[i].nome);
        righe.push_back(t.termine[i].codice);
    }
    return scrivi_righe(disco, err, kPag, righe);
}

std::string nome_termine(const TabellaPagamenti& t, int modpag) {
    return modpag < 0 || modpag >= kTermini ? std::string{}
                                            : t.termine[static_cast<std::size_t>(modpag) + 1].nome;
}

double TabellaVoci::totale(int voce) const {
    return leggi_numero(riga[static_cast<std::size_t>(voce)][2]);
}

bool carica_voci(Disco& disco, Errore& err, std::string_view nnn, TabellaVoci& t) {
    t = {};
    LettoreTesto f(err);
    bool bene = f.apri(disco, nome_file(nnn, "tab"));
    for (std::size_t voce = 1; voce <= 40; ++voce)
        for (auto& s : t.riga[voce]) bene = f.riga(s) && bene;
    std::string buttata;
    for (int i = 0; i < 12 * 2 + 30; ++i) bene = f.riga(buttata) && bene;
    t.riga[41][0] = "Addebiti";
    t.riga[42][0] = "Accrediti";
    return bene;
}

}  // namespace ambra
