// Read invoices made by hand for the tests of what is made of them.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "invoices/analisi.h"
#include "invoices/fattura_letta.h"

namespace ambra {

inline RiepilogoLetto riepilogo(const char* aliquota, const char* imponibile, const char* imposta,
                                const char* natura = "") {
    RiepilogoLetto r;
    r.aliquota = aliquota;
    r.imponibile = imponibile;
    r.imposta = imposta;
    r.natura = natura;
    return r;
}

inline RigaLetta riga(const char* totale, const char* aliquota, bool ritenuta = false) {
    RigaLetta r;
    r.totale = totale;
    r.aliquota = aliquota;
    r.ritenuta = ritenuta;
    return r;
}

inline CassaLetta cassa(const char* importo, const char* aliquota, bool ritenuta) {
    CassaLetta c;
    c.importo = importo;
    c.aliquota = aliquota;
    c.ritenuta = ritenuta;
    return c;
}

inline PagamentoLetto pagamento(const char* scadenza, const char* importo) {
    PagamentoLetto p;
    p.scadenza = scadenza;
    p.importo = importo;
    return p;
}

inline FatturaLetta fattura(std::vector<RiepilogoLetto> riepiloghi) {
    FatturaLetta f;
    f.tipo = "TD01";
    f.numero = "12/26";
    f.data = "2026-10-05";
    f.divisa = "EUR";
    f.fornitore.denominazione = "ROSSI SRL";
    f.riepiloghi = std::move(riepiloghi);
    return f;
}

inline FatturaLetta cento() {
    return fattura({riepilogo("22.00", "100.00", "22.00")});
}

/// The instalments, date and amount.
inline std::string rate(const std::vector<Rata>& tutte) {
    std::string s;
    for (const Rata& r : tutte) s += r.data + "=" + r.importo.testo() + " ";
    return s;
}

/// The warnings, parted by commas.
inline std::string avvisi(const Analisi& a) {
    std::string s;
    for (const auto& x : a.avvisi) s += (s.empty() ? "" : ", ") + x;
    return s;
}

}  // namespace ambra
