#include "ambra/archivio_compresso.h"

#include <filesystem>
#include <fstream>

#include "core/disco.h"
#include "core/errori.h"
#include "core/percorso.h"
#include "core/testo.h"
#include "parti/parti.h"

namespace ambra {

namespace {

// A dated copy is the same set without the compression.
bool copia_intera(const std::string& percorso, std::vector<FileSalvato>& file) {
    std::ifstream f(percorso_utf8(percorso), std::ios::binary);
    if (std::string inizio(9, '\0'); !f.read(inizio.data(), 9) || inizio != "Kit Ambra") return false;
    f.seekg(0, std::ios::end);
    if (f.tellg() > static_cast<std::streamoff>(kMassimoTutto)) return false;
    f.seekg(0);
    file = da_un_pezzo(std::string(std::istreambuf_iterator<char>(f), {}));
    return true;
}

}  // namespace

std::string scrivi_compresso(const std::string& percorso, const std::vector<FileSalvato>& file) {
    std::string byte, perche;
    ParteArchivi* parte = parte_archivi(perche);
    if (!parte) return perche;
    if (std::string male = parte->comprimi(file, byte); !male.empty()) return male;
    const int e = scrivi_fuori(percorso, byte);
    return e == 0 ? "" : unisci("non si può scrivere: ", a_utf8(in_parole(e)));
}

bool altrui(const std::string& percorso) {
    std::error_code ec;
    if (std::filesystem::symlink_status(percorso_utf8(percorso), ec).type() ==
        std::filesystem::file_type::not_found)
        return false;
    std::vector<FileSalvato> file;
    return !leggi_compresso(percorso, file).empty() || file.empty() || !e_manifesto(file[0]);
}

std::string leggi_compresso(const std::string& percorso, std::vector<FileSalvato>& file) {
    file.clear();
    std::error_code ec;
    if (const auto che = std::filesystem::status(percorso_utf8(percorso), ec);
        che.type() != std::filesystem::file_type::regular &&
        che.type() != std::filesystem::file_type::not_found)
        return "manca o non si legge";
    if (copia_intera(percorso, file)) return "";
    std::string perche;
    ParteArchivi* parte = parte_archivi(perche);
    return parte ? parte->espandi(percorso, file) : perche;
}

}  // namespace ambra
