// A rich-text document in neutral form: what the reader makes of an RTF file, what a device lays out.
//
// The characters are one flat Windows-1252 text; runs of formatting and paragraphs lie beside it as lists
// of lengths, so that a position is a position in the text and a copy costs little. The body comes first,
// then the headers and footers. Lengths are twips unless told otherwise.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ambra::rtf {

// ---- characters that stand for more than themselves in the text ----
constexpr char kFineParagrafo = '\n';
constexpr char kFineCella = '\t';  ///< of a cell that is not the last of its row
constexpr char kACapo = '\v';      ///< line break inside a paragraph
constexpr char kSaltoPagina = '\f';

enum class Verso { sinistra, centro, destra, giustificato };
/// A number that is the printer's to know.
enum class Campo { nessuno, pagina, pagine };

constexpr long kColoreAutomatico = -1;

struct FormatoCarattere {
    std::string carattere = "Times New Roman";
    double punti = 12;
    bool grassetto = false, corsivo = false, sottolineato = false, barrato = false;
    bool maiuscole = false, maiuscoletto = false;
    int rialzo = 0;                   ///< 1 superscript, -1 subscript
    long colore = kColoreAutomatico;  ///< RGB number, blue in the high byte
    long sfondo = kColoreAutomatico;  ///< the same
    int immagine = -1;                ///< the character stands for this picture
    Campo campo = Campo::nessuno;     ///< the characters stand for this number
    bool operator==(const FormatoCarattere&) const = default;
};

struct Tabulazione {
    int posto = 0;
    Verso verso = Verso::sinistra;
    bool decimale = false;
    char guida = 0;  ///< what fills the room before it; 0: nothing
    bool operator==(const Tabulazione&) const = default;
};

struct Bordo {
    int spessore = 0;  ///< 0: none
    int spazio = 0;    ///< between the line and a paragraph's text
    long colore = 0;
    bool operator==(const Bordo&) const = default;
};

struct FormatoParagrafo {
    Verso verso = Verso::sinistra;
    int sinistra = 0, destra = 0, prima_riga = 0;  ///< indents
    int sopra = 0, sotto = 0;                      ///< spacing
    int interlinea = 0;                            ///< above 0 at least, below 0 exactly, 0 single
    double interlinea_multipla = 0;                ///< times the single one; 0: see above
    bool salto_prima = false;                      ///< begins a page
    bool con_il_prossimo = false;                  ///< never ends a page
    bool insieme = false;                          ///< not divided between pages
    bool senza_vedove = false;                     ///< nor its first or last line alone
    Bordo bordo_sopra, bordo_sotto, bordo_sinistra, bordo_destra;
    std::vector<Tabulazione> tabulazioni;
    bool operator==(const FormatoParagrafo&) const = default;
};

/// The next `n` characters have the format of that number.
struct Tratto {
    std::size_t n = 0;
    std::uint32_t formato = 0;
};

/// The next `n` characters, the closing one among them.
struct Paragrafo {
    std::size_t n = 0;
    std::uint32_t formato = 0;
    std::int32_t riga = -1;  ///< table row, -1 outside tables
    std::int32_t cella = 0;  ///< cell of that row
    bool assorbito = false;  ///< stood in a cell that was joined to the one before
};

struct Cella {
    int destra = 0;  ///< right edge, from the left margin
    Bordo sopra, sinistra, sotto, bordo_destro;
    /// Between the edges and the text: top, left, bottom, right; -1 as the row tells.
    std::array<int, 4> spazio{-1, -1, -1, -1};
    long sfondo = kColoreAutomatico;
    bool continua = false;              ///< goes on with the cell above
    Verso verticale = Verso::sinistra;  ///< left is top, right is bottom
};

struct Riga {
    int sinistra = 0;      ///< left edge, from the left margin
    int altezza = 0;       ///< at least; 0 automatic
    int spazio = 0;        ///< half the gap between two cells
    bool insieme = false;  ///< not divided between pages
    Verso verso = Verso::sinistra;
    std::vector<Cella> celle;
};

struct Immagine {
    std::string byte;                   ///< a PNG or JPEG file
    double larghezza = 0, altezza = 0;  ///< on paper; 0: its own
};

enum class TipoParte { corpo, testata, testata_prima, piede, piede_prima };

/// A stretch of paragraphs: the body, or one header or footer.
struct Parte {
    TipoParte tipo = TipoParte::corpo;
    std::size_t paragrafi = 0;
};

struct Foglio {
    int larghezza = 0, altezza = 0;  ///< 0: that of the printer
    int sinistra = 1440, destra = 1440, sopra = 1440, sotto = 1440;
    int testata = 720, piede = 720;  ///< header from the top edge, footer from the bottom edge
    bool prima_diversa = false;      ///< the first page has its own header and footer
};

struct Documento {
    std::string testo;
    std::vector<Tratto> tratti;
    std::vector<FormatoCarattere> formati{FormatoCarattere{}};
    std::vector<Paragrafo> paragrafi;
    std::vector<FormatoParagrafo> formati_paragrafo{FormatoParagrafo{}};
    std::vector<Riga> righe;
    std::vector<std::shared_ptr<const Immagine>> immagini;
    std::vector<Parte> parti;
    Foglio foglio;
    int passo_tabulazione = 720;
};

/// The plain characters of the whole document, Windows-1252. A line ends with LF.
std::string testo_piano(const Documento& d);

}  // namespace ambra::rtf
