#include "ambra/comandi.h"

#include <iostream>
#include <vector>

#include "core/disco.h"

namespace ambra {

std::optional<Data> oggi_di(const std::string& opzione) {
    if (!opzione.empty()) return data_valida(opzione);
    const std::tm tm = adesso();
    return Data{tm.tm_mday, tm.tm_mon + 1, tm.tm_year + 1900};
}

std::optional<std::string> drive_di(const std::string& opzione) {
    if (opzione.empty()) return radice_corrente();
    std::vector<std::string> nomi;
    if (disco_vero(opzione)->elenca("", nomi) == 0) return opzione;
    non_fatto(opzione + ": la cartella manca o non si legge");
    return {};
}

void aggiungi_drive(CLI::App& comando, std::string& drive) {
    comando.add_option("--drive", drive, "Cartella che fa da disco corrente")->type_name("CARTELLA");
}

int non_fatto(const std::string& perche) {
    std::cerr << "ambra: " << perche << '\n';
    return 2;
}

}  // namespace ambra
