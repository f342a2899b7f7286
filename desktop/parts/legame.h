// A tie between a control of the logic and its widget: name, visibility, state, caption, colours, focus,
// Enter. The value itself is brought over by the function that the piece hands in.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>

#include "desktop/parts/mnemonici.h"
#include "screen/controlli.h"

class QKeyEvent;

namespace ambra {

class Finestra;

class Legame : public QObject {
  public:
    Legame(Finestra& f, Controllo& c, QWidget* w, std::function<void()> valore);
    ~Legame() override;

    Controllo* controllo() const { return c_; }
    QWidget* widget() const { return w_; }
    /// Shares visibility and state with the control: the caption of a field, its calendar button.
    void compagno(QWidget* w);
    /// Where the focus goes when the logic sends it here; the widget itself unless set.
    void fuoco_su(QWidget* w);
    /// Empty text control hides its widget and keeps its place.
    void nascondi_vuoto() { nascondi_vuoto_ = true; }
    QWidget* bersaglio() const { return bersaglio_; }

    void mostra();
    void stacca();
    bool sporco = true;
    /// What the hand wrote is complete: runs before the focus leaves the field, and before Enter.
    std::function<void()> finito;
    /// For the window alone: false greys the widget, for its control would do nothing now.
    std::function<bool()> utile;
    /// For the window alone: false swallows Enter.
    std::function<bool()> accetta_invio;

  protected:
    bool eventFilter(QObject* o, QEvent* e) override;

  private:
    bool tasto(QObject* o, const QKeyEvent* e);
    void mostra_caption();
    void mostra_colori();

    Finestra& f_;
    Controllo* c_;
    QPointer<QWidget> w_, bersaglio_;
    QList<QPointer<QWidget>> compagni_;
    std::function<void()> valore_;
    bool nascondi_vuoto_ = false;
    long testo_ = -1, sfondo_ = -1;
};

}  // namespace ambra
