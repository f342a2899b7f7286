// A table as an Excel workbook of one sheet.
#pragma once

#include <QString>

#include "screen/foglio.h"

namespace ambra {

/// Writes the workbook: the headings in bold and always in sight, amounts as numbers, dates as dates, columns
/// as wide as their texts. It replaces what stands there once it is whole; 0 or the run-time error, and then
/// what stood there stands.
int scrivi_xlsx(const Foglio& f, const QString& percorso);

}  // namespace ambra
