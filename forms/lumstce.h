// lumstce, "Etichette fornitori": the address labels of the chosen suppliers on sheets laid out by the
// suppliers' label file.
#pragma once

#include <array>

#include "forms/etichette.h"
#include "records/fornitore.h"
#include "screen/programma.h"
#include "screen/schermo.h"

namespace ambra {

class Lumstce : public Schermo {
  public:
    explicit Lumstce(Programma& p);

    // Index of the fields of `text1`.
    static constexpr std::size_t kIndirizzo = 0, kCap = 1, kCitta = 2, kTelefono = 3, kInizio = 4, kCopie = 5;

    CampoTesto t_inizio, t_fine;
    std::array<CampoTesto, 6> text1;
    Casella traccia;
    Griglia elenco;
    Bottone command3d2, command3d5, command3d6, command3d1, stampante, indice;

    /// What `text1` is called in front of it.
    static const std::array<std::string, 6>& didascalie();

  private:
    void aggiorna();
    bool passa(const RecFornitore& f) const;
    void tutte(const std::string& copie);
    void clic(int riga);
    void stampa();

    int righe_ = 1;  ///< data rows and the heading row
};

}  // namespace ambra
