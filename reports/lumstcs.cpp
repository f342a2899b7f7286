#include "reports/lumstcs.h"

#include "core/date.h"
#include "core/testo.h"

namespace ambra {

namespace {

constexpr int kRigheMinime = 28;

}  // namespace

Lumstcs::Lumstcs(Programma& p) : Schermo(p, "lumstcs", "Schede fornitori") {
    using enum Allineamento;
    filtri.monta(*this);
    aggiungi("elenco", elenco);
    comandi.monta(
        *this, [this] { riempi(); }, [this] { stampa(); });
    elenco.colonne({{"Fornitore", 6555, sinistra},
                    {"Fattura", 1000, sinistra},
                    {"Data", 1000, sinistra},
                    {"Forma di pagamento", 3200, sinistra},
                    {"Importo", 1200, destra},
                    {"Scoperto", kResto, destra},
                    {}});
    carica_pagamenti(p.disco, p.err, pagamenti_);
    riempi();
}

void Lumstcs::riempi() {
    const Riempimento inizio(prog, elenco);
    const IntervalloNomi intervallo = filtri.nomi.intervallo();
    const std::string dal = filtri.periodo.dal(), al = filtri.periodo.al();
    const auto voce = [&](const RecFattura& f) -> std::optional<Voce> {
        const std::string_view registrata = f.datareg.grezzo();
        if (registrata < dal || registrata > al) return {};
        const ImportiDocumento i = importi(f);
        return Voce{f.numdoc, f.datadoc, f.modpag, i.totale() * segno(f), (i.sca - i.ver) * segno(f)};
    };
    const DocumentiPerFornitore<Voce> documenti(prog.arc, quante_fatture(prog.arc), voce);
    prog.rigacorr = 1;
    per_fornitore(prog.arc, quanti_fornitori(prog.arc), [&](int numero, const RecFornitore& f) {
        if (f.cancellata == 0 && intervallo.contiene(f)) scheda(numero, f, documenti.di(numero));
    });
    nrighe = prog.rigacorr;
    completa(elenco, kRigheMinime);
}

void Lumstcs::scheda(int numero, const RecFornitore& fornitore, std::span<const Voce> documenti) {
    if (documenti.empty()) return;
    double totimporto = 0, totscoperto = 0;
    bool primo = false;
    for (const Voce& v : documenti) {
        elenco.aggiungi({primo ? "" : fornitore.inte1.testo(), v.numdoc.testo(),
                         mostra_aaaammgg(v.datadoc.testo()), nome_termine(pagamenti_, v.modpag),
                         prog.fmtimporto(v.importo), prog.fmtimporto(v.scoperto),
                         primo ? "" : std::to_string(numero)});
        primo = true;
        totimporto += v.importo;
        totscoperto += v.scoperto;
    }
    elenco.aggiungi({"", "", "", "Totale", prog.fmtimporto(totimporto), prog.fmtimporto(totscoperto)});
    elenco.aggiungi();
    prog.rigacorr = elenco.righe();
}

void Lumstcs::stampa() {
    stampa_elenco(prog, elenco, nrighe,
                  {.titolo_domanda = "Stampa schede fornitori",
                   .titolo = "Schede fornitori",
                   .colonne = {{{"Fornitore", 30, 0}, 0},
                               {{"Fattura", 8, 0}, 1},
                               {{"Data", 9, 0}, 2},
                               {{"Forma di pagamento", 26, 0}, 3},
                               {{"Importo", 10, 1}, 4},
                               {{"Scoperto", 10, 1}, 5}}});
}

}  // namespace ambra
