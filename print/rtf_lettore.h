// The RTF reader. Any bytes give a document: unknown control words are skipped, a damaged or cut file gives
// what could be read, a file that is no RTF its own text.
#pragma once

#include <string_view>

#include "print/rtf.h"

namespace ambra::rtf {

Documento leggi(std::string_view byte);

}  // namespace ambra::rtf
