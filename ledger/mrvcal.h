// mrvcal, "Scadenze delle ritenute": what withheld tax is due when, with which code, of which payments. It
// writes nothing: the payment over is recorded on lumpgr, where the documents of a term can be marked from
// here.
#pragma once

#include <string>
#include <vector>

#include "ledger/elenco_stampa.h"
#include "ledger/scadenze_ritenute.h"

namespace ambra {

class Mrvcal : public Schermo {
  public:
    explicit Mrvcal(Programma& p);

    Etichetta finora;   ///< what the 4 % has gathered towards its threshold; hidden when nothing grows
    Griglia elenco;     ///< a row per term, code and month; a click chooses it
    Etichetta scelto;   ///< what the choice is part of
    Griglia dettaglio;  ///< the payments of the chosen row
    Griglia senza;      ///< payments without a date; hidden when there are none
    Bottone segna, riepilogo;
    ComandiElenco comandi;

  private:
    void riempi();
    void aggiungi_riga(const RigaRitenute& r);
    std::string nota(const RigaRitenute& r, const std::vector<std::size_t>& documenti) const;
    StatoTermine stato_di(const Termine& t) const { return stato(t, prog.piattaforma.today()); }
    std::string importo(Centesimi c) const;

    void scegli(int riga);
    void mostra_finora();
    void mostra_scelta();
    void aggiungi_pagamento(Griglia& g, const PagamentoRitenuta& p);
    void segna_nel_versamento();
    void stampa();

    ScadenzeRitenute ritenute_;
    int scelta_ = 0;  ///< row of `elenco`, 0 for none
};

}  // namespace ambra
