// The fields of a supplier as register and picker show them.
#pragma once

#include "desktop/viste.h"

namespace ambra {

/// The search: hint, name, commands, cursor.
QWidget* ricerca_fornitore(Contesto& c);
/// "Sede legale e dati fiscali".
QWidget* sede_legale(Contesto& c);
/// "Sede ammistrativa e altri dati"; `copia` is the command over its fields, or nullptr.
QWidget* sede_amministrativa(Contesto& c, QWidget* copia);

}  // namespace ambra
