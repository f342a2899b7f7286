// mrvtpag, the table of payment terms: a page of 15 rows over 60, of which the first 40 reach the file.
#pragma once

#include <array>
#include <string>

#include "records/tabelle.h"
#include "screen/programma.h"
#include "screen/schermo.h"

namespace ambra {

/// The six values behind the code of a term, as the screen shows them.
struct RigaTermine {
    std::array<std::string, 4> mesi;  ///< months to each instalment, "" for none
    bool fine = false;                ///< moved to the end of the month
    std::string giorni;               ///< days after it, "" for none
};
RigaTermine leggi_codice(std::string_view codice);
/// 16 characters. A number above 999 keeps its last three digits, a text that is no number is 0.
std::string componi_codice(const RigaTermine& r);

class Mrvtpag : public Schermo {
  public:
    explicit Mrvtpag(Programma& p);

    static constexpr std::size_t kRighe = 15;
    Etichetta frame, l_modalita, l_frazionamento, l_giorni;
    std::array<Etichetta, 3> guida;
    Scorrimento selpag;                    ///< number of the term in the first row
    std::array<Etichetta, kRighe> numero;  ///< number of the term of each row
    std::array<CampoTesto, kRighe> text1, sc1, sc2, sc3, sc4, sc5;
    std::array<Casella, kRighe> fine;
    std::array<Bottone, 2> indice;

  private:
    void registra();
    void collega_riga(std::size_t k);
    void mostra_pagina();
    void componi(std::size_t k);
    void riga_seguente(std::size_t k);
    TabellaPagamenti::Termine& termine(std::size_t k);

    TabellaPagamenti tabella_;
    bool riempie_ = false;
};

}  // namespace ambra
