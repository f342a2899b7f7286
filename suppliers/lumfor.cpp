#include "suppliers/lumfor.h"

#include <cstring>

#include "core/testo.h"
#include "screen/colori.h"
#include "suppliers/duplica.h"
#include "suppliers/lumwait.h"
#include "suppliers/ordinamento.h"

namespace ambra {

namespace {

constexpr int kRigheMinime = 5;
// Between two turns of the interface while the index is rebuilt.
constexpr int kOgniTanti = 64;

}  // namespace

Lumfor::Lumfor(Programma& p) : Schermo(p, "lumfor", "Gestione archivio fornitori"), dati(p) {
    prog.err.azzera();
    registra();
    for (Controllo* c :
         std::initializer_list<Controllo*>{&siono, &b_conferma, &b_annulla, &srt, &Label4, &srtval})
        c->visible(false);
    b_copia.enabled(false);
    dati.scheda.carica_termini(prog);
    carica_conti();
    dati.leggi_totali();
    if (dati.quanti() >= 1) {
        dati.movepos = 1;
        dati.HScroll1.limiti(1, dati.quanti());
    }
    mostra();
    collega();
    fuoco(dati.nome);
}

void Lumfor::registra() {
    dati.registra_ricerca(*this);
    dati.scheda.registra_sede_legale(*this);
    aggiungi("b_copia", b_copia);
    dati.scheda.registra_sede_amministrativa(*this);
    dati.scheda.registra_contabili(*this);
    aggiungi("elenco", elenco);
    aggiungi("siono", siono);
    aggiungi("b_conferma", b_conferma);
    aggiungi("b_annulla", b_annulla);
    aggiungi("b_ins", b_ins);
    aggiungi("b_mod", b_mod);
    aggiungi("b_dup", b_dup);
    aggiungi("b_srt", b_srt);
    aggiungi("b_eli", b_eli);
    aggiungi("b_fine", b_fine);
    aggiungi("srt", srt);
    aggiungi("Label4", Label4);
    aggiungi("srtval", srtval);
}

void Lumfor::collega() {
    const auto cerca = [this] {
        if (stato == kSfoglia) dati.cercafor();
    };
    dati.arriva = [this] { mostra(); };
    dati.HScroll1.cambiato = [this] { sposta(); };
    dati.nome.invio = cerca;
    dati.b_cerca.premuto = cerca;
    dati.b_lista.premuto = [this] { dati.apri_lista(lista::per_lumfor); };
    dati.scheda.toccato([this] { toccato(); });
    elenco.scelto = [this](int riga, int) { scegli_conto(riga); };
    b_copia.premuto = [this] { copia_indirizzo(); };
    b_ins.premuto = [this] {
        if (stato != kSfoglia) return;
        dati.scheda.svuota();
        entra(kInserisce);
    };
    b_mod.premuto = [this] {
        if (stato != kInserisce && dati.vivo()) entra(kModifica);
    };
    b_eli.premuto = [this] { elimina(); };
    b_dup.premuto = [this] { duplica(); };
    b_srt.premuto = [this] { ricostruiscisrf(); };
    b_conferma.premuto = [this] { conferma(); };
    b_annulla.premuto = [this] { annulla(); };
    b_fine.premuto = [this] { prog.schermi.chiudi("lumfor"); };
    attivata = [this](Attivazione) {
        prog.nuovafattura = lista::niente;
        if (dati.sospeso()) dati.cercafor();
    };
}

// ---- the accounts ----

void Lumfor::carica_conti() {
    TabellaVoci voci;
    carica_voci(prog.disco, prog.err, prog.nnn(), voci);
    conti_ = elenca_conti(prog.arc, voci, 1, kVociSpesa);
    elenco.colonne({{"Voce di bilancio", 5000}, {"Conto", kResto}, {"", 0}, {"", 0}, {"", 0}}, 10000, 320);
    elenco.ridisegna(false);
    for (const auto& c : conti_)
        elenco.aggiungi({c.voce, c.conto, std::to_string(c.numero_voce), std::to_string(c.numero_conto)});
    if (elenco.righe() < kRigheMinime) elenco.righe(kRigheMinime);
    elenco.ridisegna(true);
}

void Lumfor::segna_conto(int riga) {
    const auto colora = [this](int r, long rgb) {
        elenco.colora(r, 0, rgb);
        elenco.colora(r, 1, rgb);
    };
    elenco.ridisegna(false);
    if (elenco.colore(1, 0) < 0) {
        for (int r = 1; r < elenco.righe(); ++r) colora(r, colore::bianco);
    } else if (conto_segnato_ > 0) {
        colora(conto_segnato_, colore::bianco);
    }
    conto_segnato_ = riga;
    if (riga > 0) colora(riga, colore::segnato);
    elenco.ridisegna(true);
}

void Lumfor::scegli_conto(int riga) {
    if (riga < 1 || riga > static_cast<int>(conti_.size())) return;
    if (stato == kSfoglia && dati.vivo()) stato = kModifica;
    if (stato == kSfoglia) return;
    const RigaConto& c = conti_[static_cast<std::size_t>(riga - 1)];
    segna_conto(riga);
    dati.fornitore.conto = idconto(c.numero_voce, c.numero_conto);
    entra(stato);
}

// ---- the supplier in hand ----

void Lumfor::mostra() {
    dati.mostra();
    if (dati.movepos == 0) return;
    int riga = 0;
    for (std::size_t i = 0; i < conti_.size() && riga == 0; ++i)
        if (idconto(conti_[i].numero_voce, conti_[i].numero_conto) == dati.fornitore.conto)
            riga = static_cast<int>(i) + 1;
    segna_conto(riga);
    if (riga > 0) elenco.prima_visibile(riga);
}

void Lumfor::sposta() {
    if (stato != kSfoglia || dati.quanti() < 2) return;
    ordinasrf();
    dati.movepos = dati.HScroll1.valore();
    mostra();
}

// An edit or a click in a field of the supplier.
void Lumfor::toccato() {
    if (stato != kSfoglia) return;
    if (dati.vivo()) {
        entra(kModifica);
    } else {
        dati.scheda.ripristina();
    }
}

void Lumfor::entra(int nuovo) {
    stato = nuovo;
    for (Controllo* c :
         std::initializer_list<Controllo*>{&dati.HScroll1, &dati.l_nome, &dati.l_cerca, &dati.nome})
        c->visible(false);
    dati.b_cerca.enabled(false);
    dati.b_lista.enabled(false);
    b_copia.enabled(true);
    for (Controllo* c : std::initializer_list<Controllo*>{&siono, &b_conferma, &b_annulla}) c->visible(true);
    fuoco(dati.scheda.Text2[0]);
}

void Lumfor::esci() {
    stato = kSfoglia;
    for (Controllo* c :
         std::initializer_list<Controllo*>{&dati.HScroll1, &dati.l_nome, &dati.l_cerca, &dati.nome})
        c->visible(true);
    dati.b_cerca.enabled(true);
    dati.b_lista.enabled(true);
    b_copia.enabled(false);
    for (Controllo* c : std::initializer_list<Controllo*>{&siono, &b_conferma, &b_annulla}) c->visible(false);
    fuoco(dati.nome);
}

void Lumfor::copia_indirizzo() {
    auto& t = dati.scheda.Text2;
    for (std::size_t i = 0; i < 5; ++i) t[8 + i].testo(std::string(rifila(t[i].testo())));
    fuoco(t[8]);
}

void Lumfor::annulla() {
    esci();
    // A row chosen in the list while something was typed here has waited.
    if (dati.sospeso()) return dati.cercafor();
    // Another program may have sorted the index meanwhile.
    if (dati.movepos > 0) dati.movepos = dati.mano.posto();
    mostra();
}

// ---- storing ----

void Lumfor::conferma() {
    prog.err.azzera();
    dati.leggi_totali();
    if (stato == kInserisce && !prog.riferisci(inserisci())) return;
    if (stato == kModifica && !prog.riferisci(modifica())) return;
    esci();
}

FornitoreInMano::Esito Lumfor::inserisci() {
    const Clessidra attesa(prog);
    RecFornitore nuovo = dati.fornitore;
    dati.scheda.in_record(nuovo);
    const auto esito = dati.mano.inserisci(nuovo);
    if (esito != FornitoreInMano::Esito::scritto) return esito;
    dati.fornitore = nuovo;
    dati.leggi_totali();
    dati.movepos = dati.mano.posto();
    dati.moverec = static_cast<int>(dati.mano.record());
    dati.HScroll1.limiti(1, dati.quanti());
    dati.HScroll1.valore(dati.movepos);
    return esito;
}

FornitoreInMano::Esito Lumfor::modifica() {
    const Clessidra attesa(prog);
    RecFornitore mio = dati.fornitore;
    dati.scheda.in_record(mio);
    const auto esito = dati.mano.cambia(mio);
    if (esito != FornitoreInMano::Esito::scritto) return esito;
    dati.fornitore = mio;
    dati.leggi_totali();
    // What was changed elsewhere meanwhile is shown with it.
    if (std::memcmp(&mio, &dati.mano.letto(), sizeof mio) != 0) {
        dati.movepos = dati.mano.posto();
        mostra();
    }
    return esito;
}

void Lumfor::elimina() {
    if (stato == kInserisce || !dati.vivo()) return;
    if (!prog.riferisci(dati.mano.ritrova())) return;
    if (!prog.chiedi_prudente("Sei proprio sicuro?", "Eliminazione anagrafica")) return;
    prog.err.azzera();
    const auto esito = [this] {
        const Clessidra attesa(prog);
        return dati.mano.elimina(dati.fornitore);
    }();
    if (!prog.riferisci(esito)) return;
    dati.leggi_totali();
    dati.movepos = dati.mano.posto();
    mostra();
    // A deleted supplier is not changed: a change under way ends here.
    if (stato == kModifica) esci();
}

void Lumfor::duplica() {
    if (stato == kInserisce || !dati.vivo() || !prog.riferisci(dati.mano.ritrova())) return;
    if (!prog.chiedi_prudente(
            "Questa procedura consente di duplicare il fornitore selezionato in tutti gli stabili. "
            "Sei proprio sicuro?",
            "Duplicazione anagrafica"))
        return;
    prog.err.azzera();
    RecFornitore ora{};
    if (!prog.riferisci(dati.mano.anteprima(dati.fornitore, ora))) return;
    if (!duplica_ovunque(ora)) prog.riferisci_occupato();
}

bool Lumfor::duplica_ovunque(const RecFornitore& f) {
    const Clessidra attesa(prog);
    prog.schermi.apri("lumwait");
    const bool tutti = ambra::duplica(prog, f, [this](const std::string& stabile) {
        if (auto* s = static_cast<Lumwait*>(prog.schermi.caricato("lumwait")))
            s->Label1.caption(unisci("Aggiorno lo stabile:", stabile));
        prog.piattaforma.refresh();
    });
    prog.schermi.chiudi("lumwait");
    return tutti;
}

// ---- sorting ----

void Lumfor::mostra_riordino(bool in_corso) {
    srt.visible(in_corso);
    Label4.visible(in_corso);
    srtval.visible(in_corso);
}

void Lumfor::ordinasrf() {
    prog.err.azzera();
    dati.leggi_totali();
    if (dati.totali.parola[1] == 0 || dati.quanti() < 2) return;
    if (!riordina(false)) prog.riferisci_occupato();
}

void Lumfor::ricostruiscisrf() {
    if (stato != kSfoglia) return;
    prog.err.azzera();
    dati.leggi_totali();
    if (dati.quanti() < 2) return;
    if (riordina(true)) {
        prog.informa("Riordino eseguito", "Riordino archivio");
    } else {
        prog.riferisci_occupato();
    }
}

// False: another program holds the archive. What that one has written is read again inside the lock.
bool Lumfor::riordina(bool da_rifare) {
    const Clessidra attesa(prog);
    const Sezione sezione(prog.arc.serratura, Serratura::fornitori);
    if (!sezione.presa()) return false;
    dati.leggi_totali();
    const int n = dati.quanti();
    mostra_riordino(true);
    if (da_rifare) {
        srtval.massimo(n);
        rifai_indice(prog.arc, n, dati.fornitore, [&](int i) {
            srtval.valore(i);
            if (i % kOgniTanti == 0 || i == n) prog.piattaforma.refresh();
        });
    }
    srtval.massimo(passate(n));
    ordina_indice(prog.arc, n, [this](int passata) {
        srtval.valore(passata);
        prog.piattaforma.refresh();
    });
    dati.leggi_totali();
    dati.movepos = 1;
    mostra_riordino(false);
    mostra();
    return true;
}

}  // namespace ambra
