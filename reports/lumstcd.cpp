#include "reports/lumstcd.h"

#include "core/date.h"
#include "core/numeri.h"
#include "core/testo.h"

namespace ambra {

namespace {

constexpr int kRigheMinime = 26;
// Hidden columns: the sort keys.
constexpr int kNumero = 7, kNome = 8, kScadenza = 9, kPagamento = 10;

}  // namespace

Lumstcd::Lumstcd(Programma& p) : Schermo(p, "lumstcd", "Scadenziario fatture ricevute") {
    using enum Allineamento;
    periodo.monta(*this);
    aggiungi("Text2", Text2, "Fornitore");
    aggiungi("Combo1", Combo1, "Pagamento");
    aggiungi("srx", srx);
    aggiungi("elenco", elenco);
    comandi.monta(
        *this, [this] { riempi(); }, [this] { stampa(); });
    for (std::size_t i = 0; i < srx.size(); ++i) srx[i].premuto = [this, i] { ordina(static_cast<int>(i)); };
    for (const std::size_t i : {0u, 2u, 4u, 6u}) srx[i].caption("Riordina");
    elenco.colonne({{"Fattura", 1100, sinistra},
                    {"Data", 1000, sinistra},
                    {"Fornitore", 5000, sinistra},
                    {"Importo", 1000, destra},
                    {"Scadenza", 1000, sinistra},
                    {"Scoperto", 1000, destra},
                    {"Pagamento", kResto, sinistra},
                    {},
                    {},
                    {},
                    {}});
    carica_pagamenti(p.disco, p.err, pagamenti_);
    Combo1.aggiungi("Tutti le modalità"_it);
    for (int i = 0; i < kTermini; ++i) Combo1.aggiungi(nome_termine(pagamenti_, i));
    Combo1.scelta(0);
    Combo1.cambiato = [this] { riempi(); };
    riempi();
}

bool Lumstcd::Filtro::passa(const RecFattura& f, const RecFornitore& fornitore) const {
    if (!nome.empty() && maiuscolo(sinistra(fornitore.inte1.testo(), nome.size())) != nome) return false;
    if (termine > 0 && termine - 1 != f.modpag) return false;
    return f.cancellata != 1;
}

void Lumstcd::riempi() {
    const Riempimento inizio(prog, elenco);
    nrighe = 0;
    prog.rigacorr = 1;
    totimporto_ = totscoperto_ = 0;
    const Filtro filtro{periodo.dal(), periodo.al(), maiuscolo(rifila(Text2.testo())), Combo1.scelta()};
    per_documento(prog.arc, quante_fatture(prog.arc),
                  [&](int, const RecFattura& f, const RecFornitore& fornitore) {
                      if (filtro.passa(f, fornitore)) aggiungi_scadenze(f, fornitore, filtro);
                  });
    aggiungi_chiusura();
}

void Lumstcd::aggiungi_scadenze(const RecFattura& f, const RecFornitore& fornitore, const Filtro& filtro) {
    const double totsca = somma(f.sca) * segno(f);
    for (std::size_t k = 0; k < 4; ++k) {
        if (!(f.sca[k] > f.ver[k])) continue;
        const std::string data = da_ggmmaaaa_a_aaaammgg(f.dsca[k].testo());
        if (data < filtro.dal || data > filtro.al) continue;
        const double scoperto = (f.sca[k] - f.ver[k]) * segno(f);
        const std::string numero = f.numdoc.testo(), nome = fornitore.inte1.testo();
        const std::string termine = nome_termine(pagamenti_, f.modpag);
        scrivi_riga(1, {numero, mostra_aaaammgg(f.datadoc.testo()), nome, prog.fmtimporto(totsca),
                        mostra_ggmmaaaa(f.dsca[k].testo()), prog.fmtimporto(scoperto), termine, numero, nome,
                        data, termine});
        totimporto_ += totsca;
        totscoperto_ += scoperto;
    }
}

void Lumstcd::scrivi_riga(long chiave, std::initializer_list<Griglia::Contenuto> celle) {
    ++prog.rigacorr;
    elenco.chiave(elenco.aggiungi(celle), chiave);
}

// The total row, whose keys come after any real one, and the blank rows, whose keys come after those.
void Lumstcd::aggiungi_chiusura() {
    scrivi_riga(kRigaTotale, {"", "", "Totale", "", "", prog.fmtimporto(totscoperto_), "", "99999999",
                              "zzzzzz", "99999999", "zzzzzz"});
    nrighe = prog.rigacorr;
    while (elenco.righe() < kRigheMinime)
        elenco.aggiungi({"", "", "", "", "", "", "", "zzzzzzz", "zzzzzzz", "zzzzzzz", "zzzzzzz"});
}

void Lumstcd::ordina(int etichetta) {
    if (etichetta == 0) elenco.ordina_dati(kNumero, Ordine::generico);
    if (etichetta == 2) elenco.ordina_dati(kNome, Ordine::generico);
    if (etichetta == 4) elenco.ordina_dati(kScadenza, Ordine::generico);
    if (etichetta == 6) elenco.ordina_dati(kPagamento, Ordine::generico);
    fuoco(periodo.text1[0]);
}

void Lumstcd::stampa() {
    stampa_elenco(prog, elenco, nrighe,
                  {.titolo_domanda = "Stampa scadenziario fatture ricevute",
                   .titolo = "Scadenziario",
                   .colonne = {{{"Fattura", 9, 0}, 0},
                               {{"Data", 9, 0}, 1},
                               {{"Fornitore", 25, 0}, 2},
                               {{"Importo", 11, 1}, 3},
                               {{"Scadenza", 9, 0}, 4},
                               {{"Scoperto", 11, 1}, 5},
                               {{"Pagamento", 25, 0}, 6}}});
}

}  // namespace ambra
