// From the text of one XML file to its documents.
#pragma once

#include <cstddef>
#include <string>

#include "fatturapa/lettore.h"
#include "invoices/lettore_fatture.h"

namespace ambra::fatturapa {

/// What kind of file the bytes were.
enum class Genere {
    fattura,    ///< its documents, or why one of them is refused, stand in the result
    rifiutato,  ///< should be an invoice and cannot be read: `motivo`
    altro       ///< something else: `motivo`
};

struct Xml {
    Genere genere = Genere::altro;
    std::string motivo;
};

/// Where the bytes of an XML file come from, as its documents tell it.
struct Origine {
    std::string file, voce;
    bool firma_non_verificata = false;
    bool con_allegati = false;            ///< the contents of attachments are wanted
    std::size_t massimo = kMassimoLetto;  ///< memory that the heading may take, which each body repeats
};

/// What bytes gave by themselves.
struct Letta {
    Xml esito;
    FileLetto letto;
    std::size_t byte = 0;  ///< how many they were
};

/// Reads the documents of `byte`, all of an XML file, into `letto`. The text is parsed where it stands:
/// `byte` holds nothing of use behind it.
Xml leggi_xml(std::string& byte, const Origine& origine, FileLetto& letto);

/// The memory that a document takes, but for the texts of its body.
std::size_t peso(const FatturaLetta& f);

}  // namespace ambra::fatturapa
