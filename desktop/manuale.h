// The user's manual behind F1, carried inside the program.
#pragma once

#include <QString>
#include <string>

class QTextBrowser;

namespace ambra {

/// The chapter that speaks of a screen; its first chapter for a screen that it does not know.
QString capitolo_di(const std::string& schermo);
/// Opens the manual at the chapter of a screen, in one window for all. Null if the program was built
/// without a manual.
QTextBrowser* apri_manuale(const std::string& schermo);

}  // namespace ambra
