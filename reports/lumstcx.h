// lumstcx, "Riepilogo acquisti sintetico": one row a supplier over a turnover threshold, the source of the
// ministerial form and of the export.
#pragma once

#include "reports/quadroac.h"
#include "reports/riepilogo.h"

namespace ambra {

class Lumstcx : public Schermo {
  public:
    explicit Lumstcx(Programma& p);

    CampiRiepilogo campi;
    std::array<CampoTesto, 4> Text3;  ///< year, threshold, offsets across and down in millimetres
    Griglia elenco;
    std::array<Etichetta, 2> Label1;  ///< "Esporta", "Quadro AC"
    ComandiElenco comandi;
    Etichetta dove;  ///< after an export: where the file lies

    /// Rebuilds the list with the filters as they stand.
    void aggiornalista();
    void stampa();
    void quadro_ac();
    void esportazione();
    /// Rewrites the file of the offsets; no command does.
    void salvatab();

    /// Rows of the list, the heading included; the filler rows below are not counted.
    int nrighe = 1;

  private:
    void loadtab();
    void somma_documenti(const FiltroRiepilogo& filtro);
    /// The suppliers of the list in the order shown, without its rules and totals.
    std::vector<RigaQuadro> fornitori_in_lista() const;

    TabellaFornitori tabfor_;
    DatiQuadro dati_;
};

}  // namespace ambra
