#include "suppliers/lumftem.h"

namespace ambra {

void nuova_fattura(Programma& p) {
    p.tornada = -99;
    p.modofattura = p.recfattura = p.recfornitore = p.statofattura = 0;
    p.nuovafattura = 1;
}

Lumftem::Lumftem(Programma& p)
    : Schermo(p, "lumftem", p.statofattura == 1 ? "Modifica fornitore" : "Selezione fornitore"), dati(p) {
    prog.err.azzera();
    dati.registra_ricerca(*this);
    aggiungi("b_ins", b_ins);
    aggiungi("b_fine", b_fine);
    dati.scheda.registra_sede_legale(*this);
    dati.scheda.registra_sede_amministrativa(*this);
    dati.scheda.registra_contabili(*this);
    dati.scheda.carica_termini(prog);

    // What is typed or clicked in a field is taken back: the fields only show.
    const auto rifiuta = [this] {
        dati.scheda.ripristina();
        fuoco(dati.nome);
    };
    dati.scheda.toccato(rifiuta);
    dati.scheda.per_ogni_campo([this](Controllo& c) { c.ricevuto = [this] { fuoco(dati.nome); }; });
    for (auto& c : dati.scheda.Text2) c.sola_lettura = true;

    const auto cerca = [this] { dati.cercafor(); };
    dati.nome.invio = cerca;
    dati.b_cerca.premuto = cerca;
    dati.b_lista.premuto = [this] { dati.apri_lista(lista::per_lumftem); };
    dati.HScroll1.cambiato = [this] { sposta(); };
    b_ins.premuto = [this] { continua(); };
    b_fine.premuto = via_d_uscita = [this] { esci(); };
    attivata = [this](Attivazione come) { attiva(come); };
}

void Lumftem::attiva(Attivazione come) {
    if (come == Attivazione::aperta) {
        modo_ = prog.statofattura;
        fornitore_ = prog.recfornitore;
    }
    const bool nuova = prog.nuovafattura == lista::per_lumfor;
    prog.nuovafattura = lista::per_lumfor;
    if (dati.sospeso()) {
        dati.cercafor();
    } else if (nuova) {
        prepara();
    }
}

void Lumftem::prepara() {
    prog.err.azzera();
    dati.leggi_totali();
    const int quanti = dati.quanti();
    dati.movepos = quanti < 1 ? 0 : 1;
    if (per_modifica())
        if (const int suo = posto_nell_indice(prog.arc, quanti, fornitore_)) dati.movepos = suo;
    prepara_ = true;
    dati.HScroll1.limiti(1, quanti);
    dati.HScroll1.valore(dati.movepos);
    prepara_ = false;
    dati.mostra();
    fuoco(dati.nome);
}

void Lumftem::sposta() {
    if (prepara_ || dati.quanti() < 2) return;
    dati.movepos = dati.HScroll1.valore();
    dati.mostra();
}

void Lumftem::continua() {
    if (!dati.vivo() || !prog.riferisci(dati.mano.ritrova())) return;
    if (dati.mano.eliminato()) return dati.mostra();  // in the register, since he was shown
    dati.dimentica();
    // The invoice that asked has been left since: nobody waits for a supplier.
    if (per_modifica() && prog.statofattura != 1) return prog.schermi.nascondi("lumftem");
    if (!per_modifica()) nuova_fattura(prog);
    prog.recfornitore = dati.moverec;
    prog.schermi.nascondi("lumftem");
    prog.schermi.apri("lumftea");
}

void Lumftem::esci() {
    if (per_modifica()) {
        prog.schermi.nascondi("lumftem");
    } else {
        prog.schermi.chiudi("lumftem");
    }
}

}  // namespace ambra
