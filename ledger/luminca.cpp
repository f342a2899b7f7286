#include "ledger/luminca.h"

#include "core/date.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "ledger/documenti.h"
#include "ledger/lumincx.h"
#include "ledger/scadenza_ritenuta.h"

namespace ambra {

namespace {

constexpr std::size_t kRate = 4;
constexpr std::size_t kRitenuta = 4;  // of dver and dve
constexpr std::size_t kCifreData = 10;

bool ha_data(std::string_view s) {
    return leggi_numero(s) > 0;
}

}  // namespace

Luminca::Luminca(Programma& p) : Schermo(p, "luminca", "Pagamento fatture") {
    registra();
    collega();
    carica_pagamenti(prog.disco, prog.err, termini_);
}

void Luminca::registra() {
    aggiungi("Text2", Text2);
    aggiungi("dsca", dsca);
    aggiungi("sca", sca);
    for (std::size_t n = 0; n < kRate; ++n) {
        const std::string indice_n = "(" + std::to_string(n) + ")";
        aggiungi("dver" + indice_n, dver[n]);
        aggiungi("dve" + indice_n, dve[n]);
        aggiungi("ver" + indice_n, ver[n]);
        aggiungi("rata" + indice_n, rata[n],
                 unisci("La ", std::to_string(n + 1), "' rata è stata integralmente pagata?"_it));
    }
    aggiungi("dver(4)", dver[kRitenuta]);
    aggiungi("dve(4)", dve[kRitenuta]);
    aggiungi("total", total);
    aggiungi("tutta", tutta, "Tutta la fattura è stata integralmente pagata?"_it);
    aggiungi("conferma", conferma, "Conferma");
    aggiungi("indice", indice, "Annulla");

    for (auto& c : Text2) c.sola_lettura = true;
    for (auto& c : dsca) c.sola_lettura = true;
    for (auto& c : sca) c.sola_lettura = c.importo = true;
    for (auto& c : ver) c.importo = true;
    for (auto& c : dver) c.massimo = kCifreData;
    total.sola_lettura = total.importo = true;
}

void Luminca::collega() {
    for (auto& c : Text2) c.ricevuto = [this] { fuoco(dver[0]); };
    for (auto& c : dsca) c.ricevuto = [this] { fuoco(dver[0]); };
    for (auto& c : sca) c.ricevuto = [this] { fuoco(dver[0]); };
    for (std::size_t n = 0; n < dver.size(); ++n) {
        dver[n].cambiato = [this, n] { data_cambiata(n); };
        dver[n].lasciato = [this, n] { return data_lasciata(n); };
        dve[n].digitato = [this, n] { dver[n].testo(dve[n].testo()); };
    }
    for (std::size_t n = 0; n < kRate; ++n) {
        dver[n].invio = [this, n] {
            if (dver[n].lascia()) fuoco(ver[n]);
        };
        ver[n].invio = [this, n] {
            if (n + 1 < kRate) fuoco(dver[n + 1]);
        };
        rata[n].premuto = [this, n] {
            if (rata_pagata(n)) fuoco(dver[n]);
        };
    }
    tutta.premuto = [this] {
        for (std::size_t n = 0; n < kRate; ++n) rata_pagata(n);
        fuoco(dver[0]);
    };
    conferma.premuto = [this] { confermato(); };
    indice.premuto = [this] { prog.schermi.nascondi(nome()); };
    via_d_uscita = indice.premuto;
    attivata = [this](Attivazione come) {
        if (come == Attivazione::aperta && prog.tornada == -99) apertura();
    };
}

// ---- opening ----

void Luminca::apertura() {
    prog.err.azzera();
    record_ = prog.recfattura;
    leggi(prog.arc.tfr, 2, totali_);
    leggi(prog.arc.ftr, record_, fattura_);
    leggi(prog.arc.fornitori, fattura_.numfor, fornitore_);
    carico_ = true;
    riempi_campi();
    carico_ = false;
    for (std::size_t n = 0; n < kRate; ++n) dve[n].testo(prog.oggi());
    fuoco(dver[0]);
}

void Luminca::riempi_campi() {
    Text2[0].testo(fattura_.numdoc.rifilato());
    Text2[1].testo(mostra_aaaammgg(fattura_.datadoc.testo()));
    Text2[2].testo(mostra_aaaammgg(fattura_.datareg.testo()));
    Text2[3].testo(nome_termine(termini_, fattura_.modpag));
    for (std::size_t k = 0; k < kRate; ++k) {
        // The first instalment always shows its date, blank or not.
        dsca[k].testo(k == 0 ? mostra_ggmmaaaa(fattura_.dsca[k].testo()) : data_o_nulla(fattura_.dsca[k]));
        sca[k].testo(prog.fmtimporto(fattura_.sca[k]));
        dsca[kRate + k].testo(data_o_nulla(fattura_.dver[k]));
        sca[kRate + k].testo(prog.fmtimporto(fattura_.ver[k]));
        dver[k].testo("");
        ver[k].testo("");
    }
    dver[kRitenuta].testo(data_o_nulla(fattura_.dscarit));
    dve[kRitenuta].testo(dver[kRitenuta].testo());
    const double totale = somma(fattura_.impon) + somma(fattura_.ivai) + somma(fattura_.esent);
    total.testo(prog.fmtimporto(totale) + " ");
}

// ---- the fields ----

void Luminca::data_cambiata(std::size_t n) {
    const std::string& data = dver[n].testo();
    if (carico_ || !ha_data(data)) return;
    dve[n].testo(data);
    if (n < kRate) dver[kRitenuta].testo(scadenza_ritenuta(data));
}

bool Luminca::data_lasciata(std::size_t n) {
    const std::string data = dver[n].testo();
    if (data.size() != kCifreData) return !ha_data(data);
    dver[n].testo(unisci(sinistra(data, 2), "/", medio(data, 4, 2), "/", destra(data, 4)));
    return true;
}

bool Luminca::rata_pagata(std::size_t k) {
    const double residuo = fattura_.sca[k] - fattura_.ver[k];
    if (residuo == 0) return false;
    const std::string oggi = prog.oggi();
    dver[k].testo(oggi);
    dve[k].testo(oggi);
    ver[k].testo(testo_numero(residuo));
    return true;
}

// ---- confirmation ----

void Luminca::confermato() {
    if (!date_valide()) return;
    prog.tornada = 0;
    if (da_addebitare() &&
        prog.chiedi("Addebitare il pagamento nella contabilità del condominio?"_it, "Pagamento fattura"))
        addebita_pagamento();
    registra_pagamenti();
    prog.schermi.nascondi(nome());
}

bool Luminca::date_valide() {
    for (std::size_t n = 0; n < kRate; ++n) {
        if (data_valida(dver[n].testo()) || leggi_numero(ver[n].testo()) == 0) continue;
        prog.ferma("Una o più date di versamento non sono valide"_it);
        fuoco(dver[n]);
        return false;
    }
    return true;
}

// A mark that cannot be read as a number counts as "0".
bool Luminca::da_addebitare() const {
    return leggi_numero(fattura_.addebita.testo()) == 0;
}

void Luminca::addebita_pagamento() {
    MovimentoUscita u;
    double importo = 0;
    for (std::size_t n = kRate; n-- > 0;)
        if (!rifila(dver[n].testo()).empty()) u.data = dver[n].testo();
    for (const auto& v : ver) importo += leggi_numero(v.testo());
    u.descrizione[0] = fornitore_.inte1.testo();
    u.descrizione[1] = descrizione_documento(fattura_.tipodc == 1, Text2[0].testo(), Text2[1].testo());
    u.importo = importo * segno(fattura_);
    u.contodefault = fornitore_.conto;
    u.singolo = fattura_.riporta.testo() == "1";
    addebita(prog, u);
}

void Luminca::registra_pagamenti() {
    Clessidra attesa(prog);
    prog.err.azzera();
    // An empty date wipes that of an earlier payment, while its amount stays.
    for (std::size_t n = 0; n < kRate; ++n) {
        const std::string& data = dver[n].testo();
        fattura_.dver[n] = ha_data(data) ? in_ggmmaaaa(data) : std::string{};
    }
    const std::string& scadenza = dver[kRitenuta].testo();
    fattura_.dscarit = ha_data(scadenza) ? in_ggmmaaaa(scadenza) : std::string{};
    for (std::size_t n = 0; n < kRate; ++n) fattura_.ver[n] = fattura_.ver[n] + leggi_numero(ver[n].testo());
    if (somma(fattura_.sca) == somma(fattura_.ver)) {
        fattura_.pagata = 1;
        if (prog.tornada == 1) fattura_.addebita = "1";
    }
    scrivi(prog.arc.ftr, record_, fattura_);
}

}  // namespace ambra
