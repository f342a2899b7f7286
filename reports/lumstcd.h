// lumstcd, "Scadenziario fatture ricevute": the instalments that fall due in a period and are still open.
#pragma once

#include <array>

#include "ledger/elenco_stampa.h"
#include "records/tabelle.h"

namespace ambra {

class Lumstcd : public Schermo {
  public:
    explicit Lumstcd(Programma& p);

    PeriodoElenco periodo;
    CampoTesto Text2;  ///< beginning of the supplier's name
    Lista Combo1;      ///< item 0 is every term
    std::array<Bottone, 7> srx;
    Griglia elenco;
    ComandiElenco comandi;

    /// Rows of the list in use, the heading row counted; blank rows below are not.
    int nrighe = 0;

  private:
    /// The filters of a fill.
    struct Filtro {
        std::string dal, al;  // yyyymmdd
        std::string nome;     // upper case
        int termine = 0;      // item of Combo1
        bool passa(const RecFattura& f, const RecFornitore& fornitore) const;
    };
    void riempi();
    void aggiungi_scadenze(const RecFattura& f, const RecFornitore& fornitore, const Filtro& filtro);
    void aggiungi_chiusura();
    void scrivi_riga(long chiave, std::initializer_list<Griglia::Contenuto> celle);
    void ordina(int etichetta);
    void stampa();

    TabellaPagamenti pagamenti_;
    double totimporto_ = 0, totscoperto_ = 0;
};

}  // namespace ambra
