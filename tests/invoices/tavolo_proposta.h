// The tables of a studio, and what a proposal says in words, for its tests.
#pragma once

#include <string>

#include "invoices/analisi.h"
#include "invoices/proposta.h"
#include "tests/invoices/fatture_lette.h"
#include "tests/supporto/banco.h"

namespace ambra {

// The tables of a studio: 22, 10, 4, 22/20, 22/4, 10/4, 5, 0/20.
struct Tavolo {
    TabellaIva iva;
    TabellaPagamenti pagamenti;
    RecFattura ultima = fattura_vuota();
    Contorno c;

    Tavolo() {
        const char* codici[8][2] = {{"22", "0"}, {"10", "0"}, {"4", "0"}, {"22", "20"},
                                    {"22", "4"}, {"10", "4"}, {"5", ""},  {"0", "20"}};
        const char* esenti[8] = {"Art. 15 anticipazioni", "Art. 10 esenti", "Art. 8 non imponibili",
                                 "Art. 17 inversione",    "Art. 1 c. 58",   "Art. 2 fuori campo",
                                 "Art. 74 editoria",      "Altro"};
        for (std::size_t i = 0; i < 8; ++i) {
            iva.codice[i + 1] = {codici[i][0], "100", codici[i][1]};
            iva.esenzione[i + 1] = esenti[i];
        }
        pagamenti.termine[1] = {"Rimessa diretta", "000000000000N000"};
        pagamenti.termine[2] = {"30/60 fine mese", "001002000000F000"};
        c.iva = &iva;
        c.pagamenti = &pagamenti;
        c.oggi = "10/10/2026";
        c.nnn = "001";
        c.cartella_pdf = "\\LUMDIR\\PDF";
    }
    Proposta proponi(const FatturaLetta& f) { return ambra::proponi(f, c); }
};

inline FatturaLetta con_tassa(FatturaLetta f, const char* tipo, const char* importo, const char* aliquota) {
    RitenutaLetta r;
    r.tipo = tipo;
    r.importo = importo;
    r.aliquota = aliquota;
    f.ritenute.push_back(r);
    f.fornitore.codice_iva = "01234567897";
    f.fornitore.paese_iva = "IT";
    return f;
}

inline FatturaLetta di_fornitore(FatturaLetta f) {
    f.fornitore.codice_iva = "01234567897";
    f.fornitore.paese_iva = "IT";
    return f;
}

// "3:1000.00/220.00/40.00" of each row that holds something, then the exempt ones, "e5:2.00".
inline std::string righe(const Proposta& p) {
    std::string s;
    for (std::size_t i = 0; i < kCodiciIva; ++i)
        if (!p.impon[i].empty() || !p.ivai[i].empty() || !p.rac[i].empty())
            s += std::to_string(i) + ":" + p.impon[i] + "/" + p.ivai[i] + "/" + p.rac[i] + " ";
    for (std::size_t i = 0; i < kCodiciIva; ++i)
        if (!p.esent[i].empty()) s += "e" + std::to_string(i) + ":" + p.esent[i] + " ";
    return s.empty() ? s : s.substr(0, s.size() - 1);
}

inline std::string rate(const Proposta& p) {
    if (!p.con_rate) return "come il termine";
    std::string s;
    for (std::size_t i = 0; i < kRate; ++i)
        if (!p.sca[i].empty()) s += p.dsca[i] + "=" + p.sca[i] + " ";
    return s.empty() ? s : s.substr(0, s.size() - 1);
}

inline std::string codici(const Proposta& p) {
    std::string s;
    for (const Avviso& a : p.avvisi) {
        EXPECT_FALSE(a.parole.empty()) << a.codice;
        EXPECT_NE(a.parole, a.codice);
        s += (s.empty() ? "" : " ") + a.codice;
    }
    return s;
}

// ---- head ----

}  // namespace ambra
