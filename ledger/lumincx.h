// lumincx, the posting screen: the one road by which anything reaches the building's accounts.
//
// A caller brings it a half-filled outgoing movement (`addebita` below is the whole road: fill, show,
// wait, outcome). Storing writes one movement, moves two balances, for a single condomino adds to his
// charges, and recomputes every share. A fresh object for each posting: either command unloads it.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>

#include "ledger/quote.h"
#include "records/movimento.h"
#include "records/tabelle.h"
#include "screen/programma.h"
#include "screen/schermo.h"

namespace ambra {

/// What a caller hands over to the posting screen.
struct MovimentoUscita {
    std::string data;            ///< dd/mm/yyyy
    std::string descrizione[3];  ///< the lines of the movement
    double importo = 0;          ///< euro; handed over even when 0
    int contodefault = 0;        ///< account to preselect, a record number of .pia
    bool singolo = false;        ///< charges a single condomino, not the whole building
};

class Lumincx : public Schermo {
  public:
    explicit Lumincx(Programma& p);

    /// Takes over what the caller hands over; gives where the outcome will stand.
    std::shared_ptr<const std::optional<int>> prepara(const MovimentoUscita& u);

    CampoData text;                   ///< date of the movement
    std::array<CampoTesto, 5> text1;  ///< 1 to 3 the description, 4 the amount as number text; 0 is not used
    Lista condom, Combo1;             ///< the condomino; the counter-account
    Griglia elenco;                   ///< the accounts
    Etichetta newconto;               ///< title of the group of fields
    Etichetta etichetta_condom;       ///< "Condomino", shown and hidden with its list
    Etichetta conto;                  ///< name of the account in use
    std::array<Etichetta, 3> dove;    ///< where the money goes: account, counter-account, condomino
    std::array<Bottone, 2> b_fine;    ///< 0 "Annulla", 1 "Memorizza"

  private:
    void caricaconti();
    void apertura();
    void listaconti();
    void preseleziona();
    void scegli_riga(int riga);
    void mostra_percorso();

    void memorizza();
    void annulla();
    bool registra(double importo);
    void concludi(int esito);
    RecMovimento movimento(double importo) const;
    int condomino_scelto() const;
    int contropartita() const { return Combo1.scelta() + 1; }

    TabellaVoci voci_;
    int voce_ = 0, conto_ = 0;  ///< the account in use; 0 for none
    int proposto_ = 0;          ///< account to preselect, as this posting's caller handed it over
    bool singolo_ = false;      ///< a single condomino is charged
    /// Outlives the screen: 1 stored, -1 cancelled.
    std::shared_ptr<std::optional<int>> esito_ = std::make_shared<std::optional<int>>();
    BufferLedger buffer_;  ///< the records in hand
};

enum class EsitoAddebito {
    non_iniziato,  ///< another posting is open; it came to the front
    memorizzato,
    annullato
};
/// Fills the posting screen, shows it and waits for its outcome; `chi` does nothing meanwhile.
EsitoAddebito addebita(Schermo& chi, const MovimentoUscita& u);
/// "Fattura 12 del 03/01/2024", or "Nota credito ..." for a credit note.
std::string descrizione_documento(bool nota_credito, std::string_view numero, std::string_view data);

}  // namespace ambra
