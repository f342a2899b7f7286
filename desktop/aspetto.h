// What all windows share: style, translations, locale.
#pragma once

#include <QFont>

class QApplication;

namespace ambra {

/// The face of all windows: `f`, or a proportional one where the machine offers only a typewriter's, which
/// would make the windows too wide for a screen.
QFont carattere_leggibile(QFont f);
void prepara_aspetto(QApplication& app);

}  // namespace ambra
