#include "ledger/lumcer.h"

#include "core/date.h"
#include "core/filetesto.h"
#include "core/lettura.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "ledger/documenti.h"
#include "print/lavoro.h"
#include "records/prospetto.h"
#include "screen/stampa.h"

namespace ambra {

namespace {

constexpr int kRigheMinime = 27;
constexpr int kFornitoriMassimi = 2000;
constexpr int kProspetti = 99;
constexpr int kPrimoCodice = 250;

const std::string kNessunProspetto =
    "Non è stato creato alcun prospetto: clic sul bottone 'Prospetto' per impostare la forma "
    "grafica dei tabulati"_it;
const std::string kProspettoGuasto =
    "Il file di definizione del prospetto è mancante oppure danneggiato: clic sul bottone "
    "'Prospetto' per correggere gli errori o reimpostare la forma grafica"_it;

enum Colonne { kNumero, kNome, kCitta, kTotale, kImponibile, kRitenuta, kStampa, kEsente = 11 };

}  // namespace

Lumcer::Lumcer(Programma& p) : Schermo(p, "lumcer", "Stampa certificazioni") {
    aggiungi("tabulato", tabulato);
    aggiungi("text1", text1);
    aggiungi("Text2", Text2);
    aggiungi("elenco", elenco);
    aggiungi("certif", certif, "Certificazioni");
    aggiungi("stampante", stampante, "Stampa lista");
    aggiungi("command3d2", command3d2, "Aggiorna lista");
    aggiungi("command3d1", command3d1, "Imposta");
    aggiungi("indice", indice, "Fine");

    text1[0].invio = [this] { fuoco(text1[1]); };
    elenco.scelto = [this](int r, int) { scambia(r); };
    certif.premuto = [this] { certificazioni(); };
    stampante.premuto = [this] { stampa_lista(); };
    command3d2.premuto = [this] { aggiornalista(); };
    command3d1.premuto = [this] { prog.piattaforma.printer_setup(); };
    indice.premuto = [this] { prog.schermi.chiudi("lumcer"); };
    attivata = [this](Attivazione) { loadprospetto(); };

    text1[0].testo("01/02/" + prog.anno_corrente());
    text1[1].testo("31/01/" + con_zeri(prog.piattaforma.today().anno + 1, 4));
    Text2.testo("1");
    prepara_elenco();
    aggiornalista();
}

void Lumcer::loadprospetto() {
    prog.err.azzera();
    const std::string percorso = kCartella + "lumoral.tot";
    const bool esiste = prova_lettura(prog.disco, prog.err, percorso);
    tabulato.svuota();
    if (esiste) {
        FileDi<RecProspetto> file(prog.err, 18);
        file.apri(prog.disco, percorso);
        Passata<RecProspetto> passata(file);
        RecProspetto r{};
        for (int i = 1; i <= kProspetti; ++i) {
            leggi_o_resta(passata, i, r);
            const std::string numero = r.numprosp.testo();
            if (leggi_numero(numero) > 0) tabulato.aggiungi(unisci(numero, " ", r.nomeprosp.testo()));
        }
    } else {
        tabulato.aggiungi("000 Nessun prospetto creato");
    }
    tabulato.scelta(0);
    leggi_o_resta(prog.arc.edifici, prog.numero_stabile(), stabile_);
    leggi_o_resta(prog.arc.edifici2, prog.numero_stabile(), stabile2_);
}

// ---- the list ----

void Lumcer::prepara_elenco() {
    using enum Allineamento;
    elenco.colonne({{"Numero", 700, sinistra},
                    {"Fornitore", 4500, sinistra},
                    {"Città"_it, 4500, sinistra},
                    {"Tot.documento", 1200, destra},
                    {"Imponibile", 1200, destra},
                    {"Ritenuta", 1200, destra},
                    {"Stampa", kResto, centro},
                    {"", 0, sinistra},
                    {"", 0, sinistra},
                    {"", 0, sinistra},
                    {"", 0, sinistra},
                    {"", 0, sinistra},
                    {"", 0, sinistra}},
                   14935);
}

// One pass over all documents; the sums of supplier n stand at n.
std::vector<Lumcer::Somme> Lumcer::somma_fatture() {
    std::vector<Somme> totalifor(kFornitoriMassimi + 1);
    const std::string da = in_aaaammgg(text1[0].testo()), a = in_aaaammgg(text1[1].testo());
    Passata<RecFattura> documenti(prog.arc.ftr);
    RecFattura f{};
    for (int i = 1, quante = quante_fatture(prog.arc); i <= quante; ++i) {
        leggi_o_resta(documenti, i, f);
        const std::string chiave = da_ggmmaaaa_a_aaaammgg(f.dverrit.testo());
        if (chiave < da || chiave > a) continue;
        const int numero = f.numfor, verso = segno(f);
        if (numero < 0 || numero > kFornitoriMassimi) continue;
        const ImportiDocumento doc = importi(f);
        double imponibile = 0;
        for (std::size_t k = 0; k < std::size(f.impon); ++k)
            if (f.rac[k] != 0) imponibile += f.impon[k];
        Somme& s = totalifor[static_cast<std::size_t>(numero)];
        s.documenti += doc.totale() * verso;
        s.imponibile += imponibile * verso;
        s.ritenuta += doc.rac * verso;
        s.esente += doc.esent * verso;
    }
    return totalifor;
}

void Lumcer::aggiornalista() {
    prog.err.azzera();
    Clessidra attesa(prog);
    elenco.ridisegna(false);
    elenco.righe(1);
    const std::vector<Somme> totalifor = somma_fatture();
    double numero = leggi_numero(Text2.testo()) - 1;
    if (numero < 0) numero = 0;
    per_fornitore(prog.arc, quanti_fornitori(prog.arc), [&](int n, const RecFornitore& f) {
        if (f.cancellata != 0 || n < 0 || n > kFornitoriMassimi) return;
        const Somme& s = totalifor[static_cast<std::size_t>(n)];
        if (!(s.ritenuta > 0)) return;
        numero += 1;
        const int r = elenco.aggiungi({testo_numero(numero), f.inte1.testo(), f.citta.testo(),
                                       prog.fmtimporto(s.documenti), prog.fmtimporto(s.imponibile),
                                       prog.fmtimporto(s.ritenuta), "SI", "", "", "", "",
                                       prog.fmtimporto(s.esente), std::to_string(n)});
        elenco.chiave(r, n);
    });
    if (elenco.righe() <= kRigheMinime) elenco.righe(kRigheMinime + 1);
    elenco.ridisegna(true);
}

void Lumcer::scambia(int riga) {
    const std::string ora = elenco.testo(riga, kStampa);
    if (ora == "SI") elenco.scrivi(riga, kStampa, "NO");
    if (ora == "NO") elenco.scrivi(riga, kStampa, "SI");
}

bool Lumcer::da_stampare(int riga) const {
    return rifila(elenco.vista(riga, kStampa)) == "SI";
}

// ---- the certificates ----

// Blanks at the end of a file name do not count where the archives come from.
std::string Lumcer::file_prospetto() const {
    std::string numero(sinistra(tabulato.testo(), 3));
    numero.resize(numero.find_last_not_of(' ') + 1);
    return unisci(kCartella, "vexoral.", numero);
}

void Lumcer::certificazioni() {
    if (leggi_numero(sinistra(tabulato.testo(), 3)) == 0) return prog.ferma(kNessunProspetto);
    prog.err.azzera();
    const std::string file = file_prospetto();
    if (!prova_lettura(prog.disco, prog.err, file)) return prog.ferma(kProspettoGuasto);
    if (!prog.chiedi("Iniziare la stampa?", "Stampa certificazioni")) return;
    Clessidra attesa(prog);
    const Tornata tutte(prog.piattaforma.printer());
    for (int r = 1; r < elenco.righe(); ++r)
        if (da_stampare(r)) certificazione(r, file);
}

void Lumcer::certificazione(int riga, const std::string& file) {
    RecFornitore f{};
    leggi_o_resta(prog.arc.fornitori, elenco.chiave(riga), f);
    testo_.load_file(prog.disco, prog.err, file);
    const Valori tutti = valori(riga, f);
    for (std::size_t i = 0; i < tutti.size(); ++i)
        testo_.sostituisci(unisci("$$$", std::to_string(kPrimoCodice + static_cast<int>(i)), "$$$"),
                           rifila(tutti[i]));
    Printer& p = prog.piattaforma.printer();
    const Lavoro lavoro(p);
    try {
        p.document_title =
            unisci("Certificazione ", rifila(elenco.vista(riga, kNumero)), " ", f.inte1.rifilato());
        testo_.sel_print(p);
        p.end_doc();
    } catch (const PrinterFault&) {
        // a certificate that the printer refuses is passed over
    }
    prog.piattaforma.refresh();
}

Lumcer::Valori Lumcer::valori(int riga, const RecFornitore& f) const {
    const auto importo = [&](int colonna) {
        return prog.fmtimporto(valimporto_di(elenco.vista(riga, colonna)));
    };
    return {"",
            f.inte1.testo(),
            f.inte2.testo(),
            f.indir.testo(),
            f.cap.testo(),
            f.citta.testo(),
            f.piva.testo(),
            f.codfis.testo(),
            f.luogonas.testo(),
            f.datanas.testo(),
            elenco.testo(riga, kNumero),
            importo(kTotale),
            importo(kImponibile),
            importo(kEsente),
            importo(kRitenuta),
            stabile_.nome.testo(),
            stabile_.indirizzo.testo(),
            stabile_.cittastab.testo(),
            stabile2_.codfisc.testo(),
            "",
            ""};
}

// ---- the printed list ----

void Lumcer::stampa_lista() {
    if (!prog.chiedi("Iniziare la stampa?", "Stampa lista certificazioni")) return;
    Stampa lavoro(prog, "Lista certificazioni", 6,
                  {{"Numero", 7, 0},
                   {"Fornitore", 29, 0},
                   {"Città"_it, 29, 0},
                   {"Totale", 11, 1},
                   {"Imponibile", 11, 1},
                   {"Ritenuta", 11, 1}});
    for (int r = 1; r < elenco.righe(); ++r) {
        if (!da_stampare(r)) continue;
        for (int k = 0; k < 6; ++k) lavoro.cella(k + 1) = elenco.testo(r, k);
        lavoro.riga();
    }
    lavoro.fine();
}

}  // namespace ambra
