// An electronic invoice as people read it: who, what, how much, when.
#pragma once

#include <string>
#include <vector>

#include "invoices/fattura_letta.h"

namespace ambra {

class Programma;

/// A part of it: a heading, and rows of as many cells; Windows-1252.
struct ParteLeggibile {
    std::string titolo;
    std::vector<std::string> colonne;  ///< headings of the cells; empty for a plain list of caption and value
    std::vector<std::vector<std::string>> righe;
};
/// Header, lines, summary, payments, notes, attachments; what the file does not say is left out.
std::vector<ParteLeggibile> leggibile(const FatturaLetta& f);

/// Prints it; asks first as the lists do.
void stampa_leggibile(Programma& prog, const FatturaLetta& f);

}  // namespace ambra
