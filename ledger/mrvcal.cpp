#include "ledger/mrvcal.h"

#include <algorithm>

#include "core/date.h"
#include "core/lettura.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "ledger/lumpgr.h"
#include "screen/colori.h"

namespace ambra {

namespace {

enum Colonne { kScadenza, kCodice, kMese, kAnno, kImporto, kFatture, kStato, kNota };

std::string codice(const RigaRitenute& r) {
    return std::to_string(static_cast<int>(r.codice));
}
std::string mese(const RigaRitenute& r) {
    return con_zeri(r.mese % 12 + 1, 2);
}
std::string anno(const RigaRitenute& r) {
    return con_zeri(r.mese / 12, 4);
}

std::string parole(Famiglia f) {
    return f == Famiglia::lavori ? "ritenute del 4%" : "ritenute sui compensi";
}

std::string parola(StatoTermine s) {
    switch (s) {
        case StatoTermine::scaduto:
            return "scaduta";
        case StatoTermine::da_versare:
            return "da versare";
        case StatoTermine::in_formazione:
            return "in formazione";
    }
    return {};
}

long colore_di_stato(StatoTermine s) {
    return s == StatoTermine::scaduto         ? colore::rosso
           : s == StatoTermine::in_formazione ? colore::giallo
                                              : colore::nessuno;
}

}  // namespace

Mrvcal::Mrvcal(Programma& p) : Schermo(p, "mrvcal", "Scadenze delle ritenute") {
    using enum Allineamento;
    aggiungi("elenco", elenco);
    aggiungi("finora", finora);
    aggiungi("scelto", scelto);
    aggiungi("dettaglio", dettaglio);
    aggiungi("senza", senza);
    aggiungi("segna", segna, "Segna nel versamento");
    aggiungi("riepilogo", riepilogo, "Riepilogo per il consulente");
    comandi.monta(
        *this, [this] { riempi(); }, [this] { stampa(); });
    elenco.colonne({{"Scadenza", 1200, sinistra},
                    {"Codice tributo", 1300, centro},
                    {"Mese", 700, centro},
                    {"Anno", 800, centro},
                    {"Importo", 1300, destra},
                    {"Fatture", 900, destra},
                    {"Stato", 1400, sinistra},
                    {"Nota", kResto, sinistra}});
    dettaglio.colonne({{"Fornitore", kResto, sinistra},
                       {"Fattura", 1255, sinistra},
                       {"Data", 1100, sinistra},
                       {"Pagamento", 1100, sinistra},
                       {"Importo", 1200, destra},
                       {"Ritenuta", 1200, destra}});
    senza.colonne({{"Pagamenti senza data: fornitore", kResto, sinistra},
                   {"Fattura", 1255, sinistra},
                   {"Data", 1100, sinistra},
                   {"Importo", 1200, destra},
                   {"Ritenuta", 1200, destra}});
    elenco.scelto = [this](int r, int) { scegli(r); };
    segna.premuto = [this] { segna_nel_versamento(); };
    riepilogo.premuto = [this] { prog.schermi.apri("mrvcau"); };
    attivata = [this](Attivazione) { riempi(); };
}

// ---- the list ----

// What was chosen stays chosen where it is still there.
void Mrvcal::riempi() {
    std::string prima;
    const auto chiave = [this](int r) {
        return unisci(elenco.vista(r, kScadenza), elenco.vista(r, kCodice), elenco.vista(r, kMese),
                      elenco.vista(r, kAnno));
    };
    if (scelta_ > 0) prima = chiave(scelta_);
    const Riempimento inizio(prog, elenco);
    ritenute_ = scadenze_ritenute(prog.arc);
    for (const RigaRitenute& r : ritenute_.righe) aggiungi_riga(r);
    scelta_ = elenco.righe() > 1 ? 1 : 0;
    for (int r = 1; r < elenco.righe(); ++r)
        if (chiave(r) == prima) scelta_ = r;
    mostra_finora();
    senza.righe(1);
    for (const PagamentoRitenuta& p : ritenute_.senza_data) aggiungi_pagamento(senza, p);
    senza.visible(senza.righe() > 1);
    segna.enabled(scelta_ > 0);
    mostra_scelta();
}

void Mrvcal::aggiungi_riga(const RigaRitenute& r) {
    const Termine& t = ritenute_.termini[r.termine];
    const StatoTermine s = stato_di(t);
    const std::vector<std::size_t> documenti = ritenute_.documenti_di(r.pagamenti);
    const int n = elenco.aggiungi({testo_data(t.scadenza), codice(r), mese(r), anno(r), importo(r.importo),
                                   std::to_string(documenti.size()), parola(s), nota(r, documenti)});
    elenco.colora(n, kStato, colore_di_stato(s));
}

std::string Mrvcal::nota(const RigaRitenute& r, const std::vector<std::size_t>& documenti) const {
    std::string esito;
    const auto voce = [&](std::string_view s) { esito += unisci(esito.empty() ? "" : "; ", s); };
    const auto nomina = [&](const char* che_cosa, auto quali) {
        std::string nomi;
        for (const std::size_t d : documenti) {
            const DocumentoRitenuta& doc = ritenute_.documenti[d];
            if (!quali(doc)) continue;
            nomi += unisci(nomi.empty() ? ": " : ", ", doc.numero.rifilato(), " ",
                           ritenute_.fornitore_di(doc).nome);
        }
        if (!nomi.empty()) voce(che_cosa + nomi);
    };
    if (r.importo < 0) voce("a credito: non va nel foglio per l'F24");
    nomina("da controllare", [&](const DocumentoRitenuta& d) {
        return r.codice == CodiceTributo::persone && ritenute_.fornitore_di(d).percettore.da_controllare;
    });
    nomina("pagate in parte", [](const DocumentoRitenuta& d) { return !d.intero; });
    nomina("eliminate", [](const DocumentoRitenuta& d) { return d.eliminato; });
    return esito;
}

std::string Mrvcal::importo(Centesimi c) const {
    return prog.fmtimporto(static_cast<double>(c) / 100);
}

void Mrvcal::mostra_finora() {
    const auto t = std::ranges::find_if(
        ritenute_.termini, [this](const Termine& x) { return stato_di(x) == StatoTermine::in_formazione; });
    finora.visible(t != ritenute_.termini.end());
    if (!finora.visible()) return finora.caption("");
    const auto euro = [](Centesimi c) {
        return formatta(static_cast<double>(c) / 100, Formato::due_decimali);
    };
    finora.caption(unisci("finora ", euro(t->importo), ": a ", euro(soglia(t->famiglia, t->al_mese / 12)),
                          " o il ", testo_data(t->scadenza)));
}

// ---- the choice ----

void Mrvcal::scegli(int riga) {
    if (riga < 1 || riga >= elenco.righe()) return;
    scelta_ = riga;
    mostra_scelta();
}

void Mrvcal::mostra_scelta() {
    for (int r = 1; r < elenco.righe(); ++r)
        for (int c = 0; c <= kNota; ++c)
            if (c != kStato) elenco.colora(r, c, r == scelta_ ? colore::segnato : colore::nessuno);
    dettaglio.righe(1);
    if (scelta_ == 0) return scelto.caption("Nessuna ritenuta da versare.");
    const RigaRitenute& riga = ritenute_.righe[static_cast<std::size_t>(scelta_ - 1)];
    const Termine& t = ritenute_.termini[riga.termine];
    scelto.caption(
        unisci("Scadenza del ", testo_data(t.scadenza), ", ", parole(t.famiglia), ": ", importo(t.importo)));
    for (const std::size_t i : riga.pagamenti) aggiungi_pagamento(dettaglio, ritenute_.pagamenti[i]);
}

void Mrvcal::aggiungi_pagamento(Griglia& g, const PagamentoRitenuta& p) {
    const DocumentoRitenuta& d = ritenute_.documento_di(p);
    std::vector<std::string> celle = {ritenute_.fornitore_di(d).nome, d.numero.rifilato(),
                                      mostra_aaaammgg(d.data.testo())};
    if (p.data) celle.push_back(testo_data(*p.data));
    celle.push_back(importo(p.pagato));
    celle.push_back(importo(p.ritenuta));
    const int r = g.aggiungi();
    for (std::size_t c = 0; c < celle.size(); ++c) g.scrivi(r, static_cast<int>(c), celle[c]);
}

// The list is made anew first, so that the records are those of the list that lumpgr makes.
void Mrvcal::segna_nel_versamento() {
    riempi();
    if (scelta_ == 0) return;
    const RigaRitenute& riga = ritenute_.righe[static_cast<std::size_t>(scelta_ - 1)];
    std::vector<long> record;
    for (const std::size_t d : ritenute_.documenti_di(ritenute_.termini[riga.termine].trattenute))
        if (ritenute_.documenti[d].intero) record.push_back(ritenute_.documenti[d].record);
    std::ranges::sort(record);
    prog.tornada = -99;
    prog.schermi.apri("lumpgr");
    if (auto* versamento = dynamic_cast<Lumpgr*>(prog.schermi.caricato("lumpgr"))) versamento->segna(record);
}

// ---- print ----

void Mrvcal::stampa() {
    if (!prog.chiedi("Iniziare la stampa?", "Stampa scadenze delle ritenute")) return;
    RecStabile2 stabile = prog.stabile2;
    leggi_o_resta(prog.arc.edifici2, prog.numero_stabile(), stabile);
    Stampa lavoro(prog, "Ritenute da versare con il modello F24", 6,
                  {{"Scadenza", 11, 0},
                   {"Codice fiscale", 18, 0},
                   {"Codice tributo", 14, 0},
                   {"Mese", 8, 0},
                   {"Anno", 8, 0},
                   {"Importo", 13, 1}});
    Centesimi totale = 0;
    const auto riga = [&](std::initializer_list<std::string> celle) {
        int k = 0;
        for (const std::string& c : celle) lavoro.cella(++k) = c;
        lavoro.riga();
    };
    for (const RigaRitenute& r : ritenute_.righe) {
        if (r.importo <= 0) continue;
        riga({testo_data(ritenute_.termini[r.termine].scadenza), stabile.codfisc.rifilato(), codice(r),
              mese(r), anno(r), importo(r.importo)});
        totale += r.importo;
    }
    if (totale > 0) riga({"Totale", "", "", "", "", importo(totale)});
    lavoro.fine();
}

}  // namespace ambra
