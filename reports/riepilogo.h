// What the two purchase summaries share: the fields that narrow them, which documents and suppliers they
// take, and the table of sums by supplier.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "ledger/elenco_stampa.h"

namespace ambra {

/// Sums by record number of the supplier, 0 to 1000, and by kind, 0 to 3. A supplier past the end has no
/// place in it: what is added is lost, what is read is 0.
class TabellaFornitori {
  public:
    static constexpr int kUltimo = 1000;
    void azzera() { somme_.fill({}); }
    void aggiungi(int fornitore, std::size_t genere, double importo) {
        if (dentro(fornitore)) somme_[static_cast<std::size_t>(fornitore)][genere] += importo;
    }
    void metti(int fornitore, std::size_t genere, double importo) {
        if (dentro(fornitore)) somme_[static_cast<std::size_t>(fornitore)][genere] = importo;
    }
    double operator()(int fornitore, std::size_t genere) const {
        return dentro(fornitore) ? somme_[static_cast<std::size_t>(fornitore)][genere] : 0;
    }

  private:
    static bool dentro(int n) { return n >= 0 && n <= kUltimo; }
    std::array<std::array<double, 4>, kUltimo + 1> somme_{};
};

/// The amounts of a document as a summary counts them: negative for a credit note.
struct ImportiRiepilogo {
    double impon = 0, ivai = 0, esent = 0;
    double totale() const { return impon + ivai + esent; }
};
ImportiRiepilogo importi_riepilogo(const RecFattura& f);

/// What a summary takes, as its fields stood when the list was asked for.
struct FiltroRiepilogo {
    std::string dal, al;  ///< registration dates, yyyymmdd, both included
    IntervalloNomi nomi;
    bool senza_particolari = false;  ///< water, gas and energy are left out

    bool prende(const RecFattura& f) const;
    bool esclude(const RecFornitore& f) const;
};

/// The filters of both screens.
struct CampiRiepilogo {
    NomiElenco nomi;
    PeriodoElenco periodo;
    Casella Eli{"Elimina fornitori particolari (acqua gas energia)"};

    void monta(Schermo& s);
    FiltroRiepilogo filtro() const;
    /// Enter in each of them and then of `altri` hands the focus to the next one.
    void invio_al_prossimo(Schermo& s, const std::vector<Controllo*>& altri);
};

/// The lines that say who a supplier is: name, street, town, tax code, and birth for a natural person.
std::vector<std::string> righe_identita(const RecFornitore& f);

}  // namespace ambra
