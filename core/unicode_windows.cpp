#include "core/unicode_windows.h"

#include <windows.h>

namespace ambra {

std::wstring larga(std::string_view utf8) {
    const int n = static_cast<int>(utf8.size());
    std::wstring r(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), n, nullptr, 0)), 0);
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), n, r.data(), static_cast<int>(r.size()));
    return r;
}

std::string utf8_di(std::wstring_view larga) {
    const int n = static_cast<int>(larga.size());
    const int quanti = WideCharToMultiByte(CP_UTF8, 0, larga.data(), n, nullptr, 0, nullptr, nullptr);
    std::string r(static_cast<std::size_t>(quanti), 0);
    WideCharToMultiByte(CP_UTF8, 0, larga.data(), n, r.data(), quanti, nullptr, nullptr);
    return r;
}

}  // namespace ambra
