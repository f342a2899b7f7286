// The warnings in words that a studio understands.
#include <iterator>

#include "core/latino.h"
#include "core/testo.h"
#include "invoices/proposta.h"

namespace ambra {

namespace {

struct Voce {
    const char* codice;
    std::string parole;
};

const std::vector<Voce>& voci() {
    static const std::vector<Voce> kVoci = {
        {"rate-non-quadrano",
         "I pagamenti del file non fanno né il netto né il totale: le rate sono quelle del termine del fornitore"_it},
        {"scadenza-assente", "Un pagamento del file non ha data: è quella del termine del fornitore"_it},
        {"piu-di-quattro-rate",
         "Il file ha più di quattro rate: la quarta comprende le successive, alla data della quarta"_it},
        {"totale-dichiarato-diverso", "Il totale dichiarato nel file non è la somma del riepilogo iva"_it},
        {"totale-dichiarato-e-il-netto", "Il totale dichiarato nel file è il netto da pagare"_it},
        {"ritenuta-solo-in-testata",
         "Nessuna riga è segnata come soggetta a ritenuta: la base è ricavata dagli importi"_it},
        {"righe-e-ritenuta-non-concordano",
         "Le righe segnate non danno la ritenuta del file: la base è ricavata dagli importi"_it},
        {"contributi-trattenuti",
         "Il fornitore trattiene contributi: diminuiscono il pagamento e non sono ritenuta d'acconto"},
        {"forfettario-con-ritenuta", "Fornitore in regime agevolato con ritenuta d'acconto: da verificare"},
        {"scissione-pagamenti",
         "Iva versata dal cliente (scissione dei pagamenti): non è prevista per un condominio"_it},
        {"inversione-contabile", "Inversione contabile (N6): non è prevista per un condominio"_it},
        {"integrazione-o-autofattura", "Documento emesso dal cliente (integrazione o autofattura)"},
        {"tipo-sconosciuto", "Il tipo del documento non è noto: è proposto come fattura"_it},
        {"tipo-assente", "Il file non dice il tipo del documento: è proposto come fattura"_it},
        {"importi-negativi: diventa nota di credito", "Importi negativi: è proposta come nota di credito"_it},
        {"nota di credito con importi negativi",
         "Nota di credito con importi negativi: gli importi sono registrati positivi"},
        {"netto-negativo", "Il netto da pagare è negativo"_it},
        {"ritenuta-maggiore-del-totale", "La ritenuta supera il totale del documento"},
        {"base-ritenuta-maggiore-del-documento", "La base della ritenuta supera il documento"},
        {"importi-fuori-misura", "Gli importi sono fuori misura"},
        {"riepilogo-assente", "Il file non ha riepilogo iva"},
        {"numero-assente", "Il file non ha il numero del documento"},
        {"fornitore-assente", "Il file non dice chi è il fornitore"_it},
        {"aliquota-assente", "Una riga del riepilogo non ha aliquota: è ricavata dagli importi"_it},
        {"data-assente-o-errata", "La data del documento manca o non è una data"_it},
        {"firma-non-verificata", "Il file è firmato: firma non verificata"_it},
    };
    return kVoci;
}

}  // namespace

std::string in_parole(const std::string& codice, const FatturaLetta& f) {
    if (codice.starts_with("divisa-")) return "Il documento è in "_it + vicino(f.divisa) + ", non in euro";
    for (const Voce& v : voci())
        if (codice == v.codice)
            return codice == "tipo-sconosciuto" ? v.parole + " (" + vicino(f.tipo) + ")" : v.parole;
    return vicino(codice);
}

}  // namespace ambra
