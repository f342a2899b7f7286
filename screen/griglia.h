// The grid: rows of cell texts under one heading row, with sparse cell colours and a stable sort.
//
// Rows and columns count from 0; row 0 is the heading row, so that `righe()` of an empty list is 1.
// Texts live in one pool and rows are sorted by reference: 30,000 rows fill and sort in milliseconds.
// Out-of-range cells read as empty and are not written (a grid's limits are never a crash).
#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "screen/controlli.h"

namespace ambra {

enum class Allineamento { sinistra, destra, centro };

struct Colonna {
    std::string titolo;
    int larghezza = 0;  ///< twips; 0 is past the visible part, `kResto` takes what is left
    Allineamento verso = Allineamento::sinistra;
};
constexpr int kResto = -1;

enum class Ordine { generico, numerico };

class Griglia : public Controllo {
  public:
    Griglia() : Controllo(Genere::grid) {}

    /// Where a text lies in the pool of its grid.
    struct Cella {
        std::uint32_t da = 0, n = 0;
    };
    /// What a new cell shows: a text of its own, or one that the pool has already.
    struct Contenuto {
        Contenuto(std::string_view t) : testo(t.data()), cella{0, static_cast<std::uint32_t>(t.size())} {}
        Contenuto(const std::string& t) : Contenuto(std::string_view(t)) {}
        Contenuto(const char* t) : Contenuto(std::string_view(t)) {}
        Contenuto(Cella c) : testo(nullptr), cella(c) {}

        const char* testo;  // null: in the pool
        Cella cella;
    };

    // ---- shape ----
    /// Sets the columns; all rows but the heading go. `larghezza` is that of the control in twips, from
    /// which a column of width `kResto` takes what the others and `margine` leave.
    void colonne(std::vector<Colonna> c, int larghezza = 15000, int margine = 340);
    int quante_colonne() const { return static_cast<int>(colonne_.size()); }
    const Colonna& colonna(int c) const { return colonne_[static_cast<std::size_t>(c)]; }
    int righe() const { return static_cast<int>(ordine_.size()) + 1; }
    /// Cuts rows from the end or adds empty ones; below 1 is 1.
    void righe(int n);
    /// Room for so many rows in all, where that is known beforehand.
    void riserva(int n);
    /// Adds an empty row at the end and returns its number.
    int aggiungi();
    /// Adds a row with these cells, the rest empty, and returns its number.
    int aggiungi(std::span<const Contenuto> celle);
    int aggiungi(std::initializer_list<Contenuto> celle) {
        return aggiungi(std::span<const Contenuto>(celle.begin(), celle.size()));
    }
    /// Puts a text into the pool for new cells to show; it is good until the next write to any of them.
    Cella deposita(std::string_view t);
    /// Inserts an empty row before row `r`.
    void inserisci(int r);

    /// Takes over the rows of a grid of the same columns, and gives it its own.
    void scambia_righe(Griglia& altra);

    // ---- cells ----
    std::string testo(int r, int c) const { return std::string(vista(r, c)); }
    /// Valid until the next write to the grid.
    std::string_view vista(int r, int c) const;
    void scrivi(int r, int c, std::string_view t);
    /// -1 when the cell has no colour of its own.
    long colore(int r, int c) const;
    void colora(int r, int c, long rgb);
    /// True if any cell of the column has a colour.
    bool colorata(int c) const;
    /// Colour of the text of a whole row, -1 for the system's own.
    long colore_testo_riga(int r) const;
    void colora_testo_riga(int r, long rgb);

    /// What the row stands for, a number of its owner's choice that moves with it and is shown nowhere; 0
    /// until it is set.
    long chiave(int r) const;
    void chiave(int r, long k);

    // ---- order and view ----
    /// Stable ascending sort of all rows but the heading on a column.
    void ordina(int colonna, Ordine come);
    /// The same for a list that ends in a total: rows with a key above 0 in order, then those with one below
    /// 0, then the rest.
    void ordina_dati(int colonna, Ordine come);
    bool ridisegna() const { return ridisegna_; }
    void ridisegna(bool v);
    int prima_visibile() const { return prima_; }
    void prima_visibile(int r);

    /// A user picked a cell: row (0 the heading row) and column.
    std::function<void(int riga, int colonna)> scelto;
    void scegli(int riga, int colonna) {
        if (scelto && !fermo()) scelto(riga, colonna);
    }

  private:
    std::size_t base(int r) const { return ordine_[static_cast<std::size_t>(r - 1)] * colonne_.size(); }
    bool dentro(int r, int c) const { return r >= 1 && r < righe() && c >= 0 && c < quante_colonne(); }
    void compatta();
    void ordina(int colonna, Ordine come, bool coda_ferma);
    std::uint32_t nuova_riga();
    void mossa();

    std::vector<Colonna> colonne_;
    std::vector<std::uint32_t> ordine_;              // shown row - 1 -> stored row
    std::vector<Cella> celle_;                       // stored row * columns + column
    std::string deposito_;                           // the texts of all cells
    std::size_t scarti_ = 0;                         // bytes of the pool that are perhaps of no use any more
    std::vector<std::vector<std::int32_t>> colori_;  // by column, then stored row; empty: none
    std::vector<std::int32_t> testi_riga_;           // by stored row; empty: none
    std::vector<std::int32_t> chiavi_;               // by stored row; empty: none
    bool ridisegna_ = true;
    int prima_ = 1;
};

/// The generic order of two cell texts: those that begin with a number by its value, then by what follows;
/// the others after them, by character code. Less than 0, 0, more than 0.
int confronta_generico(std::string_view a, std::string_view b);

}  // namespace ambra
