// A window: the face of one screen of the logic.
//
// It owns the ties between the screen's controls and their widgets. What the logic changes is marked and
// shown once when the event loop turns (thirty changes, one repaint); what a user does runs inside a turn
// of the registry. The screen may go while an event of its window still runs: the window is then untied
// (`stacca`) and everything that comes late does nothing.
#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "desktop/custodia.h"
#include "screen/programma.h"
#include "screen/schermo.h"

namespace ambra {

class Finestre;
class Legame;

class Finestra : public QWidget {
    Q_OBJECT
  public:
    /// `insieme` are the windows that this one stands among; null for a window alone.
    explicit Finestra(Schermo& s, Finestre* insieme = nullptr);
    ~Finestra() override;

    /// Null once the screen is gone.
    Schermo* schermo() const { return s_; }
    /// Ties a control to its widget. `valore` brings the widget to what the control holds.
    Legame& lega(Controllo& c, QWidget* w, std::function<void()> valore = {});
    Legame* legame(const Controllo& c) const;
    /// Runs what a user did. False if it was not: the screen is gone, or waits for another.
    bool utente(const std::function<void()>& azione);
    /// The same for a hand in a text field: the field keeps the focus even if the logic hands it on, or the
    /// rest of the word would land elsewhere.
    bool utente_nel_campo(Controllo& c, const std::function<void()>& azione);
    /// Runs what a user did to a control, unless it would lose what was written and the user stays. `riga`
    /// and `colonna` are those of a grid.
    bool agisce(Controllo& c, const std::function<void()>& azione, int riga = -1, int colonna = -1);

    // ---- what is written here and not stored yet ----
    void custodisce(Custodia custodia) { custodia_ = std::move(custodia); }
    const Custodia& custodia() const { return custodia_; }
    /// True if the user has written since the opening or the last confirmation.
    bool scritta() const { return scritta_; }
    void dimentica() { scritta_ = false; }
    /// The windows that this one stands among; null for a window alone.
    Finestre* insieme() const { return insieme_; }
    /// True while an action of this window is not over: it waits for another screen.
    bool in_attesa() const { return azioni_ > 0; }
    /// Enter walks from field to field where the screen tells nothing of it; after the last it stands on
    /// this command.
    void invio_cammina_fino_a(const QString& comando) { ultimo_per_invio_ = comando; }
    /// Writes down place and size for the next time.
    void ricorda() const;
    /// What Esc does; unset: the close box.
    std::function<void()> esc;

    /// Unties everything; the screen is about to go.
    void stacca();
    /// Shows at once what is marked.
    void aggiorna();
    /// Fits the window to its content and the display, and centres it.
    void disponi();

    /// Runs whenever the window shows what changed: captions of the window alone.
    void a_ogni_giro(std::function<void()> giro) { giri_.push_back(std::move(giro)); }

    // ---- for the ties ----
    void segna();
    void segna_caption() { mnemonici_vecchi_ = true; }
    void ricevuto(Controllo& c, bool con_la_finestra);
    void lasciato(Controllo& c);
    /// The field in hand takes its final form: something that does not take the focus was clicked.
    void completa();
    /// From an amount of a column ("impon(3)") to the one under (1) or over it (-1). False: there is none.
    bool in_colonna(const Controllo& c, int passo);
    /// From a field to the next where Enter walks; false where it does not.
    bool passa_al_seguente(QWidget* da);
    /// True while the focus is on its way back to a field that kept it.
    bool trattiene() const { return trattiene_; }

  protected:
    void closeEvent(QCloseEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    bool event(QEvent* e) override;
    void showEvent(QShowEvent* e) override;
    void hideEvent(QHideEvent* e) override;

  private:
    void schermo_mosso();
    void applica_fuoco();
    void primo_fuoco();
    void titolo();
    void toccato(const Controllo& c);

    Schermo* s_;
    std::vector<std::unique_ptr<Legame>> legami_;
    const Controllo* fuoco_noto_ = nullptr;  // the focus as this window and the screen agree on it
    std::vector<std::function<void()>> giri_;
    Finestre* insieme_;
    Custodia custodia_;
    bool scritta_ = false;
    void conferma();

    QString ultimo_per_invio_;
    int azioni_ = 0;  // of the user, that have not returned
    bool fuoco_chiesto_ = false;
    bool trattiene_ = false;
    bool in_coda_ = false;
    bool titolo_vecchio_ = true;
    bool mnemonici_vecchi_ = true;
};

}  // namespace ambra
