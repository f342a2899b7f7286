// Any bytes give documents or a refusal; documents keep what their header promises.
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "fatturapa/compresso.h"
#include "fatturapa/lettore.h"
#include "fatturapa/testo_xml.h"
#include "fuzz/pretendi.h"
#include "invoices/analisi.h"

namespace {

using namespace ambra::fatturapa;

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

// Both roads through a zip give the same entries.
void strade_concordi(std::string_view byte) {
    const auto tutte = [](const std::string&) { return true; };
    std::vector<Voce> svelte;
    const bool bene = per_ogni_voce(
        byte, tutte, [](Voce&) {},
        [&](Voce& v) {
            svelte.push_back(v);
            return svelte.size() < 100;
        });
    std::size_t n = 0;
    const bool bene_anche = per_ogni_voce_con_cura(byte, 0, tutte, [&](Voce& v) {
        pretendi(n < svelte.size() && v.nome == svelte[n].nome && v.contenuto == svelte[n].contenuto);
        pretendi(v.intera == svelte[n].intera && v.difetto == svelte[n].difetto);
        return ++n < 100;
    });
    pretendi(n == svelte.size() && bene == bene_anche);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t n) {
    const std::string_view byte(reinterpret_cast<const char*>(dati), n);
    ambra::fatturapa::Lettore lettore;
    if (sembra_zip(byte)) strade_concordi(byte);
    const auto letto = lettore.leggi(byte, "f");
    pretendi(!letto.fatture.empty() || !letto.rifiutate.empty());
    for (const auto& f : letto.fatture) controlla(f);
    // What is read again for the sake of its attachments is the same document.
    if (letto.fatture.empty()) return 0;
    const ambra::FatturaLetta& ultima = letto.fatture.back();
    const auto intera = lettore.intera(byte, ultima);
    pretendi(intera && intera->numero == ultima.numero && intera->righe.size() == ultima.righe.size());
    pretendi(intera->allegati.size() == ultima.allegati.size());
    for (const auto& a : intera->allegati) pretendi(a.pdf == a.contenuto.starts_with("%PDF"));
    return 0;
}
