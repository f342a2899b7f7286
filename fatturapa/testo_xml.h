// From the bytes of an XML file to UTF-8 text that the parser can take.
#pragma once

#include <string>
#include <string_view>

namespace ambra::fatturapa {

bool utf8_valido(std::string_view s);
/// Control characters but tab and line ends become `al_posto`.
void senza_controlli(std::string& s, char al_posto = ' ');

/// Whether the bytes begin as XML does, after a byte-order mark and blanks, in 8 or 16 bits.
bool sembra_xml(std::string_view byte);

/// Makes the bytes of a file UTF-8, without byte-order mark and control characters. What the byte-order mark
/// says holds, then the declared encoding; UTF-8 that is none is taken as Windows-1252.
void decodifica(std::string& byte);

/// What stands before the root element.
struct Prologo {
    bool doctype = false;  ///< a document type declaration: nothing after it was looked at
    std::string tipo;      ///< the name that it declares
    std::string
        radice;  ///< name of the root element as it stands, prefix included; empty where there is none
    std::size_t inizio = 0;  ///< where the root element begins
    std::size_t fine = 0;    ///< past its end tag, or the end of the text if it has none
};
Prologo prologo(std::string_view testo);

/// What follows the last ':' of a name.
std::string_view senza_prefisso(std::string_view nome);

}  // namespace ambra::fatturapa
