// The user's manual behind F1, carried inside the program.
#pragma once

#include <string>

namespace ambra {

/// Opens the manual at the page of a screen, or at its first page where it has none. False if the program
/// was built without a manual.
bool apri_manuale(const std::string& schermo);

}  // namespace ambra
