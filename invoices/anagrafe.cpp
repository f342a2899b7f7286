#include "invoices/anagrafe.h"

#include "core/latino.h"
#include "core/testo.h"
#include "invoices/proposta_fornitore.h"

namespace ambra {

namespace {

// A code that does not fit its field stands there cut.
long trova(const std::map<std::string, long>& codici, std::size_t campo, const std::string& utf8) {
    const std::string codice = maiuscolo(rifila(sinistra(rifila(vicino(utf8)), campo)));
    const auto e = codici.find(codice);
    return codice.empty() || e == codici.end() ? 0 : e->second;
}

}  // namespace

Anagrafe::Anagrafe(Archivio& arc) {
    const int numero = arc.err.numero;
    const long quanti = quanti_fornitori(arc);
    Passata<RecFornitore> schede(arc.fornitori);
    for (long n = 1; n <= quanti; ++n) {
        const RecFornitore* f = schede.vista(n);
        if (!f || f->cancellata != 0) continue;
        piva_.emplace(maiuscolo(f->piva.rifilato()), n);
        codfis_.emplace(maiuscolo(f->codfis.rifilato()), n);
        codest_.emplace(maiuscolo(f->codest.rifilato()), n);
    }
    arc.err.numero = numero;
}

long Anagrafe::cerca(const SoggettoLetto& s) const {
    constexpr std::size_t kEstero = sizeof(RecFornitore::codest), kFiscale = sizeof(RecFornitore::codfis);
    if (straniero(s)) {
        if (const long n = trova(codest_, kEstero, s.codice_iva)) return n;
        if (const long n = trova(codest_, kEstero, s.paese_iva + s.codice_iva)) return n;
    } else if (const long n = trova(piva_, s.codice_iva.size(), s.codice_iva)) {
        return n;
    }
    return trova(codfis_, kFiscale, s.codice_fiscale);
}

}  // namespace ambra
