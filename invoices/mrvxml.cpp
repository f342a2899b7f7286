#include "invoices/mrvxml.h"

#include <algorithm>
#include <span>

#include "core/date.h"
#include "core/latino.h"
#include "core/testo.h"
#include "screen/programma.h"

namespace ambra {

namespace {

// An amount as the lists show it: zero is empty.
std::string importo(Decimale x) {
    return x == Decimale() ? std::string() : x.testo_italiano();
}

// A path as the platform answers it: what lies on the drive is named as there.
std::string di_sistema(Programma& prog, const std::string& risposta) {
    return risposta.starts_with('\\') ? prog.disco.reale(risposta) : a_utf8(risposta);
}

}  // namespace

Mrvxml::Mrvxml(Programma& p) : Schermo(p, "mrvxml", "Fatture elettroniche") {
    prog.err.azzera();
    aggiungi("apri", apri, "Apri file");
    aggiungi("cartella", cartella, "Apri cartella");
    aggiungi("elenco", elenco);
    aggiungi("avvisi", avvisi);
    aggiungi("ritenuta", ritenuta);
    aggiungi("esenzione", esenzione, "Codice di esenzione");
    aggiungi("registra", registra, "Registra");
    aggiungi("indice", indice, "Fine");
    letti.visible(false);
    prepara_elenco();
    collega();
    mostra_scelta();
    fuoco(apri);
}

void Mrvxml::prepara_elenco() {
    using enum Allineamento;
    elenco.colonne({{"Stato", 1900, sinistra},
                    {"Fornitore", 3000, sinistra},
                    {"Partita iva", 1200, sinistra},
                    {"Numero", 1050, sinistra},
                    {"Data", 950, sinistra},
                    {"Documento", 1050, sinistra},
                    {"Totale", 1100, destra},
                    {"Ritenuta", 1000, destra},
                    {"Netto", 1100, destra},
                    {"File", 1700, sinistra}},
                   15000);
    avvisi.colonne({{"Avvisi", kResto, sinistra}}, 6000);
}

void Mrvxml::collega() {
    chiedi_file = [this]() -> std::vector<std::string> {
        const auto uno = prog.piattaforma.open_file("Apri file", kModelloFatture);
        return uno ? std::vector{di_sistema(prog, *uno)} : std::vector<std::string>();
    };
    apri.premuto = [this] { aggiungi_percorsi(chiedi_file()); };
    cartella.premuto = [this] {
        if (const auto una = prog.piattaforma.open_folder("Apri cartella"))
            aggiungi_percorsi({di_sistema(prog, *una)});
    };
    elenco.scelto = [this](int riga, int) { scegli(riga); };
    ritenuta.premuto = [this] {
        RigaFattura* r = corrente();
        if (!r) return;
        r->applica_ritenuta = ritenuta.spuntata();
        valuta(*r);
        mostra_scelta();
    };
    esenzione.cambiato = [this] {
        RigaFattura* r = corrente();
        if (!r || esenzione.scelta() < 0) return;
        const auto codice = static_cast<std::size_t>(esenzione.scelta());
        if (r->esenzione == codice) return;
        r->esenzione = codice;
        valuta(*r);
        mostra_scelta();
    };
    registra.premuto = [this] { registra_scelta(); };
    indice.premuto = via_d_uscita = [this] { prog.schermi.chiudi(nome()); };
    attivata = [this](Attivazione) {
        prog.err.azzera();
        rivedi();
    };
}

// ---- files ----

void Mrvxml::aggiungi_percorsi(const std::vector<std::string>& percorsi) {
    if (percorsi.empty()) return;
    const Clessidra attesa(prog);
    if (!archivi_) rivaluta();
    std::vector<std::string> file;
    for (const std::string& p : percorsi) {
        const auto suoi = prog.lettore ? prog.lettore->file_di(p) : std::vector{p};
        file.insert(file.end(), suoi.begin(), suoi.end());
    }
    letti.massimo(static_cast<int>(file.size()));
    letti.valore(0);
    letti.visible(file.size() > 1);
    elenco.ridisegna(false);
    for (std::size_t i = 0; i < file.size(); ++i) {
        leggi_percorso(file[i]);
        letti.valore(static_cast<int>(i) + 1);
        if (file.size() > 1) prog.piattaforma.refresh();
    }
    elenco.ridisegna(true);
    letti.visible(false);
    if (scelta_ == 0 && !righe_.empty()) scegli(1);
}

void Mrvxml::leggi_percorso(const std::string& percorso) {
    FileLetto letto;
    if (prog.lettore)
        letto = prog.lettore->leggi_file(percorso);
    else
        letto.rifiutate = {{percorso, "", "questo programma non legge fatture elettroniche"}};
    for (FatturaLetta& f : letto.fatture) {
        if (RigaFattura* gia = in_elenco(f)) {
            if (!gia->perduta) continue;
            gia->perduta = false;
            gia->percorso = percorso;
            gia->fattura.file = f.file;
            gia->fattura.voce = f.voce;
            continue;
        }
        auto r = std::make_unique<RigaFattura>();
        r->fattura = std::move(f);
        r->percorso = percorso;
        r->saltate = letto.saltate;
        aggiungi_riga(std::move(r));
    }
    for (FatturaRifiutata& f : letto.rifiutate) {
        const std::string qui = percorso + "/" + f.voce;
        if (gia_rifiutata(qui)) continue;
        auto r = std::make_unique<RigaFattura>();
        r->fattura.file = f.file;
        r->fattura.voce = f.voce;
        r->percorso = qui;
        r->motivo = vicino(f.motivo);
        aggiungi_riga(std::move(r));
    }
}

// The row of the same bytes, or null.
RigaFattura* Mrvxml::in_elenco(const FatturaLetta& f) const {
    const auto uguale = std::ranges::find_if(righe_, [&f](const auto& r) {
        const FatturaLetta& g = r->fattura;
        return f.impronta != 0 && g.impronta == f.impronta && g.corpo == f.corpo && g.numero == f.numero &&
               g.fornitore.codice_iva == f.fornitore.codice_iva;
    });
    return uguale == righe_.end() ? nullptr : uguale->get();
}

bool Mrvxml::gia_rifiutata(const std::string& percorso) const {
    return std::ranges::any_of(
        righe_, [&percorso](const auto& r) { return !r->motivo.empty() && r->percorso == percorso; });
}

void Mrvxml::aggiungi_riga(std::unique_ptr<RigaFattura> r) {
    valuta(*r);
    righe_.push_back(std::move(r));
    mostra_riga(elenco.aggiungi());
}

// ---- the chosen row ----

RigaFattura* Mrvxml::corrente() {
    return scelta_ < 1 ? nullptr : righe_[static_cast<std::size_t>(scelta_ - 1)].get();
}

const RigaFattura* Mrvxml::scelta() const {
    return scelta_ < 1 ? nullptr : righe_[static_cast<std::size_t>(scelta_ - 1)].get();
}

void Mrvxml::scegli(int riga) {
    if (riga < 1 || riga > static_cast<int>(righe_.size())) return;
    scelta_ = riga;
    mostra_scelta();
}

void Mrvxml::mostra_riga(int riga) {
    const RigaFattura& r = *righe_[static_cast<std::size_t>(riga - 1)];
    const FatturaLetta& f = r.fattura;
    const auto scrivi = [&](int colonna, const std::string& t) { elenco.scrivi(riga, colonna, t); };
    scrivi(0, r.testo_stato);
    scrivi(9, vicino(f.voce.empty() ? f.file : f.file + "/" + f.voce));
    if (!r.motivo.empty()) return;
    const Proposta& p = r.proposta;
    const auto data = data_iso(f.data);
    scrivi(1, vicino(f.fornitore.chiamato()));
    scrivi(2, vicino(f.fornitore.codice_iva));
    scrivi(3, p.numero_intero);
    scrivi(4, data ? testo_data(*data) : vicino(f.data));
    scrivi(5, p.nota_credito ? "Nota credito" : "Fattura");
    scrivi(6, importo(p.totale));
    scrivi(7, importo(p.ritenuta));
    scrivi(8, importo(p.netto));
}

void Mrvxml::mostra_esenzioni(const RigaFattura& r) {
    const auto& voci = archivi_->iva.esenzione;
    if (!std::ranges::equal(esenzione.voci(), std::span(voci).subspan(1))) {
        esenzione.svuota();
        for (std::size_t i = 1; i <= kCodiciIva; ++i) esenzione.aggiungi(voci[i]);
    }
    esenzione.scelta(r.esenzione ? static_cast<int>(*r.esenzione) : -1);
}

void Mrvxml::mostra_scelta() {
    const RigaFattura* r = corrente();
    avvisi.ridisegna(false);
    avvisi.righe(1);
    if (r)
        for (const std::string& a : r->avvisi) avvisi.aggiungi({a});
    avvisi.ridisegna(true);
    if (r) mostra_riga(scelta_);
    const bool offerta = r && !r->proposta.ritenuta_offerta.empty();
    if (offerta)
        ritenuta.caption(
            unisci("Applica la ritenuta del ", r->proposta.ritenuta_offerta, "% come nell'ultima fattura"));
    ritenuta.visible(offerta);
    ritenuta.spuntata(offerta && r->applica_ritenuta);
    const bool chiede = r && r->proposta.chiede_esenzione;
    esenzione.visible(chiede);
    if (chiede) mostra_esenzioni(*r);
    registra.enabled(r && r->registrabile());
}

}  // namespace ambra
