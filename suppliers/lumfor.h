// lumfor, the supplier register: one supplier at a time over the sorted index, inserted, changed, deleted,
// searched, sorted, duplicated. Nothing that is typed is checked.
#pragma once

#include <vector>

#include "ledger/conti.h"
#include "suppliers/consultazione.h"

namespace ambra {

class Lumfor : public Schermo {
  public:
    explicit Lumfor(Programma& p);

    Consultazione dati;
    Griglia elenco;  ///< the accounts, for the choice of the default one
    Bottone b_copia{"Copia l'indirizzo della sede legale"};
    Bottone b_ins{"Inserimento"}, b_mod{"Modifica"}, b_eli{"Elimina"}, b_dup{"Duplica"}, b_srt{"Riordina"},
        b_fine{"Fine lavoro"};
    Etichetta siono;  ///< the pair of confirmation
    Bottone b_conferma{"Conferma"}, b_annulla{"Annulla"};
    Etichetta srt, Label4{"Riordino archivio in corso..."};
    Progresso srtval;

    static constexpr int kSfoglia = 99, kInserisce = 1, kModifica = 2;
    int stato = kSfoglia;

    /// Sorts the index if it is out of order, and shows the first supplier.
    void ordinasrf();
    /// Rebuilds the index from the suppliers, sorts it, shows the first.
    void ricostruiscisrf();

  private:
    void registra();
    void collega();
    void carica_conti();
    void mostra();
    void sposta();
    void entra(int nuovo);
    void esci();
    void toccato();
    void segna_conto(int riga);
    void scegli_conto(int riga);
    void copia_indirizzo();
    void annulla();
    void conferma();
    FornitoreInMano::Esito inserisci();
    FornitoreInMano::Esito modifica();
    void elimina();
    void duplica();
    bool duplica_ovunque(const RecFornitore& f);
    void mostra_riordino(bool in_corso);
    bool riordina(bool da_rifare);

    std::vector<RigaConto> conti_;
    int conto_segnato_ = 0;  // row of the grid, 0 for none
};

}  // namespace ambra
