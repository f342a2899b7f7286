// The steps of `proponi`, in their order; each fills its part from what stands before it.
#pragma once

#include "invoices/analisi.h"
#include "invoices/analisi_parti.h"
#include "invoices/proposta.h"

namespace ambra::passi {

/// A proposal in the making, its amounts still numbers.
struct Cantiere {
    const FatturaLetta& f;
    const Contorno& c;
    Analisi a;
    Proposta p;
    std::array<Decimale, kCodiciIva> impon, ivai, rac, esent;

    void avvisa(std::string codice, std::string parole) {
        p.avvisi.push_back({std::move(codice), std::move(parole)});
    }
};

/// A number of the tables as the invoice screen reads it.
Decimale di_tabella(const std::string& testo);
/// The tax of the last document on this one, if it is offered and wanted; before all else.
void ritenuta_offerta(Cantiere& k);
/// VAT rows and the tax on them. What of the exempt amounts bears tax goes out of `a.esenti`.
void righe_iva(Cantiere& k);
/// What is exempt, and the rounding.
void esenti(Cantiere& k);
/// Amounts and dates of the instalments.
void rate_proposte(Cantiere& k);

}  // namespace ambra::passi
