// lumstca, "Elenco ritenute acconto": every document with a withholding, by the due date of the tax.
#pragma once

#include <array>

#include "ledger/elenco_stampa.h"

namespace ambra {

class Lumstca : public Schermo {
  public:
    explicit Lumstca(Programma& p);

    PeriodoElenco periodo;
    Casella rac{"Visualizza solo ritenute non ancora versate"};
    std::array<Bottone, 7> srx;
    Griglia elenco;
    ComandiElenco comandi;

  private:
    void riempi();
    void aggiungi_documento(int n, const RecFattura& f, double rit);
    void aggiungi_chiusura();
    void ordina(int etichetta);
    void stampa();

    RecFornitore fornitore_{};
    int quante_ = 0;  // documents, as counted when the screen opened
    double totale_ = 0, ritenute_ = 0;
};

}  // namespace ambra
