// The fields of a record by their names: the bytes that a written value makes, and how stored bytes are
// shown.
#pragma once

#include <string>

#include "records/descrizione.h"
#include "tests/storia/parole.h"

namespace ambra::storia {

/// Makes a record of zeros a new one: blank texts, zero numbers.
void svuota(const FormatoRecord& form, char* r);
/// The field that is meant; an unknown one ends the story.
const CampoRecord& campo(const FormatoRecord& form, const Assegnazione& x);
/// Offset in the record of the element that is meant, of the first if none is.
std::size_t posto(const CampoRecord& c, int indice);
/// Writes the value into the record `r`.
void assegna(const FormatoRecord& form, char* r, const Assegnazione& x);
/// Ends the story unless the record `r` holds the value; `dove` names the record.
void pretendi(const FormatoRecord& form, const char* r, const Assegnazione& x, const std::string& dove);

}  // namespace ambra::storia
