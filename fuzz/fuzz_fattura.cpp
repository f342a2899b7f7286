// Any bytes give documents or a refusal; documents keep what their header promises.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "fatturapa/lettore.h"
#include "fatturapa/testo_xml.h"
#include "fuzz/pretendi.h"
#include "invoices/analisi.h"

namespace {

void controlla(const ambra::FatturaLetta& f) {
    using ambra::Decimale;
    for (const auto& r : f.riepiloghi)
        for (const auto* s : {&r.aliquota, &r.imponibile, &r.imposta, &r.arrotondamento})
            pretendi(s->empty() || Decimale::leggi(*s));
    for (const auto& p : f.pagamenti) pretendi(p.importo.empty() || Decimale::leggi(p.importo));
    for (const auto* s : {&f.voce, &f.numero, &f.fornitore.denominazione, &f.cliente.codice_fiscale})
        pretendi(ambra::fatturapa::utf8_valido(*s));
    const ambra::Analisi a = ambra::analizza(f);
    Decimale rate;
    for (const auto& r : a.rate) rate += r.importo;
    pretendi(a.rate.size() <= 4 && (a.rate.empty() || rate == a.netto));
    pretendi(!a.totale.in_misura() || a.totale >= Decimale());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t n) {
    const auto letto = ambra::fatturapa::Lettore().leggi({reinterpret_cast<const char*>(dati), n}, "f");
    pretendi(!letto.fatture.empty() || !letto.rifiutate.empty());
    for (const auto& f : letto.fatture) controlla(f);
    return 0;
}
