// The windows of a running program: one for each screen that is shown, made, raised, hidden and destroyed
// as the registry tells.
#pragma once

#include <QObject>
#include <QPointer>
#include <map>
#include <string>

#include "desktop/finestra.h"

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

  private:
    void evento(Registro::Evento e, Schermo& s);
    Finestra& apri(Schermo& s);
    void chiudi(const Schermo& s);

    Programma& prog_;
    std::map<const Schermo*, QPointer<Finestra>> tutte_;
};

}  // namespace ambra
