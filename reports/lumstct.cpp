#include "reports/lumstct.h"

#include "core/testo.h"

namespace ambra {

namespace {

constexpr int kRigheMinime = 26;

}  // namespace

Lumstct::Lumstct(Programma& p) : Schermo(p, "lumstct", "Elenco fornitori") {
    nomi.monta(*this, "Dal fornitore", "Al fornitore");
    aggiungi("srx", srx);
    aggiungi("elenco", elenco);
    comandi.monta(
        *this, [this] { riempi(); }, [this] { stampa(); });
    for (std::size_t i = 0; i < srx.size(); ++i) {
        srx[i].caption("Riordina");
        srx[i].premuto = [this, i] { ordina(static_cast<int>(i)); };
    }
    elenco.colonne(
        {{"Nome", 4245}, {"", 3000}, {"Indirizzo", 3000}, {"CAP", 900}, {"Città"_it, kResto}, {}, {}, {}});
    riempi();
}

void Lumstct::riempi() {
    const Riempimento inizio(prog, elenco);
    const IntervalloNomi intervallo = nomi.intervallo();
    prog.rigacorr = 1;
    per_fornitore(prog.arc, quanti_fornitori(prog.arc), [&](int numero, const RecFornitore& f) {
        if (f.cancellata != 0 || !intervallo.contiene(f)) return;
        ++prog.rigacorr;
        elenco.aggiungi({f.inte1.testo(), f.inte2.testo(), f.indir.testo(), f.cap.testo(), f.citta.testo(),
                         "", "", std::to_string(numero)});
    });
    nrighe = prog.rigacorr;
    completa(elenco, kRigheMinime);
}

void Lumstct::ordina(int colonna) {
    const int prima = elenco.righe();
    elenco.righe(nrighe);  // the blank rows take no part
    elenco.ordina(colonna, Ordine::generico);
    elenco.righe(prima);
    fuoco(nomi.t_inizio);
}

void Lumstct::stampa() {
    stampa_elenco(prog, elenco, nrighe,
                  {.titolo_domanda = "Stampa elenco fornitori",
                   .titolo = "Elenco fornitori",
                   .colonne = {{{"Nominativo", 30, 0}, 0},
                               {{"", 30, 0}, 1},
                               {{"Indirizzo", 30, 0}, 2},
                               {{"CAP", 8, 0}, 3},
                               {{"Città"_it, 30, 0}, 4}}});
}

}  // namespace ambra
