// lumpgr, the run that pays withheld tax over to the treasury: the user marks documents in a list, the
// date of payment is stamped into each, and one movement for the total may be posted.
//
// The mark is the colour of a row and nothing else.
#pragma once

#include <array>
#include <span>

#include "ledger/lumincx.h"
#include "records/fattura.h"
#include "records/fornitore.h"
#include "records/totali.h"
#include "screen/programma.h"
#include "screen/schermo.h"

namespace ambra {

class Lumpgr : public Schermo {
  public:
    explicit Lumpgr(Programma& p);

    Etichetta Label1;
    Griglia elenco;
    std::array<CampoData, 1> text1;  ///< date of the payment
    CampoTesto txt;                  ///< total of the marked rows
    Bottone stampante, command3d1, command3d2, indice;

    /// True if the row is marked as paid over.
    bool segnata(int riga) const;
    /// Clicks the rows of the documents of these records, ascending.
    void segna(std::span<const long> record);

  private:
    void apertura();
    void riempi_elenco();
    void clic(int riga);
    void colora_riga(int riga, long colore);

    void confermato();
    DocumentoInMano::Esito tutte_ritrovate();
    DocumentoInMano::Esito versa();
    EsitoAddebito addebita_ritenute();
    void stampa();

    RecFattura fattura_{};
    RecFornitore fornitore_{};
    RecTotali totali_{};
    DocumentiVisti visti_{prog.arc};  ///< the document of each row, by its key
    int piene_ = 0;                   ///< rows of the list that hold a document
};

}  // namespace ambra
