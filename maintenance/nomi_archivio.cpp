#include "maintenance/nomi_archivio.h"

#include <algorithm>
#include <array>

#include "core/disco_comune.h"

namespace ambra {

namespace {

// Of a building: lumNNN. and one of these. The last are the copy of the reorganisation and the suite's forms.
constexpr std::array<std::string_view, 11> kDati = {"tot", "cnd", "cns", "pia", "mov", "cn2",
                                                    "tab", "tfr", "for", "srf", "ftr"};
constexpr std::array<std::string_view, 10> kAltri = {"$$$", "lay", "lyr", "lys", "lxa",
                                                     "lxr", "lxs", "lka", "lkr", "lks"};
constexpr std::array<std::string_view, 14> kComuni = {
    "lumora.tot",  "lumora.tt2",  "lumora.int",  "lumora.iva",  "lumora.pag",  "lumoral.tot", "lumeria.eur",
    "lumeria.tbl", "lumeria.gnr", "lumeria.eti", "lumeria.eta", "lumeria.etf", "lummmi.lay",  "lummmi.dxy"};

template <std::size_t N>
bool fra(const std::array<std::string_view, N>& lista, std::string_view che) {
    return std::find(lista.begin(), lista.end(), che) != lista.end();
}

// The extension of "lumNNN.ext" in small letters, or "".
std::string estensione_di_stabile(std::string_view nome) {
    const std::string n = minuscolo(nome);
    if (n.size() != 10 || !n.starts_with("lum") || n[6] != '.' || !e_nnn(n.substr(3, 3))) return "";
    return n.substr(7);
}

}  // namespace

bool e_nnn(std::string_view s) {
    return s.size() == 3 && std::all_of(s.begin(), s.end(), cifra);
}

std::string padrone(std::string_view nome) {
    const std::string est = estensione_di_stabile(nome);
    if (fra(kDati, est) || fra(kAltri, est)) return std::string(nome.substr(3, 3));
    const std::string n = minuscolo(nome);
    // The number behind the prospects is theirs, not a building's.
    const bool prospetto = n.size() == 11 && n.starts_with("vexoral.") && e_nnn(n.substr(8));
    return prospetto || fra(kComuni, n) ? "*" : "";
}

bool fa_lo_stabile(std::string_view nome) {
    return fra(kDati, estensione_di_stabile(nome));
}

bool e_avanzo(std::string_view nome) {
    const auto onda = nome.find(".~");
    if (onda == std::string_view::npos) return false;
    const auto resto = nome.substr(onda + 2);
    const bool di_chi_scrive = !resto.empty() && resto.find_first_not_of("0123456789-") == resto.npos;
    return (resto == "~~" || di_chi_scrive) && !padrone(nome.substr(0, onda)).empty();
}

}  // namespace ambra
