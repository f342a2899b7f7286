// The marks by which a document is known again wherever it was moved to.
#pragma once

#include <array>
#include <cstdint>

#include "records/fattura.h"

namespace ambra {

/// Supplier, number and date of a document, and a digest of the whole record.
struct Impronta {
    std::array<char, 20> segni{};  ///< numfor, numdoc, datadoc as they stand in the record
    std::uint64_t intero = 0;

    static Impronta di(const RecFattura& f);
    bool stesso_documento(const Impronta& altra) const { return segni == altra.segni; }
};

}  // namespace ambra
