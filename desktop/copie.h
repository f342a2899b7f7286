// The dated copies at work: one is made before a click that cannot be undone is handed on, and the user can
// put one back.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "maintenance/copie_datate.h"

class QString;
class QWidget;

namespace ambra {

class Controllo;
class Programma;
class Schermo;

/// What a click on the control would do that cannot be undone, if anything.
std::optional<Motivo> senza_ritorno(const Schermo& s, const Controllo& c);

/// Makes the copy before such a click. Where that fails the user is asked; false: he stays. `fuori` is the
/// folder of the copies, null where there is none.
bool copia_prima(Programma& prog, Disco* fuori, Motivo motivo);

/// "Ripristina copia...": the user chooses a copy of this building and confirms. The name of the copy, or
/// nothing. What is typed and not stored is the caller's to ask about.
std::optional<std::string> scegli_copia(QWidget* padre, Disco& fuori, const std::string& nnn);

/// The whole road for a menu: asks, and if the user confirms ends the window's work, so that the copy is put
/// back while nobody has the archive open, and the program then starts anew.
void ripristina_copia(QWidget* padre, Programma& prog);

/// Leaves word of the copy that is to be put back.
void prenota_ripristino(const std::string& nnn, const std::string& copia);

/// Puts the copy back that word was left of, once the program is gone, and says how it went. False: there was
/// nothing to do.
bool finisci_ripristino_copia(const std::string& radice);

}  // namespace ambra
