#include "invoices/mrvtpag.h"

#include "core/numeri.h"
#include "core/testo.h"

namespace ambra {

namespace {

std::string mostra_numero(std::string_view gruppo) {
    const double v = leggi_numero(gruppo);
    return v == 0 ? "" : testo_numero(v);
}

std::string tre_cifre(std::string_view testo) {
    return std::string(destra("000" + testo_numero(leggi_numero(testo)), 3));
}

}  // namespace

RigaTermine leggi_codice(std::string_view codice) {
    RigaTermine r;
    for (std::size_t i = 0; i < 4; ++i) r.mesi[i] = mostra_numero(medio(codice, 1 + 3 * i, 3));
    r.fine = medio(codice, 13, 1) == "F";
    r.giorni = mostra_numero(medio(codice, 14, 3));
    return r;
}

std::string componi_codice(const RigaTermine& r) {
    std::string c;
    for (const auto& m : r.mesi) c += tre_cifre(m);
    return c + (r.fine ? "F" : "N") + tre_cifre(r.giorni);
}

Mrvtpag::Mrvtpag(Programma& p) : Schermo(p, "mrvtpag", "Tabella modalità di pagamento"_it) {
    registra();
    for (std::size_t k = 0; k < kRighe; ++k) collega_riga(k);
    selpag.limiti(1, 46);
    selpag.cambiato = [this] { mostra_pagina(); };
    indice[0].premuto = [this] {
        prog.err.azzera();
        salva_pagamenti(prog.disco, prog.err, tabella_);
        prog.schermi.chiudi("mrvtpag");
    };
    indice[1].premuto = [this] { prog.schermi.chiudi("mrvtpag"); };
    prog.err.azzera();
    carica_pagamenti(prog.disco, prog.err, tabella_);
    mostra_pagina();
    fuoco(text1[0]);
}

void Mrvtpag::registra() {
    aggiungi("frame", frame, "Tabella modalità di pagamento e frazionamento in scadenze"_it);
    aggiungi("guida", guida);
    guida[0].caption(
        "Per ciascuna rata indicate nella sezione 'frazionamento in scadenze' il numero di mesi del quale il "
        "pagamento deve essere posticipato.");
    guida[1].caption(
        "Ad esempio per un pagamento a 60/90/120 giorni indicare nella prima colonna il numero 2 (60 "
        "giorni=2 "
        "mesi), nella seconda il numero 3 (90 giorni=3 mesi) e nella terza il numero 4 (120 giorni=4 mesi).");
    guida[2].caption(
        "Se volete anche posticipare il pagamento a fine mese evidenziate la casella di controllo 'fine "
        "mese'.");
    aggiungi("l_modalita", l_modalita, "Modalità di pagamento"_it);
    aggiungi("l_frazionamento", l_frazionamento, "Frazionamento in scadenze");
    aggiungi("l_giorni", l_giorni, "giorni");
    for (std::size_t k = 0; k < kRighe; ++k) {
        aggiungi(nome_elemento("numero", k), numero[k]);
        aggiungi(nome_elemento("text1", k), text1[k]);
        aggiungi(nome_elemento("sc1", k), sc1[k]);
        aggiungi(nome_elemento("sc2", k), sc2[k]);
        aggiungi(nome_elemento("sc3", k), sc3[k]);
        aggiungi(nome_elemento("sc4", k), sc4[k]);
        aggiungi(nome_elemento("fine", k), fine[k], "Fine mese +");
        aggiungi(nome_elemento("sc5", k), sc5[k]);
    }
    aggiungi("selpag", selpag);
    aggiungi("indice", indice);
    indice[0].caption("Conferma");
    indice[1].caption("Annulla");
}

void Mrvtpag::collega_riga(std::size_t k) {
    text1[k].cambiato = [this, k] {
        if (!riempie_) termine(k).nome = text1[k].testo();
    };
    for (auto* c : {&sc1[k], &sc2[k], &sc3[k], &sc4[k], &sc5[k]}) c->cambiato = [this, k] { componi(k); };
    fine[k].cambiato = [this, k] { componi(k); };

    const std::array<Controllo*, 7> riga = {&text1[k], &sc1[k], &sc2[k], &sc3[k], &sc4[k], &fine[k], &sc5[k]};
    for (std::size_t i = 0; i + 1 < riga.size(); ++i)
        riga[i]->invio = [this, prossimo = riga[i + 1]] { fuoco(*prossimo); };
    sc5[k].invio = [this, k] { riga_seguente(k); };
}

TabellaPagamenti::Termine& Mrvtpag::termine(std::size_t k) {
    return tabella_.termine[static_cast<std::size_t>(selpag.valore()) + k];
}

void Mrvtpag::mostra_pagina() {
    riempie_ = true;
    for (std::size_t k = 0; k < kRighe; ++k) {
        const auto& t = termine(k);
        const RigaTermine r = leggi_codice(t.codice);
        numero[k].caption(std::to_string(static_cast<std::size_t>(selpag.valore()) + k));
        text1[k].testo(t.nome);
        sc1[k].testo(r.mesi[0]);
        sc2[k].testo(r.mesi[1]);
        sc3[k].testo(r.mesi[2]);
        sc4[k].testo(r.mesi[3]);
        fine[k].spuntata(r.fine);
        sc5[k].testo(r.giorni);
    }
    riempie_ = false;
}

void Mrvtpag::componi(std::size_t k) {
    if (riempie_) return;
    termine(k).codice = componi_codice({{sc1[k].testo(), sc2[k].testo(), sc3[k].testo(), sc4[k].testo()},
                                        fine[k].spuntata(),
                                        sc5[k].testo()});
}

void Mrvtpag::riga_seguente(std::size_t k) {
    if (k + 1 < kRighe) {
        fuoco(text1[k + 1]);
        return;
    }
    if (selpag.valore() < 16) selpag.valore(selpag.valore() + 1);
    fuoco(text1[kRighe - 1]);
}

}  // namespace ambra
