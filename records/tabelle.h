// The text tables of the archive: VAT codes (lumora.iva), payment terms (lumora.pag), headings of the
// building's accounts (lumNNN.tab). A missing file leaves every value empty.
#pragma once

#include <array>
#include <string>

#include "core/disco.h"
#include "core/errori.h"

namespace ambra {

/// lumora.iva, 32 lines. Index 0 is not used.
struct TabellaIva {
    struct Codice {
        std::string aliquota;  ///< rate, per cent, as typed
        std::string detr;      ///< deductible share, per cent
        std::string ritenuta;  ///< withholding rate, per cent
    };
    std::array<Codice, 9> codice;
    std::array<std::string, 9> esenzione;
};
bool carica_iva(Disco& disco, Errore& err, TabellaIva& t);
bool salva_iva(Disco& disco, Errore& err, const TabellaIva& t);

/// lumora.pag: 40 terms, two lines each. Index 0 is not used; 41 to 60 live in memory only.
struct TabellaPagamenti {
    struct Termine {
        std::string nome;
        std::string codice;  ///< 16 characters: four groups of months, F or N, days
    };
    std::array<Termine, 61> termine;
};
constexpr int kTermini = 40;
bool carica_pagamenti(Disco& disco, Errore& err, TabellaPagamenti& t);
bool salva_pagamenti(Disco& disco, Errore& err, const TabellaPagamenti& t);
/// Name of term `modpag` (a position from 0), as it stands; empty outside 0 to 39.
std::string nome_termine(const TabellaPagamenti& t, int modpag);

/// lumNNN.tab: for each voce 1 to 40 fifteen lines, then 54 that are read and not used.
struct TabellaVoci {
    std::array<std::array<std::string, 15>, 43> riga;  ///< by voce, then line 0 to 14
    const std::string& nome(int voce) const { return riga[static_cast<std::size_t>(voce)][0]; }
    /// Total of the thousandths of a voce.
    double totale(int voce) const;
};
/// Reads the file and names voci 41 "Addebiti" and 42 "Accrediti".
bool carica_voci(Disco& disco, Errore& err, std::string_view nnn, TabellaVoci& t);

}  // namespace ambra
