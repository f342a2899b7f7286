// Builds a rich-text document from left to right: characters into runs, runs into paragraphs, paragraphs
// into cells and rows; body, headers and footers apart, joined at the end.
#pragma once

#include <array>
#include <compare>
#include <map>
#include <string>
#include <vector>

#include "print/rtf.h"

namespace ambra::rtf {

/// The formatting of characters as the reader's groups carry it: numbers alone, cheap to copy.
struct StatoCarattere {
    int font = 0, mezzi_punti = 24;
    int colore = 0, sfondo = 0;  ///< numbers in the colour table; 0 automatic
    bool grassetto = false, corsivo = false, sottolineato = false, barrato = false;
    bool maiuscole = false, maiuscoletto = false, nascosto = false;
    int rialzo = 0;
    int immagine = -1;
    Campo campo = Campo::nessuno;
    auto operator<=>(const StatoCarattere&) const = default;
};

/// The row whose cells are being defined.
struct StatoRiga {
    Riga riga;
    std::array<Bordo, 6>
        bordi;  ///< of the whole table: top, left, bottom, right, inner across, inner upright
    std::array<int, 4> spazio{-1, -1, -1, -1};  ///< for cells that tell none: top, left, bottom, right
    std::vector<bool> con_bordi;                ///< cells that name their borders
    std::vector<bool> fuse;                     ///< cells that belong to the one before
};

class Costruttore {
  public:
    /// Faces and colours by number, as the file's tables tell them.
    std::map<int, std::string> facce;
    std::vector<long> colori;
    StatoRiga riga;                     ///< the row in hand
    FormatoParagrafo ultimo_paragrafo;  ///< of the paragraph in hand, for the end of a cut file

    void carattere(char c, const StatoCarattere& f);
    void immagine(Immagine im, StatoCarattere f);
    void fine_paragrafo(const FormatoParagrafo& p, const StatoCarattere& f, bool in_tabella);
    void fine_cella(const FormatoParagrafo& p, const StatoCarattere& f);
    /// Closes the cells that stand open into a row as `riga` tells it.
    void fine_riga();
    /// What follows begins a page: the rest of the paragraph in hand, or the next one.
    void salto_pagina(const FormatoParagrafo& p, const StatoCarattere& f);
    /// A section that begins a page too, unless `di_seguito` follows.
    void nuova_sezione(const FormatoParagrafo& p, const StatoCarattere& f);
    void di_seguito();

    /// What follows belongs to another part.
    void parte(TipoParte t) { corrente_ = static_cast<std::size_t>(t); }
    /// The part in hand ends: its last paragraph may lack an end of its own.
    void fine_parte(const FormatoParagrafo& p, const StatoCarattere& f);
    bool ha(TipoParte t) const { return !parti_[static_cast<std::size_t>(t)].testo.empty(); }
    /// Whether cells wait for their row.
    bool celle_aperte() const { return pezzo().in_riga > 0; }

    /// Closes what is open and joins the parts.
    Documento termina(const Foglio& foglio, int passo_tabulazione);

  private:
    struct Pezzo {
        std::string testo;
        std::vector<Tratto> tratti;
        std::vector<Paragrafo> paragrafi;
        std::size_t inizio = 0;   // of the paragraph in hand
        std::size_t in_riga = 0;  // paragraphs that wait for their row
        int cella = 0;
        bool salto = false;
        bool salto_di_sezione = false;  // it may still be taken back
        bool salto_nudo = false;        // a paragraph of a page break alone shows no line
    };
    static constexpr std::size_t kParti = 5;

    Pezzo& pezzo() { return parti_[corrente_]; }
    const Pezzo& pezzo() const { return parti_[corrente_]; }
    std::uint32_t formato(const StatoCarattere& f);
    std::uint32_t formato(const FormatoParagrafo& p);
    void chiudi(char c, const FormatoParagrafo& p, const StatoCarattere& f, bool in_riga);
    void chiudi_aperti();

    Documento doc_;
    std::array<Pezzo, kParti> parti_;
    std::size_t corrente_ = 0;
    std::map<StatoCarattere, std::uint32_t> formati_;
    StatoCarattere ultimo_{.font = -1};
    std::uint32_t ultimo_numero_ = 0;
};

}  // namespace ambra::rtf
