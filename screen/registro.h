// The registry: one instance of each screen, opened by name, standing in a pile.
//
// `apri` creates a screen if it is not loaded, shows it on top and activates it as opened; one that waits for
// another only comes to the front. `nascondi` keeps its state, `chiudi` unloads it once the running event has
// returned. Hiding or closing the top one activates the one beneath as uncovered; a user who only moves
// between windows (`davanti`) activates nothing.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "screen/schermo.h"

namespace ambra {

class Registro {
  public:
    using Fabbrica = std::function<std::unique_ptr<Schermo>(Programma&)>;
    enum class Evento { open, hide, close, activate, davanti };
    /// How a screen is reached from outside the screens that open it.
    struct Opzioni {
        /// What its leaf of the command tree sets before it opens; may be empty.
        void (*prepara)(Programma&) = nullptr;
        /// It shows a document that its opener chose: nobody else opens it.
        bool vuole_documento = false;
        /// Caption in the menu of tools, "" if it does not stand there.
        std::string strumento = {};
        /// Its place in that menu, from 1.
        int posto = 0;
    };
    struct Strumento {
        std::string caption, schermo;
    };

    explicit Registro(Programma& programma) : prog_(programma) {}
    ~Registro();

    void registra(std::string nome, Fabbrica fabbrica, Opzioni opzioni);
    template <class S>
    void registra(std::string nome, Opzioni opzioni) {
        registra(
            std::move(nome), [](Programma& p) { return std::make_unique<S>(p); }, std::move(opzioni));
    }
    template <class S>
    void registra(std::string nome) {
        registra<S>(std::move(nome), Opzioni());
    }
    /// Whether a screen of that name can be opened.
    bool conosce(std::string_view nome) const { return voci_.contains(nome); }
    std::vector<std::string> nomi() const;
    /// The menu of tools, in its order.
    std::vector<Strumento> strumenti() const;

    /// The loaded screen, or nullptr.
    Schermo* caricato(std::string_view nome) const;
    /// Loads a screen without showing it. Null if the name is unknown.
    Schermo* carica(std::string_view nome);
    /// The same, as its own class.
    template <class S>
    S& carica(std::string_view nome) {
        return static_cast<S&>(*carica(nome));
    }
    void apri(std::string_view nome);
    /// Does what the leaf of the tree does. False, and nothing happens, if the name is unknown or the screen
    /// wants a document.
    bool apri_foglia(std::string_view nome);
    /// The program brings a visible screen to the front without activating it.
    void porta_davanti(Schermo& s);
    void nascondi(std::string_view nome);
    void chiudi(std::string_view nome);
    /// A user brought the window to the front: no activation.
    void davanti(Schermo& s);
    /// A user used the close box.
    void chiudi_dal_bordo(Schermo& s);

    /// All loaded screens, in the order of loading.
    std::vector<Schermo*> caricati() const;
    /// The visible ones, the top one last.
    const std::vector<Schermo*>& pila() const { return pila_; }

    /// Every user's event runs inside one of these; closed screens go when the outermost ends.
    class Turno {
      public:
        explicit Turno(Registro& r) : r_(r) { ++r_.profondita_; }
        ~Turno() {
            if (--r_.profondita_ == 0) r_.raccogli();
        }
        Turno(const Turno&) = delete;
        Turno& operator=(const Turno&) = delete;

      private:
        Registro& r_;
    };

    /// What happens to screens, for the batch and the windows. Told before activation runs.
    std::function<void(Evento, Schermo&)> spia;

  private:
    struct Voce {
        Fabbrica fabbrica;
        Opzioni opzioni;
    };
    void attiva(Schermo& s, Attivazione come);
    void togli(Schermo& s, Evento come);
    void raccogli();

    Programma& prog_;
    std::map<std::string, Voce, std::less<>> voci_;
    std::vector<std::unique_ptr<Schermo>> caricati_;
    std::vector<std::unique_ptr<Schermo>> chiusi_;
    std::vector<Schermo*> pila_;
    int profondita_ = 0;
};

}  // namespace ambra
