#include "suppliers/consultazione.h"

#include "core/testo.h"

namespace ambra {

int cerca_nome(FileDi<RecNome>& srf, int quanti, std::string_view chiave) {
    int basso = 1, alto = quanti + 1, precedente = 0;
    RecNome r{};
    for (;;) {
        const int mezzo = basso + (alto - basso) / 2;
        if (mezzo == precedente) return 0;
        leggi(srf, mezzo, r);
        precedente = mezzo;
        const std::string inizio = maiuscolo(sinistra(r.nome.testo(), chiave.size()));
        if (inizio == chiave) return mezzo;
        (chiave > inizio ? basso : alto) = mezzo;
    }
}

Consultazione::Consultazione(Programma& p) : prog_(p) {
    l_nome.caption("Nome fornitore da cercare:");
    l_cerca.caption(
        "Per cercare un fornitore utilizzare il cursore a lato oppure inserire nel campo sottostante il nome "
        "(o parte di esso) del fornitore e clic sul bottone 'cerca'");
    nome.caption(l_nome.caption());
    HScroll1.limiti(1, 1);
}

void Consultazione::registra_ricerca(Schermo& s) {
    s.aggiungi("l_cerca", l_cerca);
    s.aggiungi("l_nome", l_nome);
    s.aggiungi("nome", nome);
    s.aggiungi("b_cerca", b_cerca);
    s.aggiungi("b_lista", b_lista);
    s.aggiungi("HScroll1", HScroll1);
}

void Consultazione::leggi_totali() {
    leggi(prog_.arc.tfr, 1, totali);
}

void Consultazione::scrivi_totali() {
    scrivi(prog_.arc.tfr, 1, totali);
}

void Consultazione::mostra() {
    if (movepos == 0) {
        moverec = 0;
        scheda.svuota();
        return;
    }
    leggi(prog_.arc.srf, movepos, indice);
    moverec = indice.numero;
    leggi(prog_.arc.fornitori, moverec, fornitore);
    scheda.mostra(fornitore);
}

void Consultazione::cercafor(Schermo& s, const std::function<void()>& arriva) {
    prog_.err.azzera();
    const std::string chiave = maiuscolo(rifila(nome.testo()));
    leggi_totali();
    const int trovato = cerca_nome(prog_.arc.srf, quanti(), chiave);
    if (trovato > 0) {
        movepos = trovato;
        // Others may have added suppliers since the cursor's limits were set.
        if (trovato > HScroll1.massimo()) HScroll1.limiti(1, quanti());
        HScroll1.valore(trovato);
    } else {
        prog_.piattaforma.message_box("Anagrafica non trovata", "Attenzione", Icona::esclamazione,
                                      Bottoni::ok, Risposta::ok);
    }
    arriva();
    nome.testo("");
    s.fuoco(nome);
}

void Consultazione::apri_lista(int chi) {
    prog_.nuovafattura = chi;
    if (Schermo* s = prog_.schermi.carica("mrvsel"))
        if (auto* filtro = dynamic_cast<CampoTesto*>(s->trova("selnome")))
            filtro->testo(std::string(rifila(nome.testo())));
    prog_.schermi.apri("mrvsel");
}

}  // namespace ambra
