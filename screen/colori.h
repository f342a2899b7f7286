// The colours of cells and fields, RGB numbers with blue in the high byte.
#pragma once

namespace ambra::colore {

constexpr long bianco = 0xFFFFFF;
constexpr long segnato = 0xC0E0FF;  ///< a row that the user chose, light orange
constexpr long giallo = 0x80FFFF;
constexpr long rosso = 0x8080FF;
constexpr long rosso_scritto = 0xFF;  ///< of a text, on white
constexpr long verde = 0x80FF80;
constexpr long grigio = 0xDDDDDD;
constexpr long nessuno = -1;  ///< the system's own

}  // namespace ambra::colore
