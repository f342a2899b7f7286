#include "ledger/lumstcr.h"

#include "core/date.h"
#include "core/testo.h"

namespace ambra {

namespace {

constexpr int kRigheMinime = 28;  // the heading row counted

}  // namespace

Lumstcr::Lumstcr(Programma& p) : Schermo(p, "lumstcr", "Dettaglio ritenute d'acconto") {
    using enum Allineamento;
    filtri.monta(*this);
    aggiungi("elenco", elenco);
    comandi.monta(
        *this, [this] { riempi(); }, [this] { stampa(); });
    elenco.colonne({{"Fornitore", 6495, sinistra},
                    {"Fattura", 1100, sinistra},
                    {"Data fattura", 1100, sinistra},
                    {"Imponibile", 1100, destra},
                    {"Totale fattura", 1100, destra},
                    {"Data pagam.", 1100, sinistra},
                    {"Rit.acconto", 1100, destra},
                    {"Versata il", kResto, sinistra},
                    {},
                    {}});
    fornitori_ = quanti_fornitori(p.arc);
    fatture_ = quante_fatture(p.arc);
    riempi();
}

void Lumstcr::riempi() {
    const Riempimento inizio(prog, elenco);
    const IntervalloNomi intervallo = filtri.nomi.intervallo();
    const std::string dal = filtri.periodo.dal(), al = filtri.periodo.al();
    const auto voce = [&](const RecFattura& f) -> std::optional<Voce> {
        const std::string_view registrata = f.datareg.grezzo();
        if (registrata < dal || registrata > al) return {};
        const ImportiDocumento i = importi(f);
        return Voce{f.numdoc,          f.datadoc,
                    f.dver[0],         f.dverrit,
                    f.cancellata == 1, {i.impon * segno(f), i.totale() * segno(f), i.rac * segno(f)}};
    };
    const DocumentiPerFornitore<Voce> documenti(prog.arc, fatture_, voce);
    Somme generale;
    per_fornitore(prog.arc, fornitori_, [&](int numero, const RecFornitore& f) {
        if (f.cancellata == 0 && intervallo.contiene(f)) generale += scheda(numero, f, documenti.di(numero));
    });
    aggiungi_totale("Totale complessivo", "", generale);
    nrighe_ = elenco.righe();
    completa(elenco, kRigheMinime);
}

Lumstcr::Somme Lumstcr::scheda(int numero, const RecFornitore& fornitore, std::span<const Voce> documenti) {
    Somme somme;
    bool primo = true;
    for (const Voce& v : documenti) {
        elenco.aggiungi({primo ? fornitore.inte1.testo() : "", v.eliminata ? "Eliminata" : v.numdoc.testo(),
                         mostra_aaaammgg(v.datadoc.testo()), prog.fmtimporto(v.importi.imponibile),
                         prog.fmtimporto(v.importi.totale), data_o_nulla(v.pagata),
                         prog.fmtimporto(v.importi.ritenuta), data_o_nulla(v.versata), "",
                         primo ? std::to_string(numero) : ""});
        primo = false;
        somme += v.importi;
    }
    if (!documenti.empty()) {
        aggiungi_totale("", "Totale", somme);
        elenco.aggiungi();
    }
    return somme;
}

void Lumstcr::aggiungi_totale(std::string_view fornitore, std::string_view fattura, const Somme& s) {
    elenco.aggiungi({fornitore, fattura, "", prog.fmtimporto(s.imponibile), prog.fmtimporto(s.totale), "",
                     prog.fmtimporto(s.ritenuta)});
}

void Lumstcr::stampa() {
    stampa_elenco(prog, elenco, nrighe_,
                  {.titolo_domanda = "Stampa schede fornitori",
                   .titolo = "Dettaglio ritenute acconto",
                   .colonne = {{{"Fornitore", 30, 0}, 0},
                               {{"Fattura", 8, 0}, 1},
                               {{"Data", 8, 0}, 2},
                               {{"Imponibile", 9, 1}, 3},
                               {{"Totale", 9, 1}, 4},
                               {{"Pagamento", 8, 0}, 5},
                               {{"Rit.Acconto", 9, 1}, 6},
                               {{"Versata", 8, 0}, 7}}});
}

}  // namespace ambra
