#include "core/nomi_file.h"

#include "core/testo.h"

namespace ambra {

std::string nnn_di(std::string_view argomento) {
    return std::string(destra(unisci("000", rifila(argomento)), 3));
}

bool di_archivio(std::string_view percorso) {
    return maiuscolo(percorso).starts_with(maiuscolo(kCartella));
}

std::string nome_file(std::string_view nnn, std::string_view estensione) {
    return unisci(kCartella, "lum", nnn, ".", estensione);
}

}  // namespace ambra
