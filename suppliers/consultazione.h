// One supplier at a time out of the name index, found by cursor or by name: what the register and the
// picker share. Errors are passed over; a failed read leaves the records in hand as they were.
#pragma once

#include <functional>

#include "records/nome.h"
#include "records/totali.h"
#include "screen/programma.h"
#include "suppliers/scheda.h"

namespace ambra {

struct Consultazione {
    explicit Consultazione(Programma& p);

    SchedaFornitore scheda;
    Etichetta l_nome, l_cerca;  ///< the captions of the search
    CampoTesto nome;
    Bottone b_cerca{"Cerca"}, b_lista{"Lista"};
    Scorrimento HScroll1;

    int movepos = 0;  ///< position in the index of the supplier shown, 0 in an empty archive
    int moverec = 0;  ///< its record number
    RecTotali totali{};
    RecNome indice{};
    RecFornitore fornitore{};

    void registra_ricerca(Schermo& s);
    int quanti() const { return totali.parola[0]; }
    /// Whether a live supplier is shown.
    bool vivo() const { return moverec > 0 && ambra::vivo(fornitore); }
    void leggi_totali();
    void scrivi_totali();
    /// Shows the supplier at `movepos`.
    void mostra();
    /// Searches the text of `nome`; `arriva` shows the supplier at `movepos` in the screen's own way.
    void cercafor(Schermo& s, const std::function<void()>& arriva);
    /// Opens the list for caller `chi`, narrowed by the text of `nome`.
    void apri_lista(int chi);

  private:
    Programma& prog_;
};

/// Binary search of a name that begins with `chiave` (upper case) among the first `quanti` of the index:
/// some position, not necessarily the first, or 0. An index out of order can miss.
int cerca_nome(FileDi<RecNome>& srf, int quanti, std::string_view chiave);

/// The values of `nuovafattura`: who has the list of suppliers open.
namespace lista {
constexpr int niente = 0;
constexpr int per_lumfor = 1;  ///< for the picker: set up anew on the next activation
constexpr int per_lumftem = 2;
constexpr int scelto = 99;  ///< a name stands in the caller's `nome` and must be searched
}  // namespace lista

}  // namespace ambra
