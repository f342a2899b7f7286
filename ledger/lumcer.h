// lumcer, "Stampa certificazioni": the yearly certificates of withheld tax, one print job a supplier.
//
// The text is the user's own: a rich-text prospect in `vexoral.NNN`, with marks of nine characters that the
// numbers replace. Certificate numbers run from what the user types and are stored nowhere.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "print/testoricco.h"
#include "records/fornitore.h"
#include "records/stabile.h"
#include "screen/schermo.h"

namespace ambra {

class Lumcer : public Schermo {
  public:
    explicit Lumcer(Programma& p);

    Lista tabulato;                  ///< "NNN name" of each prospect
    std::array<CampoData, 2> text1;  ///< the period in which the tax was paid over
    CampoTesto Text2;                ///< first certificate number
    Griglia elenco;
    Bottone certif, stampante, command3d2, command3d1, indice;

  private:
    /// Sums of one supplier in the period, euro.
    struct Somme {
        double documenti = 0, imponibile = 0, ritenuta = 0, esente = 0;
    };
    /// A mark's code and its replacement.
    using Valori = std::array<std::string, 21>;

    void loadprospetto();
    void prepara_elenco();
    void aggiornalista();
    std::vector<Somme> somma_fatture();
    void scambia(int riga);
    bool da_stampare(int riga) const;

    void certificazioni();
    std::string file_prospetto() const;
    void certificazione(int riga, const std::string& file);
    Valori valori(int riga, const RecFornitore& f) const;
    void stampa_lista();

    TestoRicco testo_;
    RecStabile stabile_{};
    RecStabile2 stabile2_{};
};

}  // namespace ambra
