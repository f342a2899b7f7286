// The checks of a story on the drive's files. Each takes the rest of its step and ends the story if it does
// not hold.
#pragma once

#include <string>

#include "tests/storia/dischetto.h"

namespace ambra::storia {

/// FILE N|A..B field=value ...
void verifica(const Dischetto& d, const std::string& resto);
/// FILE N field=value ...: every byte of the record; fields not told are as in a new one.
void intero(const Dischetto& d, const std::string& resto);
/// FILE: unchanged by the last run.
void uguale(const Dischetto& d, const std::string& resto);
/// No file of the drive has changed, come or gone.
void uguali(const Dischetto& d);
/// FILE N.field N.field(k) ...: outside these fields the file is byte for byte what it was; N alone is a
/// whole record.
void cambia(const Dischetto& d, const std::string& resto);
/// FILE BYTES
void lungo(const Dischetto& d, const std::string& resto);
/// FILE, and its whole text in Windows-1252
void testo(const Dischetto& d, const std::string& nome, const std::string& voluto);
/// FILE N TEXT: line N of a text file, from 1
void riga_di(const Dischetto& d, const std::string& resto);
/// FILE OFFSET hex
void byte(const Dischetto& d, const std::string& resto);
/// FILE: there is none.
void manca(const Dischetto& d, const std::string& resto);

}  // namespace ambra::storia
