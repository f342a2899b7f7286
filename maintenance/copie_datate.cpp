#include "maintenance/copie_datate.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <filesystem>
#include <string_view>
#include <utility>

#include "core/errori.h"
#include "core/percorso.h"
#include "core/riga.h"
#include "core/testo.h"
#include "maintenance/sha256.h"

namespace ambra {

namespace {

constexpr std::string_view kFine = ".copia";

// In the order of Motivo: as the name of the file tells it, and as people read it.
constexpr std::array<std::pair<std::string_view, std::string_view>, 4> kMotivi = {{
    {"riordino", "prima del riordino"},
    {"azzeramento", "prima dell'azzeramento"},
    {"indice", "prima di rifare l'indice dei fornitori"},
    {"riparazione", "prima di una riparazione"},
}};

// "007-20240315-101502-riordino.copia"; a second one of the same second has ".2" in front of the end.
bool leggi_nome(const std::string& nome, const std::string& nnn, CopiaDatata& c) {
    if (nome.size() < 21 || !nome.starts_with(nnn + "-") || !nome.ends_with(kFine)) return false;
    const std::string_view n = nome;
    const auto quando = n.substr(4, 15);
    if (quando.find_first_not_of("0123456789-") != quando.npos) return false;
    c.file = nome;
    c.momento = unisci(quando.substr(6, 2), "/", quando.substr(4, 2), "/", quando.substr(0, 4), " ",
                       quando.substr(9, 2), ":", quando.substr(11, 2));
    for (const auto& [corto, lungo] : kMotivi)
        if (n.substr(20).starts_with(corto)) c.motivo = lungo;
    return true;
}

void togli_le_vecchie(Disco& fuori, const std::string& nnn) {
    const auto tutte = copie_di(fuori, nnn);
    for (std::size_t i = kCopieTenute; i < tutte.size(); ++i) fuori.elimina("\\" + tutte[i].file);
}

// The folder of programs' data of this user, as his system tells it.
std::filesystem::path dati_dell_utente() {
    for (const char* quale : {"XDG_DATA_HOME", "LOCALAPPDATA"})
        if (const std::string s = dell_ambiente(quale); !s.empty()) return percorso_utf8(s);
    const std::string casa = dell_ambiente("HOME");
    return casa.empty() ? std::filesystem::path() : percorso_utf8(casa) / ".local" / "share";
}

}  // namespace

std::string fai_copia(Disco& disco, Disco& fuori, const std::string& nnn, Motivo motivo,
                      const std::string& momento, const std::function<void()>& pausa) {
    std::vector<FileSalvato> file;
    if (std::string male = raccogli(disco, nnn, file, pausa); !male.empty()) return male;
    const std::string pezzo = in_un_pezzo(file);
    std::string ultima;
    if (const auto prima = copie_di(fuori, nnn); !prima.empty())
        if (fuori.leggi_tutto("\\" + prima[0].file, ultima) == 0 && ultima == pezzo) return "";
    const std::string base =
        unisci("\\", nnn, "-", momento, "-", kMotivi[static_cast<std::size_t>(motivo)].first);
    int e = fuori.scrivi_nuovo(unisci(base, kFine), pezzo);
    for (int n = 2; e == errore::accesso && n < 100; ++n)
        e = fuori.scrivi_nuovo(unisci(base, ".", std::to_string(n), kFine), pezzo);
    if (e == 0) e = fuori.consolida_cartella(unisci(base, kFine));
    if (e != 0) return in_parole(e);
    togli_le_vecchie(fuori, nnn);
    return "";
}

std::vector<CopiaDatata> copie_di(Disco& fuori, const std::string& nnn) {
    std::vector<std::string> nomi;
    std::vector<CopiaDatata> copie;
    fuori.elenca("", nomi);
    std::sort(nomi.rbegin(), nomi.rend());
    for (const auto& n : nomi)
        if (CopiaDatata c; leggi_nome(n, nnn, c)) copie.push_back(std::move(c));
    return copie;
}

std::string leggi_copia(Disco& fuori, const std::string& nnn, const std::string& nome,
                        std::vector<FileSalvato>& file) {
    std::string pezzo, di_chi;
    if (const int e = fuori.leggi_tutto("\\" + nome, pezzo)) return in_parole(e);
    file = da_un_pezzo(pezzo);
    if (std::string male = difetto(file, di_chi); !male.empty()) return male;
    return di_chi == nnn ? "" : unisci("una copia di un altro stabile: ", di_chi);
}

std::unique_ptr<Disco> cartella_delle_copie(const std::string& radice) {
    const auto dati = dati_dell_utente();
    if (dati.empty()) return nullptr;
    std::error_code ec;
    const auto vera = std::filesystem::weakly_canonical(percorso_utf8(radice), ec);
    const auto qui = dati / "kit-ambra" / "copie" / sha256(in_utf8(vera)).substr(0, 12);
    std::filesystem::create_directories(qui, ec);
    return ec ? nullptr : disco_vero(in_utf8(qui));
}

std::string momento_di_adesso() {
    const std::time_t t = std::time(nullptr);
    const std::tm* tm = std::localtime(&t);
    char b[40];
    std::strftime(b, sizeof b, "%Y%m%d-%H%M%S", tm);
    return b;
}

}  // namespace ambra
