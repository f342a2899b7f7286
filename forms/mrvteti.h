// mrvteti, "Impostazione marginatura etichetta": the geometry of a sheet of labels and the place of each
// field on the sample label. Every change goes into the table at once; "Conferma" writes the file.
#pragma once

#include <array>
#include <functional>

#include "forms/etichette.h"
#include "screen/programma.h"
#include "screen/schermo.h"

namespace ambra {

class Mrvteti : public Schermo {
  public:
    explicit Mrvteti(Programma& p);

    static constexpr int kVisibili = 5;

    Etichetta guida;
    std::array<Etichetta, 5> frame;   ///< the titles of the five groups of fields
    std::array<CampoTesto, 13> text;  ///< 0 to 5 sheet and borders, 6 and 7 columns and rows, 8 to 12 texts
    std::array<Etichetta, kVisibili> campo;
    std::array<CampoTesto, kVisibili> Text1, Text2;  ///< millimetres from the label's upper left corner
    std::array<Bottone, kVisibili> carattere, colore;
    Scorrimento VScroll1;           ///< fields above the five that show
    std::array<Bottone, 2> indice;  ///< 0 "Conferma", 1 "Annulla"

    std::function<void()> mutato;  ///< for the picture: the table or the rows that show have changed
    /// The table as it stands, for the picture of the label.
    const Etic& etic() const { return etic_; }
    const std::vector<std::string>& campi() const { return campi_etichetta(tipo_); }
    /// Field of the first row that shows, from 1.
    int prima_riga() const { return riga_di(0); }
    /// What the controls are called in front of them.
    static const std::array<std::string, 13>& didascalie();

  private:
    void carica();
    int riga_di(std::size_t visibile) const { return primo_ + static_cast<int>(visibile) + 1; }
    void mostra_righe();
    void riprendi(std::size_t visibile);
    void scorri();
    void scegli_carattere(std::size_t i);
    void scegli_colore(std::size_t i);
    void conferma();
    void avvisa() const {
        if (mutato) mutato();
    }

    int tipo_;
    int primo_ = 0;
    Etic etic_;
};

}  // namespace ambra
