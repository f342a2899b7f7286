// What an RTF file means, token by token: the formatting of each open group and where its text goes.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "print/rtf_costruttore.h"

namespace ambra::rtf {

/// Where the text of a group goes.
enum class Dove {
    testo,
    salta,
    muta,
    facce,
    colori,
    stili,
    nome_proprieta,
    prima_del_numero,
    dopo_il_numero,
    istruzione_campo,
    immagine
};

/// An open group: it inherits all of its parent, and what it changes ends with it.
struct Gruppo {
    Dove dove = Dove::testo;
    StatoCarattere carattere;
    FormatoParagrafo paragrafo;
    bool in_tabella = false;
    int salta_dopo_unicode = 1;
    Campo campo = Campo::nessuno;  ///< what the result of the field shows
    TipoParte parte = TipoParte::corpo;
    bool campo_qui = false;  ///< the group is the field itself
    int elenco = 0;          ///< number of the list that the paragraph belongs to
    bool etichetta = false;  ///< the number or bullet of a list, for readers that count none
    bool suo_carattere = false, suo_corpo = false;  ///< of the label: face and size are told in it
};

/// What a style gives to text that names no face, size or colour of its own; -1 as the style it rests on.
struct Stile {
    int font = -1, mezzi_punti = -1, colore = -1, base = -1;
};

/// A character of a list's label, which waits for the format of the text that follows.
struct CarattereEtichetta {
    char c = 0;
    StatoCarattere formato;
    bool suo_carattere = false, suo_corpo = false;
};

/// How a paragraph is numbered, for a label that was left blank.
struct Numerazione {
    char tipo = 0;  ///< '1', 'a', 'A'; '-' only what stands before the number; 0: not at all
    int inizio = 1;
    std::string prima, dopo;
};

/// A picture while its data arrive.
struct ImmagineInArrivo {
    std::string byte;
    int mezzo = -1;  ///< first half of a byte told in hexadecimal
    bool nota = false;
    int larga = 0, alta = 0;           ///< twips
    int scala_x = 100, scala_y = 100;  ///< per cent
};

class StatoLettura {
  public:
    StatoLettura();

    void apri();
    void chiudi();
    /// A control word with its number.
    void parola(std::string_view nome, std::optional<int> numero);
    /// A control symbol: the character after the backslash.
    void simbolo(char c);
    /// Plain characters in the character set of the font.
    void testo(std::string_view s);
    /// One character told in hexadecimal.
    void byte(unsigned char b);
    void binario(std::string_view b);
    Documento termina();

  private:
    friend struct Parole;
    friend struct ParoleTabelle;

    Gruppo& g() { return gruppi_.back(); }
    void emetti(char c);
    void decodifica(unsigned char b);
    void unicode(int n);
    void entra(Dove d) { g().dove = d; }
    void entra_parte(TipoParte t);
    void carattere(char c, StatoCarattere f);
    void scrivi(char c, const StatoCarattere& f);
    void versa_etichetta();
    void numera();
    void fine_stile();
    void applica_stile(int n);
    void fine_immagine();
    void fine_istruzione();
    void nome_faccia(std::string_view s);
    void separa_colori(std::string_view s);
    void dati_immagine(std::string_view s);
    void nuova_riga();
    void chiudi_definizione_cella(int destra);

    Costruttore costruttore_;
    std::vector<Gruppo> gruppi_;
    Foglio foglio_;
    int sezione_ = 0, passo_ = 720;
    bool asterisco_ = false;  // the destination that follows may be skipped when unknown
    int da_saltare_ = 0;      // characters that repeat a Unicode one for older readers
    bool primo_di_due_ = false;
    int predefinita_ = 0, pagina_ = 1252;  // font and code page of the document

    std::map<int, int> insiemi_;  // character set of each font
    int faccia_ = 0;              // font table: the font in hand
    std::string nome_;            // and its name
    long rgb_ = -1;               // colour table: the colour in hand
    std::map<int, Stile> stili_;
    int stile_ = 0, base_ = -1;  // style sheet: the style in hand and the one it rests on
    std::vector<CarattereEtichetta> etichetta_;
    Numerazione numerazione_;
    std::map<int, int> contati_;  // paragraphs numbered so far, by list
    std::string proprieta_;       // name of a drawing's property
    bool campo_mostrato_ = false;
    int forma_[4] = {};  // edges of the drawing in hand
    std::string istruzione_;
    ImmagineInArrivo immagine_;

    Cella cella_;  // the cell being defined
    bool cella_con_bordi_ = false, cella_fusa_ = false;
    Bordo* bordo_ = nullptr;  // the border being described
    bool riquadro_ = false;   // it is that of a whole box
    Tabulazione tabulazione_;
};

/// The control words that are understood. False for one that is not.
bool esegui_parola(StatoLettura& s, std::string_view nome, std::optional<int> numero);

}  // namespace ambra::rtf
