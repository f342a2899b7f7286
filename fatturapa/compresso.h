// Zip files in memory. Nothing is ever unpacked to a disk: names are for showing alone.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "fatturapa/documento.h"

namespace ambra::fatturapa {

/// An entry of an archive, a folder apart.
struct Voce {
    std::string nome;            ///< UTF-8, without control characters
    std::string contenuto;       ///< its bytes; cut when they are too many
    bool intera = true;          ///< false: damaged, encrypted, or over the limit of an entry
    std::string difetto;         ///< why it is not whole
    std::optional<Letta> letta;  ///< what was made of its bytes before its turn; they are no longer there
};

bool sembra_zip(std::string_view byte);

/// Whether its index claims far more entries than are ever read: it is not to be opened.
bool troppe_voci(std::string_view byte);

using Vuole = std::function<bool(const std::string& nome)>;
using Prendi = std::function<bool(Voce&)>;

/// Hands the entries over one by one, until `prendi` returns false; those whose name `vuole` refuses are not
/// unpacked. False if the archive itself is damaged. `da_sola` reads entries before their turn, several at
/// once on threads of their own: one that it leaves without `letta`, or where it throws, comes as it is
/// unpacked.
bool per_ogni_voce(std::string_view byte, const Vuole& vuole, const std::function<void(Voce&)>& da_sola,
                   const Prendi& prendi);

/// The same by the library that knows every kind of zip, for the entries from number `da` on in the order of
/// their bytes.
bool per_ogni_voce_con_cura(std::string_view byte, std::size_t da, const Vuole& vuole, const Prendi& prendi);

}  // namespace ambra::fatturapa
