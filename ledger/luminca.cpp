#include "ledger/luminca.h"

#include "core/date.h"
#include "core/lettura.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "ledger/documenti.h"
#include "ledger/lumincx.h"
#include "ledger/scadenza_ritenuta.h"

namespace ambra {

namespace {

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
        aggiungi(nome_elemento("dver", n), dver[n]);
        aggiungi(nome_elemento("dve", n), dve[n]);
        aggiungi(nome_elemento("ver", n), ver[n]);
        aggiungi(nome_elemento("rata", n), rata[n],
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
        dver[n].lasciato = [this, n] { return riordina_data(dver[n]); };
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
    documento_.prendi(prog.recfattura);
    leggi_o_resta(prog.arc.fornitori, documento_.visto().numfor, fornitore_);
    addebitato_ = false;
    riempi_campi();
    documento_.base([this](RecFattura& f) { riempi_documento(f); });
    for (std::size_t n = 0; n < kRate; ++n) dve[n].testo(prog.oggi());
    fuoco(dver[0]);
}

void Luminca::riempi_campi() {
    const RecFattura& f = documento_.visto();
    Text2[0].testo(f.numdoc.rifilato());
    Text2[1].testo(mostra_aaaammgg(f.datadoc.testo()));
    Text2[2].testo(mostra_aaaammgg(f.datareg.testo()));
    Text2[3].testo(nome_termine(termini_, f.modpag));
    for (std::size_t k = 0; k < kRate; ++k) {
        // The first instalment always shows its date, blank or not.
        dsca[k].testo(k == 0 ? mostra_ggmmaaaa(f.dsca[k].testo()) : data_o_nulla(f.dsca[k]));
        sca[k].testo(prog.fmtimporto(f.sca[k]));
        dsca[kRate + k].testo(data_o_nulla(f.dver[k]));
        sca[kRate + k].testo(prog.fmtimporto(f.ver[k]));
        dver[k].testo("");
        ver[k].testo("");
    }
    dver[kRitenuta].testo(data_o_nulla(f.dscarit));
    dve[kRitenuta].testo(dver[kRitenuta].testo());
    const double totale = somma(f.impon) + somma(f.ivai) + somma(f.esent);
    total.testo(prog.fmtimporto(totale) + " ");
}

// ---- the fields ----

void Luminca::data_cambiata(std::size_t n) {
    const std::string& data = dver[n].testo();
    if (!ha_data(data)) return;
    dve[n].testo(data);
    if (n < kRate) dver[kRitenuta].testo(scadenza_ritenuta(data));
}

bool Luminca::rata_pagata(std::size_t k) {
    const double residuo = documento_.visto().sca[k] - documento_.visto().ver[k];
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
    RecFattura ora{};
    if (!prog.riferisci(documento_.anteprima([this](RecFattura& f) { riempi_documento(f); }, ora))) return;
    prog.tornada = 0;
    if (!addebitato_ && da_addebitare(ora) &&
        prog.chiedi("Addebitare il pagamento nella contabilità del condominio?"_it, "Pagamento fattura")) {
        const EsitoAddebito esito = addebita_pagamento();
        if (esito == EsitoAddebito::non_iniziato) return;
        addebitato_ = esito == EsitoAddebito::memorizzato;
    }
    if (prog.riferisci(registra_pagamenti())) prog.schermi.nascondi(nome());
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
bool Luminca::da_addebitare(const RecFattura& f) {
    return leggi_numero(f.addebita.testo()) == 0;
}

EsitoAddebito Luminca::addebita_pagamento() {
    const RecFattura& f = documento_.visto();
    MovimentoUscita u;
    double importo = 0;
    u.data = prog.oggi();
    for (std::size_t n = kRate; n-- > 0;)
        if (data_valida(dver[n].testo())) u.data = dver[n].testo();
    for (const auto& v : ver) importo += leggi_numero(v.testo());
    u.descrizione[0] = fornitore_.inte1.testo();
    u.descrizione[1] = descrizione_documento(f.tipodc == 1, Text2[0].testo(), Text2[1].testo());
    u.importo = importo * segno(f);
    u.contodefault = fornitore_.conto;
    u.singolo = f.riporta.testo() == "1";
    return addebita(*this, u);
}

// The dates of a payment; its amounts are added to what was paid by then, and with them the rest is decided.
// An empty date wipes that of an earlier payment, while its amount stays.
void Luminca::riempi_documento(RecFattura& f) const {
    const auto data = [](const CampoTesto& c) {
        return ha_data(c.testo()) ? in_ggmmaaaa(c.testo()) : std::string{};
    };
    for (std::size_t n = 0; n < kRate; ++n) f.dver[n] = data(dver[n]);
    f.dscarit = data(dver[kRitenuta]);
}

DocumentoInMano::Esito Luminca::registra_pagamenti() {
    const Clessidra attesa(prog);
    prog.err.azzera();
    const auto salda = [this](RecFattura& f) {
        for (std::size_t n = 0; n < kRate; ++n) f.ver[n] = f.ver[n] + leggi_numero(ver[n].testo());
        if (somma(f.sca) != somma(f.ver)) return;
        f.pagata = 1;
        if (addebitato_) f.addebita = "1";
    };
    return documento_.scrivi([this](RecFattura& f) { riempi_documento(f); }, salda,
                             DocumentoInMano::Contatori::nessuno);
}

}  // namespace ambra
