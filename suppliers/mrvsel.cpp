#include "suppliers/mrvsel.h"

#include "core/testo.h"
#include "ledger/documenti.h"
#include "suppliers/consultazione.h"

namespace ambra {

namespace {

constexpr int kRigheMassime = 32000, kRigheMinime = 26;

}  // namespace

Mrvsel::Mrvsel(Programma& p) : Schermo(p, "mrvsel", "Selezione fornitore") {
    aggiungi("selnome", selnome);
    aggiungi("srx", srx);
    aggiungi("elenco", elenco);
    aggiungi("indice", indice);
    selnome.visible(false);
    for (int k = 0; k < 4; ++k) {
        auto& etichetta = srx[static_cast<std::size_t>(k)];
        etichetta.caption("Riordina");
        etichetta.premuto = [this, k] { ordina(k); };
    }
    elenco.colonne({{"Nominativo", 4300}, {"", 3200}, {"Indirizzo", 3200}, {"Città"_it, kResto}, {"", 0}},
                   14000, 340);
    elenco.scelto = [this](int r, int) { scegli(r); };
    indice.premuto = via_d_uscita = [this] { esci(); };
    attivata = [this](Attivazione) {
        riempi();
        fuoco(elenco);
    };
}

void Mrvsel::riempi() {
    prog.err.azzera();
    elenco.ridisegna(false);
    elenco.righe(1);
    righe = 1;
    const std::string chiave(rifila(maiuscolo(selnome.testo())));
    per_fornitore(prog.arc, quanti_fornitori(prog.arc), [&](int numero, const RecFornitore& f) {
        if (righe >= kRigheMassime || !vivo(f)) return;
        if (!chiave.empty() && maiuscolo(f.inte1.rifilato()).find(chiave) == std::string::npos) return;
        const int riga = elenco.aggiungi(
            {f.inte1.testo(), f.inte2.testo(), f.indir.testo(), f.citta.testo(), std::to_string(numero)});
        elenco.chiave(riga, numero);
        ++righe;
    });
    if (righe < kRigheMinime) elenco.righe(kRigheMinime);
    elenco.ridisegna(true);
}

void Mrvsel::ordina(int colonna) {
    const int prima = elenco.righe();
    if (righe < kRigheMinime) elenco.righe(righe);
    elenco.ordina(colonna, Ordine::generico);
    prog.piattaforma.refresh();
    elenco.righe(prima);
    fuoco(elenco);
}

void Mrvsel::scegli(int riga) {
    const long record = elenco.chiave(riga);
    if (record <= 0) return;
    const std::string nome = elenco.testo(riga, 0);
    selnome.testo(nome);
    const std::weak_ptr<Consultazione> suo = chiamante;
    if (const auto c = suo.lock()) c->scelto(record, std::string(rifila(nome)));
    prog.nuovafattura = lista::scelto;
    prog.schermi.chiudi("mrvsel");
    if (const auto c = suo.lock()) c->anticipa();
}

void Mrvsel::esci() {
    if (const auto c = chiamante.lock()) c->nome.testo("");
    prog.nuovafattura = lista::niente;
    prog.schermi.chiudi("mrvsel");
}

}  // namespace ambra
