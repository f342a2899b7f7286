// A rich-text document in neutral form: what the reader makes of an RTF file, what a device lays out.
#pragma once

#include <string>
#include <vector>

namespace ambra::rtf {

struct Documento {
    std::string testo;
};

/// The plain characters of the whole document, Windows-1252.
std::string testo_piano(const Documento& d);

}  // namespace ambra::rtf
