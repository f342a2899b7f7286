// A building whose suppliers all stand on the ministerial form.
#pragma once

#include <string>
#include <vector>

#include "tests/supporto/banco.h"

namespace ambra {

inline std::string nome(int k) {
    return "FORNITORE " + std::to_string(k);
}

/// Suppliers 1 to n, each natural, not resident and complete, with a total of its own.
inline void prepara(Banco& b, int n) {
    std::vector<RecFornitore> f;
    std::vector<RecFattura> d;
    for (int k = 1; k <= n; ++k) {
        RecFornitore r = fornitore_vuoto(nome(k));
        r.inte2 = "due";
        r.indir = "Via Po";
        r.citta = "Torino";
        r.codfis = "CF" + std::to_string(k);
        r.prov = "TO";
        r.sesso = "F";
        r.datanas = "05/11/1960";
        r.luogonas = "Asti";
        r.provnas = "AT";
        r.sigla = "FR";
        r.statoest = "Francia";
        r.codest = "E1";
        r.fisica = r.nonres = 1;
        f.push_back(r);
        RecFattura x = fattura_vuota();
        x.numfor = k;
        x.datareg = x.datadoc = "20240301";
        x.impon[0] = 300 + k;
        d.push_back(x);
    }
    b.fornitori(f);
    b.fatture(d);
    b.testo("lumora.int", {"Studio", "Via A", "Torino", "", "", "011", "", "", "ABCDEFGHIJKLMNOP", ""});
    RecStabile s{};
    s.nome = "ROSSI";
    s.indirizzo = "Via Roma";
    s.cittastab = "Torino";
    b.file("lumora.tot") = byte_di(s);
    RecStabile2 s2{};
    s2.codfisc = "97";
    b.file("lumora.tt2") = byte_di(s2);
}

}  // namespace ambra
