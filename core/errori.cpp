#include "core/errori.h"

#include "core/testo.h"

namespace ambra {

std::string in_parole(int numero) {
    const auto detto = [numero]() -> std::string {
        switch (numero) {
            case errore::file_mancante:
                return "il file manca";
            case errore::modo_errato:
                return "il file è in sola lettura"_it;
            case errore::gia_aperto:
                return "il file è già aperto"_it;
            case errore::dispositivo:
                return "guasto del disco";
            case errore::disco_pieno:
                return "disco pieno";
            case errore::oltre_la_fine:
                return "il file finisce prima";
            case 67:
                return "troppi file aperti";
            case errore::permesso_negato:
                return "permesso negato";
            case errore::disco_non_pronto:
                return "disco non pronto";
            case errore::accesso:
                return "accesso al file rifiutato";
            case errore::percorso_mancante:
                return "la cartella manca";
            default:
                return "";
        }
    }();
    const std::string n = unisci("errore ", std::to_string(numero));
    return detto.empty() ? n : unisci(detto, " (", n, ")");
}

}  // namespace ambra
