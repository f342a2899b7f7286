// lumstcy, "Riepilogo acquisti analitico": every document of a period under its supplier, with totals and a
// closing summary.
#pragma once

#include "reports/riepilogo.h"

namespace ambra {

class Lumstcy : public Schermo {
  public:
    explicit Lumstcy(Programma& p);

    CampiRiepilogo campi;
    CampoTesto Text3;
    Griglia elenco;
    ComandiElenco comandi;

    /// Rebuilds the list with the filters as they stand.
    void aggiornalista();
    void stampa();

    /// Rows of the list, the heading included; the filler rows below are not counted.
    int nrighe = 1;

  private:
    struct Documento {
        Testo<8> datadoc;
        Testo<10> numdoc;
        ImportiRiepilogo importi;
    };
    using Somme = std::array<double, 3>;  // total, taxable, tax

    void documenti_di(std::span<const Documento> documenti, const RecFornitore& f, int numero);
    void riga_totali(std::string_view titolo, const Somme& somme);
    void riepilogo(int quanti);

    TabellaFornitori tabfor_;
    int progressivo_ = 0;
};

}  // namespace ambra
