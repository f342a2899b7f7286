#include "forms/lumstce.h"

#include "core/lettura.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "forms/foglio_etichette.h"
#include "ledger/documenti.h"
#include "print/lavoro.h"

namespace ambra {

namespace {

constexpr int kRigheMinime = 26;
constexpr int kColCopie = 4;

std::string filtro_di(const CampoTesto& c) {
    return maiuscolo(rifila(c.testo()));
}

// The filter equals the same number of leading characters of the field.
template <std::size_t N>
bool comincia(const Testo<N>& campo, const std::string& filtro) {
    return maiuscolo(sinistra(campo.testo(), filtro.size())) == filtro;
}

std::string testo_campo(const Etic& e, const RecFornitore& f, int riga) {
    switch (riga) {
        case 1:
            return f.inte1.testo();
        case 2:
            return f.inte2.testo();
        case 3:
            return f.indir.testo();
        case 4:
            return f.cap.testo();
        case 5:
            return f.citta.testo();
        default:
            return testo_libero(e, riga);
    }
}

}  // namespace

const std::array<std::string, 6>& Lumstce::didascalie() {
    static const std::array<std::string, 6> kNomi = {"Indirizzo",
                                                     "CAP",
                                                     "Città"_it,
                                                     "Telefono",
                                                     "Inizia a stampare dall'etichetta numero",
                                                     "Numero copie per ciascuna etichetta"};
    return kNomi;
}

Lumstce::Lumstce(Programma& p) : Schermo(p, "lumstce", "Etichette fornitori") {
    aggiungi("t_inizio", t_inizio);
    aggiungi("t_fine", t_fine);
    aggiungi("text1", text1);
    aggiungi("traccia", traccia, "Traccia linee di taglio");
    aggiungi("command3d2", command3d2, "Aggiorna lista");
    aggiungi("elenco", elenco);
    aggiungi("command3d5", command3d5, "Tutti");
    aggiungi("command3d6", command3d6, "Nessuno");
    aggiungi("command3d1", command3d1, "Imposta");
    aggiungi("stampante", stampante, "Stampa");
    aggiungi("indice", indice, "Fine");

    using enum Allineamento;
    elenco.colonne({{"Nominativo", 4300, sinistra},
                    {"", 3000, sinistra},
                    {"Indirizzo", 3000, sinistra},
                    {"Città"_it, 3000, sinistra},
                    {"Copie", kResto, sinistra},
                    {"", 0, sinistra}},
                   14935);
    text1[kInizio].testo("1");
    text1[kCopie].testo("1");

    t_inizio.invio = [this] { fuoco(t_fine); };
    for (std::size_t i = 0; i + 1 < text1.size(); ++i) text1[i].invio = [this, i] { fuoco(text1[i + 1]); };
    elenco.scelto = [this](int riga, int) { clic(riga); };
    command3d2.premuto = [this] { aggiorna(); };
    command3d5.premuto = [this] { tutte(text1[kCopie].testo()); };
    command3d6.premuto = [this] { tutte("0"); };
    command3d1.premuto = [this] { prog.piattaforma.printer_setup(); };
    stampante.premuto = [this] { stampa(); };
    indice.premuto = [this] { prog.schermi.chiudi(nome()); };
    aggiorna();
}

bool Lumstce::passa(const RecFornitore& f) const {
    if (f.cancellata != 0) return false;
    const std::string mio = maiuscolo(f.inte1.rifilato());
    const std::string inizio = filtro_di(t_inizio), fine = filtro_di(t_fine);
    if (!inizio.empty() && mio < inizio) return false;
    if (!fine.empty() && mio > fine) return false;
    if (!comincia(f.indir, filtro_di(text1[kIndirizzo]))) return false;
    if (!comincia(f.cap, filtro_di(text1[kCap]))) return false;
    if (!comincia(f.citta, filtro_di(text1[kCitta]))) return false;
    const std::string tel = filtro_di(text1[kTelefono]);
    return comincia(f.tel[0], tel) || comincia(f.tel[1], tel) || comincia(f.tel[2], tel);
}

void Lumstce::aggiorna() {
    Clessidra attesa(prog);
    prog.err.azzera();
    elenco.visible(false);
    elenco.ridisegna(false);
    elenco.righe(1);
    per_fornitore(prog.arc, quanti_fornitori(prog.arc), [this](int numero, const RecFornitore& f) {
        if (!passa(f)) return;
        const int r = elenco.aggiungi({f.inte1.testo(), f.inte2.testo(), f.indir.testo(), f.citta.testo(),
                                       "0", std::to_string(numero)});
        elenco.chiave(r, numero);
    });
    righe_ = elenco.righe();
    if (righe_ < kRigheMinime) elenco.righe(kRigheMinime);
    elenco.ridisegna(true);
    elenco.visible(true);
}

void Lumstce::tutte(const std::string& copie) {
    elenco.ridisegna(false);
    for (int r = 1; r < righe_; ++r) elenco.scrivi(r, kColCopie, copie);
    elenco.ridisegna(true);
}

void Lumstce::clic(int riga) {
    if (riga < 1 || riga >= righe_) return;
    elenco.scrivi(riga, kColCopie,
                  elenco.vista(riga, kColCopie) == "0" ? std::string_view(text1[kCopie].testo()) : "0");
}

void Lumstce::stampa() {
    if (!prog.chiedi("Iniziare la stampa?", "Stampa etichette")) return;
    Clessidra attesa(prog);
    Etic etic;
    if (!leggi_etichette(prog.disco, prog.err, kEtichetteFornitori, etic)) etic = etichette_di_stampa();
    prog.err.azzera();
    Printer& p = prog.piattaforma.printer();
    const Lavoro lavoro(p);
    try {
        p.document_title = "Etichette fornitori";
        FoglioEtichette foglio(p, etic, traccia.spuntata());
        foglio.salta_fino_a(leggi_intero(text1[kInizio].testo(), prog.err));
        Schedario<RecFornitore> schede(prog.arc.fornitori);
        RecFornitore f{};
        for (int r = 1; r < righe_; ++r) {
            const int copie = leggi_intero(elenco.vista(r, kColCopie), prog.err);
            if (copie <= 0) continue;
            leggi_o_resta(schede, elenco.chiave(r), f);
            for (int k = 0; k < copie; ++k)
                foglio.etichetta([&](int riga) { return testo_campo(etic, f, riga); });
            prog.piattaforma.refresh();
        }
        foglio.fine();
    } catch (const PrinterFault&) {
        // a printer that fails gets no more labels, and nothing is said
    }
}

}  // namespace ambra
