// What the invoice screen is to be given for an electronic invoice: a text for each of its fields, warnings,
// and why a document cannot be registered. Nothing of it is stored before the user has confirmed it there.
//
//   proposta.cpp           head of the document, obstacles, the attached PDF, the comparison with the file
//   proposta_iva.cpp       VAT rows and the withheld tax on them
//   proposta_esenti.cpp    exempt amounts and rounding
//   proposta_rate.cpp      instalments, and the tax that the user applies of his own
//   proposta_avvisi.cpp    the warnings in words
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/decimale.h"
#include "invoices/calcolo.h"
#include "invoices/fattura_letta.h"
#include "records/fattura.h"
#include "records/tabelle.h"

namespace ambra {

/// What a proposal needs beside the file. What is pointed to must outlive the call only.
struct Contorno {
    const TabellaIva* iva = nullptr;
    const TabellaPagamenti* pagamenti = nullptr;
    int termine = 0;                       ///< the supplier's payment term, 0 to 39
    const RecFattura* ultima = nullptr;    ///< the supplier's last document; null if he has none
    std::string oggi;                      ///< dd/mm/yyyy
    std::string nnn, cartella_pdf;         ///< number of the building, folder of the settings
    bool applica_ritenuta = false;         ///< the user wants the tax of the last document
    std::optional<std::size_t> esenzione;  ///< the code that the user chose, from 0
};

struct Avviso {
    std::string codice;  ///< "rate-non-quadrano"
    std::string parole;  ///< Windows-1252
};

/// Texts are Windows-1252, amounts with a point and two decimals; what is zero is empty.
struct Proposta {
    // ---- fields of the invoice screen ----
    std::string numero, datadoc, datareg;
    std::string numero_intero;  ///< as the file has it, blanks tidied
    bool nota_credito = false;
    int termine = 0;
    std::array<std::string, kCodiciIva> impon, ivai, rac, esent;
    bool con_rate = false;  ///< false: the screen's own split stands, and these are empty
    std::array<std::string, kRate> sca, dsca;
    bool con_pdf = false;  ///< a PDF is attached
    std::string pdf;       ///< its path; empty if there is none, or of an invoice that was not read whole

    std::string impedimento;  ///< why it cannot be registered; empty if it can
    std::vector<Avviso> avvisi;
    std::string ritenuta_offerta;  ///< rate of the tax that the user may apply, "4"; empty if none is offered
    bool chiede_esenzione = false;  ///< an exempt amount has no code of its own

    Decimale totale, ritenuta, netto;  ///< of the document
    bool avvisa(std::string_view codice) const;
};

/// Never fails: what cannot be proposed is left out, and a warning says so.
Proposta proponi(const FatturaLetta& f, const Contorno& c);

/// The codes in words; some speak of what stands in the file. Windows-1252.
std::string in_parole(const std::string& codice, const FatturaLetta& f);

/// The rate of the tax withheld on a document of the archive; nothing if there is none.
std::optional<Decimale> aliquota_trattenuta(const RecFattura& f, const TabellaIva& t);

}  // namespace ambra
