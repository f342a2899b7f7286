// The run-time error number: set by a failed step, it stays until somebody clears it.
#pragma once

#include <string>

namespace ambra {

namespace errore {
constexpr int overflow = 6;
constexpr int indice_fuori = 9;
constexpr int numero_file = 52;
constexpr int file_mancante = 53;
constexpr int modo_errato = 54;
constexpr int gia_aperto = 55;
constexpr int dispositivo = 57;
constexpr int disco_pieno = 61;
constexpr int oltre_la_fine = 62;
constexpr int numero_record = 63;
constexpr int troppi_file = 67;
constexpr int permesso_negato = 70;
constexpr int disco_non_pronto = 71;
constexpr int accesso = 75;
constexpr int percorso_mancante = 76;
}  // namespace errore

/// An error number as people read it: "permesso negato (errore 70)". Windows-1252.
std::string in_parole(int numero);

/// The error number of a program. 0 is none.
struct Errore {
    int numero = 0;

    void azzera() { numero = 0; }
    /// Keeps `n` unless it is 0; tells whether the step worked.
    bool esito(int n) {
        if (n != 0) numero = n;
        return n == 0;
    }
    explicit operator bool() const { return numero > 0; }
};

}  // namespace ambra
