// An electronic invoice as one line of JSON.
#pragma once

#include <string>

#include "invoices/analisi.h"
#include "invoices/lettore_fatture.h"

namespace ambra {

/// File, supplier, what the document says and its warnings.
std::string riga_json(const FatturaLetta& f, const Analisi& a);
/// File and reason; the entry stands before the reason.
std::string riga_json(const FatturaRifiutata& r);

}  // namespace ambra
