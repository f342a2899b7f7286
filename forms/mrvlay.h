// mrvlay, "Impostazione modulistica": the editor of a form's coordinates. The working value `tipomodulo`
// says which form it opens on; this system's command tree opens the ministerial one.
#pragma once

#include "forms/moduli.h"
#include "screen/programma.h"
#include "screen/schermo.h"

namespace ambra {

class Mrvlay : public Schermo {
  public:
    explicit Mrvlay(Programma& p);

    Griglia elenco;
    Etichetta nomcam;                   ///< name of the chosen field
    std::array<CampoTesto, 2> Text1;    ///< its position across and down, millimetres
    std::array<Bottone, 2> Command3d5;  ///< its font, its colour
    Etichetta car;                      ///< a sample of its font
    std::array<CampoTesto, 2> Text2;    ///< subject and body of the mail, kinds 1, 2 and 4
    Casella bianca;                     ///< the sample prints the blank form too
    Bottone Command3d6;
    std::array<Bottone, 6> indice;

    TabellaModulo tabella;  ///< the fields of the form

    int tipo() const { return tipo_; }
    /// The layout as it stands in the window.
    const Layout& layout() const { return layout_; }
    /// The chosen row, 0 for none.
    int riga() const { return riga_; }
    /// The view's picture of the sheet: some coordinate or font has changed.
    std::function<void()> mutato;

  private:
    void carica();
    void salva();
    void riempi_elenco();
    void scegli(int riga);
    void mostra_scelta();
    void scrivi_riga(int riga);
    void posizione(std::size_t quale, const std::string& testo);
    bool lascia_posizione(std::size_t quale);
    void scegli_carattere();
    void scegli_colore();
    void comando(std::size_t quale);
    void stampa_esempio();
    void stampa_coordinate();

    CampoLayout& campo(int riga) { return layout_.campo[static_cast<std::size_t>(riga)]; }

    int tipo_;
    Layout layout_;
    TestiLiberi testi_;  // the suite designer's; shown by nothing here
    int riga_ = 0;
};

/// The font of a row, as a dialog or a printer takes it; rubbish in the size is 0.
Carattere carattere_di(const CampoLayout& c);

}  // namespace ambra
