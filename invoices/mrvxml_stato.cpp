// What stands in the way of each document: judged anew at each activation, as the user may have registered a
// document or changed a table meanwhile, and whenever a supplier is stored.
#include "core/latino.h"
#include "core/lettura.h"
#include "core/testo.h"
#include "invoices/analisi.h"
#include "invoices/mrvxml.h"
#include "screen/programma.h"

namespace ambra {

void Mrvxml::rivaluta() {
    archivi_ = std::make_unique<Archivi>(
        Archivi{{}, {}, Anagrafe(prog.arc), StabiliDrive(prog.disco, prog.numero_stabile())});
    carica_iva(prog.disco, prog.err, archivi_->iva);
    carica_pagamenti(prog.disco, prog.err, archivi_->pagamenti);
    Registrate::di(prog).rifai();
    elenco.ridisegna(false);
    for (std::size_t i = 0; i < righe_.size(); ++i) {
        valuta(*righe_[i]);
        mostra_riga(static_cast<int>(i) + 1);
    }
    elenco.ridisegna(true);
}

void Mrvxml::rivedi() {
    rivaluta();
    mostra_scelta();
}

void Mrvxml::Rubrica::fornitore_scritto(long, const RecFornitore&, const RecFornitore&) {
    if (schermo_.righe_.empty()) return;
    const int numero = schermo_.prog.err.numero;
    schermo_.rivedi();
    schermo_.prog.err.numero = numero;
}

Contorno Mrvxml::contorno(const RigaFattura& r, RecFattura& ultima) {
    Contorno c;
    c.iva = &archivi_->iva;
    c.pagamenti = &archivi_->pagamenti;
    c.oggi = prog.oggi();
    c.nnn = prog.nnn();
    c.cartella_pdf = prog.imp.generale.pdfdir.testo();
    c.applica_ritenuta = r.applica_ritenuta;
    c.esenzione = r.esenzione;
    RecFornitore f{};
    if (r.fornitore > 0 && leggi(prog.arc.fornitori, r.fornitore, f)) c.termine = f.formapag;
    if (r.fornitore > 0 && Registrate::di(prog).ultima(r.fornitore, ultima) > 0) c.ultima = &ultima;
    return c;
}

// The building that the customer is, if it is another one: "002 NOME".
std::string Mrvxml::altro_stabile(const SoggettoLetto& cliente, bool& noto) const {
    const int quale = archivi_->drive.di(cliente);
    noto = quale > 0;
    if (quale == 0 || quale == prog.numero_stabile()) return "";
    RecStabile s{};
    const int numero = prog.err.numero;
    leggi_o_resta(prog.arc.edifici, quale, s);
    prog.err.numero = numero;
    return unisci(con_zeri(quale, 3), " ", s.nome.rifilato());
}

void Mrvxml::valuta(RigaFattura& r) {
    if (!r.motivo.empty()) {
        r.stato = Stato::non_leggibile;
        r.testo_stato = "Non leggibile: " + r.motivo;
        r.avvisi = {r.testo_stato};
        return;
    }
    RecFattura ultima{};
    r.fornitore = archivi_->anagrafe.cerca(r.fattura.fornitore);
    r.proposta = proponi(r.fattura, contorno(r, ultima));
    giudica(r);
}

void Mrvxml::giudica(RigaFattura& r) {
    const Proposta& p = r.proposta;
    bool noto = true;
    const std::string altro = altro_stabile(r.fattura.cliente, noto);
    RecFattura gia{};
    r.registrata =
        r.fornitore == 0
            ? 0
            : Registrate::di(prog).cerca(
                  {r.fornitore, p.numero, std::string(destra(p.datadoc, 4)), p.nota_credito}, 0, gia);
    if (!altro.empty()) {
        r.stato = Stato::altro_stabile;
        r.testo_stato = "Stabile " + altro;
    } else if (!p.impedimento.empty()) {
        r.stato = Stato::non_registrabile;
        r.testo_stato = "Non registrabile: " + p.impedimento;
    } else if (r.fornitore == 0) {
        r.stato = Stato::fornitore_nuovo;
        r.testo_stato = "Fornitore nuovo";
    } else if (r.registrata > 0) {
        r.stato = Stato::registrata;
        r.testo_stato = "Già registrata: n. "_it + std::to_string(r.registrata);
    } else {
        r.stato = Stato::nuova;
        r.testo_stato = "Nuova";
    }
    raccogli_avvisi(r, noto);
}

void Mrvxml::raccogli_avvisi(RigaFattura& r, bool cliente_noto) {
    r.avvisi.clear();
    if (r.stato == Stato::altro_stabile)
        r.avvisi.push_back("Il documento è di un altro stabile: si registra da quello"_it);
    if (!r.proposta.impedimento.empty()) r.avvisi.push_back("Non registrabile: " + r.proposta.impedimento);
    if (!cliente_noto) {
        const SoggettoLetto& c = r.fattura.cliente;
        const std::string codice = c.codice_fiscale.empty() ? c.codice_iva : c.codice_fiscale;
        r.avvisi.push_back("Il cliente "_it + vicino(c.chiamato()) +
                           (codice.empty() ? "" : " (" + vicino(codice) + ")") +
                           " non è tra gli stabili dell'archivio: verificare"_it);
    }
    for (const Avviso& a : r.proposta.avvisi) r.avvisi.push_back(a.parole);
    if (r.saltate > 0)
        r.avvisi.push_back("Nel file ci sono altre " + std::to_string(r.saltate) +
                           " voci che non sono fatture: non considerate");
    if (!r.avviso_pdf.empty()) r.avvisi.push_back(r.avviso_pdf);
}

}  // namespace ambra
