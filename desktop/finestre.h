// The windows of a running program: one for each screen that is shown, made, raised, hidden and destroyed
// as the registry tells.
#pragma once

#include <QObject>
#include <QPointer>
#include <functional>
#include <map>
#include <string>

#include "core/disco_attento.h"
#include "desktop/finestra.h"
#include "desktop/posto.h"

namespace ambra {

class Finestre : public QObject {
  public:
    /// Watches the registry of `prog` from now on.
    explicit Finestre(Programma& prog);
    ~Finestre() override;

    /// The window of a screen, or nullptr.
    Finestra* finestra(const std::string& schermo) const;
    /// The window of the top screen, or nullptr.
    Finestra* in_cima() const;

    /// Looks at each click before it is handed on; false: it is not.
    std::function<bool(const Schermo&, const Controllo&)> prima_del_clic;

    /// Asks before a click loses what was written: there, or in the window that it gives another document.
    /// False: the user stays.
    bool lascia_fare(Finestra& f, const Controllo& c, int riga, int colonna);
    /// The same before the close box; the main window's speaks for all of them.
    bool lascia_chiudere(Finestra& f);
    /// The same before all windows go at once. While one waits for another they do not: the awaited one comes
    /// to the front.
    bool lascia_il_programma();
    /// Brings the window to the front that the others wait for.
    void porta_avanti_chi_e_atteso();

    /// A write of the archive was refused: the main window tells it until the user closes the strip.
    void guasto(const Guasto& g);

    /// Writes down where the windows in sight stand.
    void ricorda() const;
    /// This program's place among those that the user has open.
    const Posto& posto() const { return posto_; }

  private:
    bool lascia(Finestra& f);
    bool lascia_tutto();
    void evento(Registro::Evento e, Schermo& s);
    Finestra& apri(Schermo& s);
    void chiudi(const Schermo& s);
    void sopra_la_principale(Finestra& f);

    Programma& prog_;
    Posto posto_;
    std::map<const Schermo*, QPointer<Finestra>> tutte_;
    std::vector<Guasto> da_dire_;  // before there was a main window
};

}  // namespace ambra
