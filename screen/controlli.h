// The controls of a screen, free of any toolkit. A control holds its value; a screen hangs small functions
// on its events; a view observes it.
//
// Two roads lead to a value. The program writes it (`testo("x")`, `spuntata(true)`, `scelta(3)`), a user
// acts on it (`digita`, `clicca`, `scegli`). Both fire `cambiato`, and neither when the value stays equal.
// Only the user's road fires `digitato` (an edit) and `premuto` (a click).
// Texts are Windows-1252; colours are RGB numbers with blue in the high byte, -1 for the system's own.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace ambra {

class Schermo;

enum class Genere { text, date, label, button, check, option, list, scroll, progress, grid };

/// "text", "date", ... as the batch protocol names a kind.
std::string_view nome_genere(Genere g);

class Controllo {
  public:
    explicit Controllo(Genere g) : genere_(g) {}
    virtual ~Controllo() = default;
    Controllo(const Controllo&) = delete;
    Controllo& operator=(const Controllo&) = delete;

    Genere genere() const { return genere_; }
    /// The name under which the screen registered it: "impon(3)".
    const std::string& nome() const { return nome_; }

    bool visible() const { return visible_; }
    void visible(bool v);
    bool enabled() const { return enabled_; }
    void enabled(bool v);
    const std::string& caption() const { return caption_; }
    void caption(std::string c);
    long colore_testo() const { return colore_testo_; }
    void colore_testo(long rgb);
    long colore_sfondo() const { return colore_sfondo_; }
    void colore_sfondo(long rgb);

    std::function<void()> cambiato;     ///< the value changed, by program or user
    std::function<void()> digitato;     ///< a user changed the value; runs after `cambiato`
    std::function<void()> premuto;      ///< a user clicked it
    std::function<void()> invio;        ///< a user pressed Enter in it
    std::function<void()> ricevuto;     ///< it got the focus (it may hand it on)
    std::function<bool()> lasciato;     ///< the focus leaves; false keeps it here
    std::function<void()> osservatore;  ///< for the view: something of the control changed

    // ---- what a user does; the view and the batch call these ----
    void premi() {
        if (premuto && !fermo()) premuto();
    }
    void premi_invio() {
        if (invio) invio();
    }
    /// False: the focus stays.
    bool lascia() { return !lasciato || lasciato(); }

  protected:
    /// Its screen waits for another: commands and lists do nothing.
    bool fermo() const;
    void avvisa() {
        if (osservatore) osservatore();
    }
    void cambia() {
        avvisa();
        if (cambiato) cambiato();
    }

  private:
    friend class Schermo;
    Genere genere_;
    const Schermo* schermo_ = nullptr;
    std::string nome_;
    std::string caption_;
    bool visible_ = true;
    bool enabled_ = true;
    long colore_testo_ = -1;
    long colore_sfondo_ = -1;
};

/// A line of text.
class CampoTesto : public Controllo {
  public:
    CampoTesto() : Controllo(Genere::text) {}
    const std::string& testo() const { return testo_; }
    virtual void testo(std::string t);
    virtual void digita(std::string t);
    std::size_t massimo = 0;    ///< characters a user may type; 0 is no limit
    bool importo = false;       ///< the view shows it right-aligned, in tabular figures
    bool sola_lettura = false;  ///< the view shows it without offering an edit

  protected:
    explicit CampoTesto(Genere g) : Controllo(g) {}

  private:
    std::string testo_;
};

/// A date picker. A text that reads as a date with a four-digit year becomes dd/mm/yyyy at once, whoever
/// writes it. A pick is an edit even when it is of the day that stands there.
class CampoData : public CampoTesto {
  public:
    /// What becomes of a text that is no date.
    enum class Altro {
        rifiuta,  ///< not taken: the picker keeps what it held; only the program empties it
        lascia,   ///< stands as typed, for the screen's own validation
        intatto   ///< stands as typed, and so does a date
    };
    explicit CampoData(Altro altro = Altro::rifiuta) : CampoTesto(Genere::date), altro_(altro) {}
    /// For pickers that stand in an array.
    void altro(Altro a) { altro_ = a; }
    void testo(std::string t) override;
    void digita(std::string t) override;
    using CampoTesto::testo;

  private:
    Altro altro_;
};

/// Tidies a date typed into a text field when the focus leaves: of ten characters the day, month and year are
/// taken by their places and joined by slashes; empty is allowed. False: it reads as a number and is no such
/// text, and the focus stays.
bool riordina_data(CampoTesto& campo);

/// A label; its caption is its text. Clickable when `premuto` is set.
class Etichetta : public Controllo {
  public:
    Etichetta() : Controllo(Genere::label) {}
    explicit Etichetta(std::string c) : Etichetta() { caption(std::move(c)); }
};

class Bottone : public Controllo {
  public:
    Bottone() : Controllo(Genere::button) {}
    explicit Bottone(std::string c) : Bottone() { caption(std::move(c)); }
};

/// A check box. A click toggles it, fires `cambiato`, then `premuto`.
class Casella : public Controllo {
  public:
    Casella() : Controllo(Genere::check) {}
    explicit Casella(std::string c) : Casella() { caption(std::move(c)); }
    bool spuntata() const { return spuntata_; }
    void spuntata(bool v);
    void clicca();

  private:
    bool spuntata_ = false;
};

/// An option button. Choosing it unchooses its companions; the program may leave a whole group unchosen.
class Opzione : public Controllo {
  public:
    Opzione() : Controllo(Genere::option) {}
    explicit Opzione(std::string c) : Opzione() { caption(std::move(c)); }
    static void gruppo(std::vector<Opzione*> tutte);
    bool scelta() const { return scelta_; }
    void scelta(bool v);
    void clicca();

  private:
    bool scelta_ = false;
    std::vector<Opzione*> compagne_;
};

/// A combo or list box.
class Lista : public Controllo {
  public:
    Lista() : Controllo(Genere::list) {}
    const std::vector<std::string>& voci() const { return voci_; }
    void aggiungi(std::string voce);
    void svuota();                          ///< no items, nothing selected; fires nothing
    int scelta() const { return scelta_; }  ///< -1 for none
    /// Out of range selects none.
    void scelta(int n);
    void scegli(int n);
    /// The selected item, or "".
    std::string testo() const;

  private:
    std::vector<std::string> voci_;
    int scelta_ = -1;
};

/// A scroll bar; its value is kept inside its limits.
class Scorrimento : public Controllo {
  public:
    Scorrimento() : Controllo(Genere::scroll) {}
    int minimo() const { return minimo_; }
    int massimo() const { return massimo_; }
    int valore() const { return valore_; }
    void limiti(int minimo, int massimo);
    void valore(int v);
    void scorri(int v);

  private:
    int minimo_ = 0, massimo_ = 0, valore_ = 0;
};

class Progresso : public Controllo {
  public:
    Progresso() : Controllo(Genere::progress) {}
    int minimo() const { return 0; }
    int massimo() const { return massimo_; }
    int valore() const { return valore_; }
    void massimo(int m);
    void valore(int v);

  private:
    int massimo_ = 100, valore_ = 0;
};

}  // namespace ambra
