// A screen: a plain class that declares its controls, registers each under its name, and hangs small
// functions on their events in its constructor, which is the load.
#pragma once

#include <array>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "screen/controlli.h"
#include "screen/griglia.h"

namespace ambra {

class Programma;

/// Why a screen is activated.
enum class Attivazione {
    aperta,   ///< the program opened it
    scoperta  ///< the one above it was closed or hidden
};

/// The name of an element of a control array: nome_elemento("impon", 3) is "impon(3)".
inline std::string nome_elemento(std::string_view base, std::size_t n) {
    return std::string(base) + "(" + std::to_string(n) + ")";
}

class Schermo {
  public:
    Schermo(Programma& programma, std::string nome, std::string caption);
    virtual ~Schermo() = default;
    Schermo(const Schermo&) = delete;
    Schermo& operator=(const Schermo&) = delete;

    Programma& prog;

    const std::string& nome() const { return nome_; }
    const std::string& caption() const { return caption_; }
    void caption(std::string c);
    bool visible() const { return visible_; }
    /// It waits for another screen (see attesa.h): what a user clicks in it does nothing.
    bool in_attesa() const { return attese_ > 0; }

    /// Registers a control under its name; `caption` "" keeps the control's own.
    void aggiungi(std::string_view nome, Controllo& c, std::string_view caption = {});
    /// Registers base(0), base(1), ...
    template <class C, std::size_t N>
    void aggiungi(std::string_view base, std::array<C, N>& tutti) {
        for (std::size_t i = 0; i < N; ++i) aggiungi(nome_elemento(base, i), tutti[i]);
    }
    Controllo* trova(std::string_view nome) const;
    /// In the order of registration, which is the tab order.
    const std::vector<Controllo*>& controlli() const { return controlli_; }

    /// Gives the focus to a control; `ricevuto` of it may hand it on.
    void fuoco(Controllo& c);
    Controllo* fuoco() const { return fuoco_; }
    /// The focus went elsewhere.
    void senza_fuoco() { fuoco_ = nullptr; }

    std::function<void(Attivazione)> attivata;  ///< runs on each activation
    std::function<void()> via_d_uscita;  ///< the close box: what "Annulla" or "Fine" does; unset: it closes
    std::function<void()> osservatore;   ///< for the view: caption, visibility or focus changed

  private:
    friend class Registro;
    friend class Attesa;
    std::string nome_, caption_;
    bool visible_ = false;
    int attese_ = 0;
    std::vector<Controllo*> controlli_;
    std::map<std::string, Controllo*, std::less<>> per_nome_;
    Controllo* fuoco_ = nullptr;
};

}  // namespace ambra
