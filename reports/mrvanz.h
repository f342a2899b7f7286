// mrvanz, "Scoperto per anzianità": what is still open towards each supplier, by how long it has been due at
// a date. It writes nothing.
#pragma once

#include <array>
#include <string>
#include <unordered_map>

#include "ledger/elenco_stampa.h"
#include "reports/anzianita.h"

namespace ambra {

class Mrvanz : public Schermo {
  public:
    explicit Mrvanz(Programma& p);

    std::array<CampoData, 1> text1;  ///< the date; each valid one makes the list anew
    Griglia elenco;
    ComandiElenco comandi;

  private:
    void riempi();
    void aggiungi_righe(const std::unordered_map<int, Anzianita>& somme);
    void aggiungi_riga(const std::string& nome, const Anzianita& a);
    void stampa();
};

}  // namespace ambra
