#include "suppliers/consultazione.h"

#include <utility>

#include "core/lettura.h"
#include "core/testo.h"
#include "suppliers/mrvsel.h"

namespace ambra {

int cerca_nome(FileDi<RecNome>& srf, int quanti, std::string_view chiave) {
    int basso = 1, alto = quanti + 1, precedente = 0;
    RecNome r{};
    for (;;) {
        const int mezzo = basso + (alto - basso) / 2;
        if (mezzo == precedente) return 0;
        leggi_o_resta(srf, mezzo, r);
        precedente = mezzo;
        const std::string inizio = maiuscolo(sinistra(r.nome.testo(), chiave.size()));
        if (inizio == chiave) return mezzo;
        (chiave > inizio ? basso : alto) = mezzo;
    }
}

Consultazione::Consultazione(Programma& p) : mano(p.arc), prog_(p), io_(this, [](Consultazione*) {}) {
    l_nome.caption("Nome fornitore da cercare:");
    l_cerca.caption(
        "Per cercare un fornitore utilizzare il cursore a lato oppure inserire nel campo sottostante il nome "
        "(o parte di esso) del fornitore e clic sul bottone 'cerca'");
    nome.caption(l_nome.caption());
    HScroll1.limiti(1, 1);
}

void Consultazione::registra_ricerca(Schermo& s) {
    schermo_ = &s;
    s.aggiungi("l_cerca", l_cerca);
    s.aggiungi("l_nome", l_nome);
    s.aggiungi("nome", nome);
    s.aggiungi("b_cerca", b_cerca);
    s.aggiungi("b_lista", b_lista);
    s.aggiungi("HScroll1", HScroll1);
}

void Consultazione::leggi_totali() {
    leggi_o_resta(prog_.arc.tfr, 1, totali);
}

void Consultazione::mostra() {
    scelto_ = 0;
    if (movepos == 0) {
        moverec = 0;
        scheda.svuota();
        return;
    }
    leggi_o_resta(prog_.arc.srf, movepos, indice);
    moverec = indice.numero;
    leggi_o_resta(prog_.arc.fornitori, moverec, fornitore);
    scheda.mostra(fornitore);
    mano.prendi(movepos, moverec, fornitore);
    RecFornitore intatto = fornitore;
    scheda.in_record(intatto);
    mano.base(intatto);
}

void Consultazione::scelto(long n, const std::string& chi) {
    nome.testo(chi);
    scelto_ = n;
    nome_scelto_ = chi;
}

// The position of the supplier chosen in the list, whatever the order of the index; 0 if there is none, or he
// was deleted since.
int Consultazione::cerca_scelto() {
    if (!sospeso()) return 0;
    const long n = std::exchange(scelto_, 0);
    RecFornitore f{};
    if (!leggi(prog_.arc.fornitori, n, f) || !ambra::vivo(f)) return 0;
    const int qui = posto_nell_indice(prog_.arc, quanti(), n);
    if (qui == 0) return 0;
    vai(qui);
    // A cursor that moves over an index out of order may have put it in order.
    return posto_nell_indice(prog_.arc, quanti(), n);
}

int Consultazione::cerca() {
    if (const int chi = cerca_scelto()) return chi;
    return cerca_nome(prog_.arc.srf, quanti(), maiuscolo(rifila(nome.testo())));
}

void Consultazione::vai(int posto) {
    movepos = posto;
    // Others may have added suppliers since the cursor's limits were set.
    if (posto > HScroll1.massimo()) HScroll1.limiti(1, quanti());
    HScroll1.valore(posto);
}

void Consultazione::mostra_trovato() {
    if (arriva) return arriva();
    mostra();
}

void Consultazione::anticipa() {
    if (!sospeso()) return;
    const long n = scelto_;
    leggi_totali();
    if (const int trovato = cerca_scelto()) {
        vai(trovato);
        mostra_trovato();
    }
    scelto_ = n;
}

void Consultazione::cercafor() {
    prog_.err.azzera();
    leggi_totali();
    if (const int trovato = cerca()) {
        vai(trovato);
    } else {
        prog_.piattaforma.message_box("Anagrafica non trovata", "Attenzione", Icona::esclamazione,
                                      Bottoni::ok, Risposta::ok);
    }
    mostra_trovato();
    nome.testo("");
    schermo_->fuoco(nome);
}

void Consultazione::apri_lista(int chi) {
    prog_.nuovafattura = chi;
    auto& lista = prog_.schermi.carica<Mrvsel>("mrvsel");
    lista.chiamante = io_;
    lista.selnome.testo(std::string(rifila(nome.testo())));
    prog_.schermi.apri("mrvsel");
}

}  // namespace ambra
