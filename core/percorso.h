// File names of the standard library from and to UTF-8, which it takes for the machine's code page where that
// is not so.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace ambra {

inline std::filesystem::path percorso_utf8(std::string_view utf8) {
    return {std::u8string(utf8.begin(), utf8.end())};
}

inline std::string in_utf8(const std::filesystem::path& percorso) {
    const std::u8string s = percorso.u8string();
    return {s.begin(), s.end()};
}

}  // namespace ambra
