#include "reports/lumstcf.h"

#include "core/date.h"
#include "core/numeri.h"
#include "core/testo.h"

namespace ambra {

namespace {

constexpr int kRigheMinime = 26;
// Hidden columns: the record and the four sort keys.
constexpr int kRecord = 8, kNumero = 9, kData = 10, kNome = 11, kImporto = 12;

}  // namespace

Lumstcf::Lumstcf(Programma& p) : Schermo(p, "lumstcf", "Elenco fatture ricevute") {
    using enum Allineamento;
    periodo.monta(*this);
    aggiungi("srx", srx);
    aggiungi("elenco", elenco);
    comandi.monta(
        *this, [this] { riempi(); }, [this] { stampa(); });
    for (std::size_t i = 0; i < srx.size(); ++i) srx[i].premuto = [this, i] { ordina(static_cast<int>(i)); };
    for (const std::size_t i : {0u, 1u, 2u, 4u}) srx[i].caption("Riordina");
    elenco.colonne({{"Fattura", 1255, sinistra},
                    {"Data", 1000, sinistra},
                    {"Fornitore", 4500, sinistra},
                    {"Pagamento", 2980, sinistra},
                    {"Importo", 1100, destra},
                    {"Ritenuta", 1100, destra},
                    {"Dovuto", 1100, destra},
                    {"Versato", kResto, destra},
                    {},
                    {},
                    {},
                    {},
                    {}});
    carica_pagamenti(p.disco, p.err, pagamenti_);
    riempi();
}

void Lumstcf::riempi() {
    const Riempimento inizio(prog, elenco);
    totimporto_ = totversato_ = 0;
    const std::string dal = periodo.dal(), al = periodo.al();
    per_documento(prog.arc, quante_fatture(prog.arc),
                  [&](int n, const RecFattura& f, const RecFornitore& fornitore) {
                      const std::string_view registrata = f.datareg.grezzo();
                      if (registrata >= dal && registrata <= al) aggiungi_documento(n, f, fornitore);
                  });
    aggiungi_chiusura();
}

void Lumstcf::aggiungi_documento(int n, const RecFattura& f, const RecFornitore& fornitore) {
    const ImportiDocumento i = importi(f);
    // Of a credit note only these two change sign.
    const double importo = i.totale() * segno(f), versato = i.ver * segno(f);
    const std::string pagamento =
        f.cancellata == 1 ? "Fattura eliminata" : nome_termine(pagamenti_, f.modpag);
    const std::string numero = f.numdoc.testo(), nome = fornitore.inte1.testo();
    const int r = elenco.aggiungi({numero, mostra_aaaammgg(f.datadoc.testo()), nome, pagamento,
                                   prog.fmtimporto(importo), prog.fmtimporto(i.rac), prog.fmtimporto(i.sca),
                                   prog.fmtimporto(versato), testo_con_segno(n), numero, f.datadoc.testo(),
                                   nome, testo_con_segno(importo)});
    elenco.chiave(r, n);
    totimporto_ += importo;
    totversato_ += versato;
}

// The total row, whose keys come after any real one, and the blank rows, whose keys come after those.
void Lumstcf::aggiungi_chiusura() {
    const double somma = totimporto_ + totversato_;
    // The total of "Importo" stands under "Dovuto".
    const int r = elenco.aggiungi({"", "", "Totale", "", "", "", prog.fmtimporto(totimporto_),
                                   prog.fmtimporto(totversato_), "", "zzzzzz99999999", "zzzzzz99999999",
                                   "zzzzzzTotale", testo_con_segno(somma)});
    elenco.chiave(r, kRigaTotale);
    prog.rigacorr = nrighe = elenco.righe();
    while (elenco.righe() < kRigheMinime)
        elenco.aggiungi({"", "", "", "", "", "", "", "", "", "zzzzzzz", "zzzzzzz", "zzzzzzz",
                         testo_con_segno(somma + 1)});
}

void Lumstcf::ordina(int etichetta) {
    if (etichetta == 0) elenco.ordina_dati(kNumero, Ordine::generico);
    if (etichetta == 1) elenco.ordina_dati(kData, Ordine::generico);
    if (etichetta == 2) elenco.ordina_dati(kNome, Ordine::generico);
    if (etichetta == 4) elenco.ordina(kImporto, Ordine::numerico);
    fuoco(periodo.text1[0]);
}

void Lumstcf::stampa() {
    stampa_elenco(
        prog, elenco, nrighe,
        {.domanda = "Iniziare la stampa (è consigliabile stampare questo prospetto in orizzontale)?"_it,
         .titolo_domanda = "Stampa elenco fatture ricevute",
         .titolo = "Elenco fatture ricevute",
         .colonne = {{{"Reg.", 6, 0}, kRecord},
                     {{"Fattura", 9, 0}, 0},
                     {{"Data", 9, 0}, 1},
                     {{"Fornitore", 29, 0}, 2},
                     {{"Pagamento", 20, 0}, 3},
                     {{"Importo", 9, 1}, 4},
                     {{"Ritenuta", 9, 1}, 5},
                     {{"Dovuto", 9, 1}, 6},
                     {{"Versato", 9, 1}, 7}}});
}

}  // namespace ambra
