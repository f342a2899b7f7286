// An electronic invoice as one line of JSON.
#pragma once

#include <filesystem>
#include <string>

#include "invoices/analisi.h"
#include "invoices/lettore_fatture.h"

namespace ambra {

/// File, supplier, what the document says and its warnings.
std::string riga_json(const FatturaLetta& f, const Analisi& a);
/// File and reason; the entry stands before the reason.
std::string riga_json(const FatturaRifiutata& r);

/// The last name of a path in UTF-8; what is no UTF-8 is taken as Windows-1252.
std::string utf8_del_sistema(const std::filesystem::path& percorso);

}  // namespace ambra
