// One supplier at a time out of the name index, found by cursor or by name: what the register and the
// picker share. Errors are passed over.
#pragma once

#include <functional>
#include <memory>

#include "archivio/fornitore.h"
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
    FornitoreInMano mano;  ///< the supplier shown, for whatever is done to him

    void registra_ricerca(Schermo& s);
    int quanti() const { return totali.parola[0]; }
    /// Whether a live supplier is shown.
    bool vivo() const { return moverec > 0 && ambra::vivo(fornitore); }
    void leggi_totali();
    /// Shows the supplier at `movepos`.
    void mostra();
    /// Shows the supplier at `movepos` in the screen's own way; unset: `mostra`.
    std::function<void()> arriva;
    /// Searches the supplier chosen in the list, if his name stands in `nome` still, else the text of `nome`.
    void cercafor();
    /// Opens the list for caller `chi`, narrowed by the text of `nome`.
    void apri_lista(int chi);
    /// The list hands over the supplier of record `n`: he is searched at the next activation of the screen.
    void scelto(long n, const std::string& chi);
    /// Shows him at once where another window stands over this one.
    void anticipa();
    /// Something else was done with the supplier shown: nobody waits any more.
    void dimentica() { scelto_ = 0; }
    /// A supplier chosen in the list waits to be searched. Another name in the search gives him up; where the
    /// search is out of sight, something is being typed, and he waits on.
    bool sospeso() const { return scelto_ > 0 && nome.visible() && nome.testo() == nome_scelto_; }

  private:
    int cerca();
    int cerca_scelto();
    void vai(int posto);
    void mostra_trovato();

    Programma& prog_;
    Schermo* schermo_ = nullptr;
    long scelto_ = 0;  // record chosen in the list and not searched yet
    std::string nome_scelto_;
    std::shared_ptr<Consultazione> io_;  // for the list, which may outlive this
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
