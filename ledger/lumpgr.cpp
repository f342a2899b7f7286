#include "ledger/lumpgr.h"

#include <algorithm>

#include "core/date.h"
#include "core/lettura.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "ledger/documenti.h"
#include "ledger/lumincx.h"
#include "screen/colori.h"
#include "screen/stampa.h"

namespace ambra {

namespace {

constexpr int kRigheMinime = 27;
constexpr int kColonneVisibili = 6;
constexpr int kRitenuta = 4, kChiave = 7;
const char* const kTitolo = "Versamento ritenute";
const char* const kTitoloStampa = "Dettaglio ritenute acconto versate";

}  // namespace

Lumpgr::Lumpgr(Programma& p) : Schermo(p, "lumpgr", "Versamento ritenute acconto") {
    aggiungi("Label1", Label1,
             "Seleziona le ritenute versate clickando sulla lista. Al termine clic su 'Conferma' per "
             "memorizzare il versamento.");
    aggiungi("elenco", elenco);
    aggiungi("text1", text1);
    aggiungi("txt", txt);
    aggiungi("stampante", stampante, "Conferma");
    aggiungi("command3d1", command3d1, "Stampa");
    aggiungi("command3d2", command3d2, "Imposta");
    aggiungi("indice", indice, "Annulla");
    txt.sola_lettura = txt.importo = true;

    using enum Allineamento;
    elenco.colonne({{"Fattura", 1255, sinistra},
                    {"Data", 1100, sinistra},
                    {"Fornitore", 8400, sinistra},
                    {"Importo", 1200, destra},
                    {"Rit.acconto", 1200, destra},
                    {"Scadenza", kResto, sinistra},
                    {"", 0, sinistra},
                    {"", 0, sinistra}},
                   14935);
    elenco.scelto = [this](int r, int) { clic(r); };
    stampante.premuto = [this] { confermato(); };
    command3d1.premuto = [this] { stampa(); };
    command3d2.premuto = [this] { prog.piattaforma.printer_setup(); };
    indice.premuto = [this] { prog.schermi.chiudi(nome()); };
    attivata = [this](Attivazione come) {
        if (come == Attivazione::aperta && prog.tornada == -99) apertura();
    };
    leggi_o_resta(prog.arc.tfr, 2, totali_);
}

// ---- the list ----

void Lumpgr::apertura() {
    prog.err.azzera();
    txt.testo("0");
    text1[0].testo(prog.oggi());
    riempi_elenco();
}

void Lumpgr::riempi_elenco() {
    Clessidra attesa(prog);
    elenco.ridisegna(false);
    elenco.righe(1);
    visti_.svuota();
    // A list made in the middle of somebody's reorganisation, or longer than the archive is by now, would
    // lack documents or show them twice, and their tax with them.
    const Sezione fermi(prog.arc.serratura, Serratura::documenti);
    const int quante = std::min<int>(totali_.parola[0], quante_fatture(prog.arc));
    Passata<RecFattura> documenti(prog.arc.ftr);
    Schedario<RecFornitore> schede(prog.arc.fornitori);
    for (int i = 1; i <= quante; ++i) {
        leggi_o_resta(documenti, i, fattura_);
        leggi_o_resta(schede, fattura_.numfor, fornitore_);
        const RecFattura& f = fattura_;
        const ImportiDocumento importo = importi(f);
        if (importo.rac == 0 || leggi_numero(f.dverrit.testo()) != 0) continue;
        const int r = elenco.aggiungi(
            {f.numdoc.testo(), mostra_aaaammgg(f.datadoc.testo()), fornitore_.inte1.testo(),
             f.cancellata == 1 ? "Fattura eliminata" : prog.fmtimporto(importo.totale() * segno(f)),
             prog.fmtimporto(importo.rac * segno(f)), mostra_ggmmaaaa(f.dscarit.testo()), std::to_string(i),
             da_ggmmaaaa_a_aaaammgg(f.dscarit.testo())});
        elenco.chiave(r, visti_.aggiungi(i, f));
        colora_riga(r, colore::bianco);
    }
    piene_ = elenco.righe() - 1;
    elenco.ordina(kChiave, Ordine::generico);
    if (piene_ < kRigheMinime) elenco.righe(1 + kRigheMinime);
    elenco.ridisegna(true);
}

bool Lumpgr::segnata(int riga) const {
    return elenco.colore(riga, 0) == colore::segnato;
}

void Lumpgr::colora_riga(int riga, long colore) {
    for (int c = 0; c < kColonneVisibili; ++c) elenco.colora(riga, c, colore);
}

void Lumpgr::clic(int riga) {
    if (elenco.chiave(riga) > 0) colora_riga(riga, segnata(riga) ? colore::bianco : colore::segnato);
    double totale = 0;
    for (int r = 1; r < elenco.righe(); ++r)
        if (segnata(r)) totale += valimporto_di(elenco.vista(r, kRitenuta));
    txt.testo(prog.fmtimporto(totale));
}

void Lumpgr::segna(std::span<const long> record) {
    for (int r = 1; r < elenco.righe(); ++r) {
        const int chiave = static_cast<int>(elenco.chiave(r));
        if (chiave > 0 && std::ranges::binary_search(record, visti_.posto(chiave))) elenco.scegli(r, 0);
    }
}

// ---- confirmation ----

void Lumpgr::confermato() {
    if (!prog.riferisci(tutte_ritrovate())) return;
    if (!prog.chiedi("Confermi il versamento delle ritenute d'acconto?", kTitolo)) return;
    if (!prog.riferisci(versa())) return;
    if (prog.chiedi("Addebitare le ritenute versate nella contabilità del condominio?"_it, kTitolo) &&
        addebita_ritenute() == EsitoAddebito::non_iniziato)
        return;
    prog.schermi.nascondi(nome());
}

DocumentoInMano::Esito Lumpgr::tutte_ritrovate() {
    RecFattura f{};
    for (int r = 1; r < elenco.righe(); ++r)
        if (segnata(r) && visti_.ritrova(static_cast<int>(elenco.chiave(r)), f) == 0)
            return DocumentoInMano::Esito::sparito;
    return DocumentoInMano::Esito::scritto;
}

// One document that is not found stops them all. A write that is refused is told elsewhere and passed over.
DocumentoInMano::Esito Lumpgr::versa() {
    using enum DocumentoInMano::Esito;
    const Clessidra attesa(prog);
    prog.err.azzera();
    const Sezione sezione(prog.arc.serratura, Serratura::documenti);
    if (!sezione.presa()) return occupato;
    if (tutte_ritrovate() != scritto) return sparito;
    const std::string data = in_ggmmaaaa(text1[0].testo());
    for (int r = 1; r < elenco.righe(); ++r)
        if (segnata(r))
            (void)cambia_documento(prog.arc, visti_, static_cast<int>(elenco.chiave(r)),
                                   [&](RecFattura& f) { f.dverrit = data; });
    return scritto;
}

EsitoAddebito Lumpgr::addebita_ritenute() {
    int quante = 0, prima = 0;
    for (int r = 1; r < elenco.righe(); ++r)
        if (segnata(r) && ++quante == 1) prima = r;
    MovimentoUscita u;
    u.data = text1[0].testo();
    u.contodefault = 1;
    u.importo = valimporto_di(txt.testo());
    if (quante > 0) u.descrizione[0] = "Versata ritenuta acconto";
    if (quante > 1) u.descrizione[1] = "Fatture diverse";
    if (quante == 1) {
        u.descrizione[1] = descrizione_documento(false, elenco.vista(prima, 0), elenco.vista(prima, 1));
        u.descrizione[2] = std::string(rifila(elenco.vista(prima, 2)));
    }
    return addebita(*this, u);
}

// ---- print ----

void Lumpgr::stampa() {
    if (!prog.chiedi("Iniziare la stampa?", kTitoloStampa)) return;
    // A seventh column is declared and never described.
    Stampa lavoro(prog, kTitoloStampa, 7,
                  {{"Fattura", 8, 0},
                   {"Data", 8, 0},
                   {"Fornitore", 30, 0},
                   {"Importo", 9, 1},
                   {"Rit.acconto", 9, 1},
                   {"Scadenza", 8, 0}});
    double totale = 0;
    for (int r = 1; r <= piene_; ++r) {
        if (!segnata(r)) continue;
        for (int c = 0; c < kColonneVisibili; ++c) lavoro.cella(c + 1) = elenco.testo(r, c);
        totale += valimporto_di(elenco.vista(r, kRitenuta));
        lavoro.riga();
    }
    if (totale > 0) {
        for (int c = 1; c <= kColonneVisibili; ++c) lavoro.cella(c).clear();
        lavoro.cella(3) = "Importo complessivo versato";
        lavoro.cella(5) = prog.fmtimporto(totale);
        lavoro.riga();
    }
    lavoro.fine();
}

}  // namespace ambra
