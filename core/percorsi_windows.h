// Where a path of the system lies on Windows. All paths here are UTF-8 with back slashes.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ambra {

/// With back slashes, and none at the end but that of a drive's own root: "L:\", "L:\prove", "\\pc\dati".
std::string radice_windows(std::string radice);

/// The place of `percorso` (UTF-8) on the drive whose root is `radice`. A share ("\\pc\dati\x") and a drive
/// letter that this machine has stand as they are; any other letter is a folder of the root. `unita` are the
/// machine's drives, bit 0 for A.
std::string posto_windows(const std::string& radice, std::string_view percorso, std::uint32_t unita);

/// What Windows is handed: a long path is made absolute and marked, as it is cut or refused otherwise.
std::wstring per_windows(const std::string& posto);

}  // namespace ambra
