// What an electronic invoice says about itself, without the tables and the archive: kind, sums by rate,
// withheld tax and its base, net to pay, instalments, and warnings by code.
//
// All amounts are exact and to the cent. A document below zero, credit note or not, is turned: what comes out
// is positive, `nota_credito` says what it is.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/decimale.h"
#include "invoices/fattura_letta.h"

namespace ambra {

/// Taxable amount and VAT of one rate.
struct SommaAliquota {
    Decimale aliquota, imponibile, imposta;
};

/// What is exempt under one Natura ("N2.2"; empty where the file does not say).
struct SommaNatura {
    std::string natura;
    Decimale importo;
};

/// The part of the marked lines and funds that bears one rate (0 for the exempt).
struct BaseAliquota {
    Decimale aliquota, importo;
};

struct Rata {
    std::string data;  ///< yyyy-mm-dd; empty where the file gives none
    Decimale importo;
};

/// What the payments of the file add up to.
enum class RateDa {
    assenti,        ///< there are none
    file,           ///< to the net: taken as they are
    lordo_a_netto,  ///< to the total, while something is withheld: scaled to the net
    non_quadrano    ///< to neither: not taken
};

struct Analisi {
    bool nota_credito = false;
    std::string numero;             ///< blanks tidied
    std::string numero_registrato;  ///< its last 10 characters
    std::string data;               ///< as in the file; see the warning for one that is no date

    std::vector<SommaAliquota> iva;   ///< in the order of the file
    std::vector<SommaNatura> esenti;  ///< in the order of the file
    Decimale arrotondamento;          ///< what the stated total adds to the summary, declared as rounding
    Decimale totale;                  ///< summary and rounding
    std::optional<Decimale> totale_dichiarato;

    Decimale ritenuta;                      ///< RT01 and RT02
    Decimale aliquota_ritenuta;             ///< of the larger of the two; 0 where there is none
    std::optional<Decimale> base_ritenuta;  ///< nothing where no tax is withheld, or its rate is not said
    std::vector<BaseAliquota> marcati;      ///< lines and funds marked as subject to it, by rate
    Decimale contributi;                    ///< RT03 to RT06
    Decimale iva_scissa;                    ///< VAT that the customer pays to the state
    Decimale netto;                         ///< to pay

    RateDa rate_da = RateDa::assenti;
    std::vector<Rata> nel_file;  ///< at most four; scaled when `rate_da` says so
    std::vector<Rata> rate;      ///< the same, or none when they are not taken

    std::vector<std::string> avvisi;  ///< codes, sorted, each once: "rate-non-quadrano"
    bool avvisa(std::string_view codice) const;
};

/// Never fails: what is missing or absurd becomes a warning. Amounts that run out of range together end as
/// "importi-fuori-misura", and print as nothing.
Analisi analizza(const FatturaLetta& f);

/// "dal file", "lordo->netto", "non quadrano", "assenti".
std::string_view nome(RateDa da);

}  // namespace ambra
