// mrvcau, "Riepilogo per il consulente": what each supplier was paid in a year with tax withheld, by the date
// of each payment, and how far that is from the certificates, which go by the date on which the tax was paid
// over. It writes nothing; a causale that the user changes lasts as long as the screen.
#pragma once

#include <map>
#include <string>
#include <utility>

#include "ledger/elenco_stampa.h"
#include "ledger/ritenute_documento.h"

namespace ambra {

class Mrvcau : public Schermo {
  public:
    explicit Mrvcau(Programma& p);

    CampoTesto anno;   ///< a change to another year makes the list anew
    Etichetta avviso;  ///< the two periods, and what has no date
    Griglia elenco;    ///< a click on "Causale" changes it
    ComandiElenco comandi;

  private:
    /// Cents; `certificata` is the tax of the certificates' period.
    struct Somme {
        Centesimi lordo = 0, imponibile = 0, ritenuta = 0, certificata = 0;
    };
    using Chiave = std::pair<int, Famiglia>;  // record number of the supplier

    void riempi();
    void somma_documenti();
    void somma_pagamenti(const RecFattura& f);
    void aggiungi_righe();
    void aggiungi_riga(const std::string& nome, const std::string& codfis, const std::string& causale,
                       const std::string& codice, const Somme& s);
    void cambia_causale(int riga);
    void stampa();

    int quale_anno_ = 0;
    int senza_data_ = 0;  ///< payments of the year's documents that no date places
    std::map<Chiave, Somme> somme_;
    std::vector<Chiave> chiave_di_;  ///< by row of the list, from row 1
    std::map<Chiave, std::string> causali_;
};

}  // namespace ambra
