// The page of a screen's window.
//
// A file of this folder named after a screen (`lumfor.cpp`) holds its view, `vista_lumfor`; the build
// makes the table of views from the names of the files. A screen without one gets a plain form.
#pragma once

#include <QWidget>

#include "desktop/finestra.h"
#include "desktop/parts/contesto.h"

namespace ambra {

using Vista = QWidget* (*)(Contesto&, Schermo&);

/// The view of a screen by its name, or nullptr.
Vista vista_di(const std::string& schermo);
/// Every control of the screen, laid out by its kind.
QWidget* vista_generica(Contesto& c, Schermo& s);
QWidget* costruisci_vista(Finestra& f, Schermo& s);

}  // namespace ambra
