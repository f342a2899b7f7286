// What the list screens share: the period, the range of names, the four commands, the frame of a fill and
// the print-out that is made from the list as it stands.
//
// A list screen holds these pieces as members and mounts them in tab order in its constructor:
//
//     nomi.monta(*this, "Dal fornitore", "Al fornitore");
//     periodo.monta(*this);
//     aggiungi("elenco", elenco);
//     comandi.monta(*this, [this] { riempi(); }, [this] { stampa(); });
#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "ledger/documenti.h"
#include "screen/programma.h"
#include "screen/schermo.h"
#include "screen/stampa.h"

namespace ambra {

/// "Imposta", "Aggiorna lista", "Stampa", "Fine".
struct ComandiElenco {
    Bottone command3d1{"Imposta"}, command3d2{"Aggiorna lista"}, stampante{"Stampa"}, indice{"Fine"};

    /// "Imposta" opens the printer set-up, "Fine" closes the screen.
    void monta(Schermo& s, std::function<void()> aggiorna, std::function<void()> stampa);
};

/// `text1`(0) and `text1`(1): the period, the whole current year by default.
struct PeriodoElenco {
    std::array<CampoData, 2> text1;

    /// Enter in the first field moves on to the second.
    void monta(Schermo& s, const std::string& dalla = "Dalla data", const std::string& alla = "Alla data");
    /// The ends as yyyymmdd, by the positions of dd/mm/yyyy whatever the fields hold.
    std::string dal() const { return chiave(text1[0].testo()); }
    std::string al() const { return chiave(text1[1].testo()); }

  private:
    static std::string chiave(std::string_view mostrata);
};

/// `t_inizio` and `t_fine`: the range of supplier names, empty by default.
struct NomiElenco {
    CampoTesto t_inizio, t_fine;

    /// Enter in the first field moves on to the second.
    void monta(Schermo& s, const std::string& dal, const std::string& al);
    IntervalloNomi intervallo() const { return {t_inizio.testo(), t_fine.testo()}; }
};

/// The frame of a fill: hourglass, the error number cleared, redraw off, the list cut to its heading row.
/// At the end of the block redraw and pointer come back.
class Riempimento {
  public:
    Riempimento(Programma& prog, Griglia& elenco) : attesa_(prog), elenco_(elenco) {
        prog.err.azzera();
        elenco_.ridisegna(false);
        elenco_.righe(1);
    }
    ~Riempimento() { elenco_.ridisegna(true); }
    Riempimento(const Riempimento&) = delete;
    Riempimento& operator=(const Riempimento&) = delete;

  private:
    Clessidra attesa_;
    Griglia& elenco_;
};

/// Key of a total row; those of data rows are above 0, of blank rows 0.
constexpr long kRigaTotale = -1;

/// Adds blank rows until the grid has `righe`, the heading row counted.
inline void completa(Griglia& elenco, int righe) {
    if (elenco.righe() < righe) elenco.righe(righe);
}

/// A column of a print-out and the grid column that it is taken from.
struct ColonnaElenco {
    ColonnaStampa stampa;
    int dalla = 0;
};

/// A print-out of a list.
struct StampaElenco {
    std::string domanda = "Iniziare la stampa?";
    std::string titolo_domanda;
    std::string titolo;
    std::vector<ColonnaElenco> colonne;
    int colx = 0;  ///< columns declared; 0 is as many as described
};

/// Asks, then prints rows 1 to `righe` - 1 of the list in their present order. Rows for which `salta` is
/// true are left out.
void stampa_elenco(Programma& prog, const Griglia& elenco, int righe, const StampaElenco& come,
                   const std::function<bool(int riga)>& salta = {});

}  // namespace ambra
