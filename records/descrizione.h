// The record formats as data: every field's name, offset, size and type, for whatever has to speak of
// fields by name (checks, stories, the document of the formats).
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace ambra {

struct CampoRecord {
    enum class Tipo { intero, lungo, doppio, testo, grezzo };
    std::string_view nome;
    std::size_t posto = 0;  ///< offset in the record, of the first element
    std::size_t lungo = 0;  ///< bytes of one element
    Tipo tipo = Tipo::grezzo;
    int quanti = 1;  ///< elements of an array
    int primo = 1;   ///< number of its first element as people count it
};

struct FormatoRecord {
    std::string_view nome;  ///< "RecFattura"
    std::string_view file;  ///< "ftr" for lumNNN.ftr, or the whole name of a global file
    std::size_t lunghezza = 0;
    std::span<const CampoRecord> campi;
};

/// All formats of the archive.
std::span<const FormatoRecord> formati_record();
/// The format of a file: "ftr", "lumora.tot"; null if it has none.
const FormatoRecord* formato_di_file(std::string_view file);

}  // namespace ambra
