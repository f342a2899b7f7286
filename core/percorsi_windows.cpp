#include "core/percorsi_windows.h"

#include <windows.h>

#include <algorithm>

#include "core/unicode_windows.h"

namespace ambra {

namespace {

// A folder is refused at 248 characters already: twelve fewer than a file.
constexpr std::size_t kLungo = 240;

bool lettera(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

std::string con_barre(std::string_view percorso) {
    std::string r(percorso);
    std::replace(r.begin(), r.end(), '/', '\\');
    return r;
}

}  // namespace

std::string radice_windows(std::string radice) {
    radice = con_barre(radice);
    while (radice.size() > 1 && radice.back() == '\\') radice.pop_back();
    if (radice.size() == 2 && radice[1] == ':') radice += '\\';
    return radice;
}

std::string posto_windows(const std::string& radice, std::string_view percorso, std::uint32_t unita) {
    std::string p = con_barre(percorso);
    if (p.starts_with("\\\\")) return p;
    if (p.size() >= 2 && p[1] == ':') {
        const int quale = lettera(p[0]) ? (p[0] | 0x20) - 'a' : 31;
        if ((unita >> quale & 1) != 0) return p;
        p.erase(1, 1);
        if (p.size() > 1 && p[1] != '\\') p.insert(1, "\\");
    }
    std::string r = radice;
    for (std::size_t i = 0; i < p.size();) {
        const std::size_t fine = std::min(p.find('\\', i), p.size());
        if (fine > i) {
            if (r.back() != '\\') r += '\\';
            r.append(p, i, fine - i);
        }
        i = fine + 1;
    }
    return r;
}

std::wstring per_windows(const std::string& posto) {
    const std::wstring p = larga(posto);
    if (p.starts_with(L"\\\\?\\")) return p;
    std::wstring intero(GetFullPathNameW(p.c_str(), 0, nullptr, nullptr), 0);
    intero.resize(GetFullPathNameW(p.c_str(), static_cast<DWORD>(intero.size()), intero.data(), nullptr));
    if (intero.size() < kLungo) return p;
    return intero.starts_with(L"\\\\") ? L"\\\\?\\UNC" + intero.substr(1) : L"\\\\?\\" + intero;
}

}  // namespace ambra
