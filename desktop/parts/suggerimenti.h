// What a short caption does, in a sentence: the tooltips of commands and cells.
#pragma once

#include <QString>

namespace ambra {

/// Empty where the caption says it all.
QString suggerimento_di(const QString& caption);

}  // namespace ambra
