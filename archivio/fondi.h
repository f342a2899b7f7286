// The merge of what two hands changed in one record, field by field.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "records/descrizione.h"

namespace ambra {

using Byte = std::span<const std::byte>;
using ByteScrivibili = std::span<std::byte>;

/// `visto` is the record as the screen read it, `base` what an untouched screen would write, `mio` what it
/// writes now, `disco` what stands there now; all as long as the format. For each field, and each element of
/// an array: disco == visto gives mio; else mio == base gives disco; else both changed it, and mio wins.
/// Fields named in `insieme` count as one, and so do all elements of their arrays; where both changed that,
/// the answer is false and `esito` is not to be written. Bytes that are nobody's are those of the disc.
[[nodiscard]] bool fondi(const FormatoRecord& formato, std::span<const std::string_view> insieme, Byte visto,
                         Byte base, Byte mio, Byte disco, ByteScrivibili esito);

}  // namespace ambra
