// The four kinds of printed form, their fields, and the files that hold their layouts.
//
// 1 "avviso di pagamento", 2 "ricevuta di pagamento", 3 the ministerial form quadro AC, 4 "sollecito di
// pagamento". Kinds 1, 2 and 4 are the accounting suite's, one set of files a building; kind 3 is one file
// for all.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/disco.h"
#include "core/errori.h"
#include "records/layout.h"

namespace ambra {

constexpr int kAvviso = 1, kRicevuta = 2, kMinisteriale = 3, kSollecito = 4;

/// One field of a form.
struct CampoModulo {
    std::string descrizione;
    char genere = '1';  ///< '1' position and font, '2' vertical position only, '3' horizontal and font
    std::string terza;
};

/// The fields of a kind, by row from 1; row 0 holds their count and a second value.
struct TabellaModulo {
    std::array<CampoModulo, 100> riga;
    int quanti = 0;
    int secondo = 0;  ///< 2 for kinds 1 and 4, else 0
};
TabellaModulo tabella_modulo(int tipo);

/// Titles of a kind.
std::string titolo_finestra(int tipo);
std::string titolo_coordinate(int tipo);

// ---- the files; `nnn` is the building ----

std::string file_coordinate(int tipo, std::string_view nnn);
/// Empty for the ministerial form, which has none.
std::string file_intestazione(int tipo, std::string_view nnn);
std::string file_testi(int tipo, std::string_view nnn);

/// Subject and body of the mail that a form goes out with: two quoted lines.
struct TestoPosta {
    std::string oggetto, corpo;
    bool operator==(const TestoPosta&) const = default;
};
bool carica_intestazione(Disco& disco, Errore& err, std::string_view percorso, TestoPosta& t);
bool salva_intestazione(Disco& disco, Errore& err, std::string_view percorso, const TestoPosta& t);

/// The free texts of the suite's form designer: a first value, then 500 rows of two lines and eight values.
struct TestiLiberi {
    struct Riga {
        std::array<std::string, 2> linea;
        std::array<std::string, 8> valore;
        bool operator==(const Riga&) const = default;
    };
    std::string primo;
    std::vector<Riga> riga;  ///< 500 when read whole, else empty
    bool operator==(const TestiLiberi&) const = default;
};
bool carica_testi(Disco& disco, Errore& err, std::string_view percorso, TestiLiberi& t);
bool salva_testi(Disco& disco, Errore& err, std::string_view percorso, const TestiLiberi& t);

// ---- what the two buttons do to a layout ----

/// "Azzera tutto": every row at its default. Rows 98 and 99 of kinds 1, 2 and 4 get the position "000"; rows
/// 97 to 99 of the ministerial form, which are no fields, stay.
void azzera_coordinate(int tipo, Layout& layout);
/// "Coordinate default": the automatic positions of rows 1 to 95. Nothing on the ministerial form.
void coordinate_automatiche(int tipo, Layout& layout);

}  // namespace ambra
