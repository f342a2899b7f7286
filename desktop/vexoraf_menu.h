// The menu bar of the main window, beside the command tree.
#pragma once

class QMenuBar;

namespace ambra {

class Contesto;

/// "Strumenti" and "Aiuto", on top of the window.
QMenuBar* barra_dei_menu(Contesto& c);

}  // namespace ambra
