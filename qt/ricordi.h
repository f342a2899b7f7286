// What the windows remember for their user from one day to the next: places, sizes, widths, folders, the
// printer. Nothing of the archive.
#pragma once

#include <QSettings>

namespace ambra {

/// The user's settings file; what is written is kept when the value goes out of scope.
QSettings ricordi();
/// Only for tests: the settings live in this folder from now on.
void ricordi_in(const QString& cartella);

}  // namespace ambra
