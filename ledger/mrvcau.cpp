#include "ledger/mrvcau.h"

#include <algorithm>
#include <array>
#include <tuple>

#include "core/date.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "ledger/scadenze_ritenute.h"
#include "screen/colori.h"

namespace ambra {

namespace {

enum Colonne {
    kFornitore,
    kCodiceFiscale,
    kCausale,
    kLordo,
    kNonSoggetto,
    kImponibile,
    kRitenuta,
    kCodice,
    kCertificata,
    kDifferenza
};
// Fees of a profession, occasional ones, works and services to the condominium, any other.
constexpr std::array<std::string_view, 4> kCausali = {"A", "M", "W", "Z"};

std::string causale_di(Famiglia f) {
    return f == Famiglia::lavori ? "W" : "A";
}

}  // namespace

Mrvcau::Mrvcau(Programma& p) : Schermo(p, "mrvcau", "Riepilogo per il consulente") {
    using enum Allineamento;
    aggiungi("anno", anno, "Anno dei pagamenti");
    aggiungi("avviso", avviso);
    aggiungi("elenco", elenco);
    comandi.monta(
        *this, [this] { riempi(); }, [this] { stampa(); });
    elenco.colonne({{"Fornitore", kResto, sinistra},
                    {"Codice fiscale", 1700, sinistra},
                    {"Causale", 800, centro},
                    {"Lordo senza iva", 1300, destra},
                    {"Non soggetto", 1300, destra},
                    {"Imponibile", 1300, destra},
                    {"Ritenuta", 1200, destra},
                    {"Tributo", 800, centro},
                    {"Certificata", 1200, destra},
                    {"Differenza", 1200, destra}});
    anno.massimo = 4;
    anno.testo(prog.anno_corrente());
    anno.cambiato = [this] {
        if (anno.testo().size() == 4 && leggi_numero(anno.testo()) > 0) riempi();
    };
    elenco.scelto = [this](int r, int c) {
        if (c == kCausale) cambia_causale(r);
    };
    attivata = [this](Attivazione) { riempi(); };
}

void Mrvcau::riempi() {
    const Riempimento inizio(prog, elenco);
    quale_anno_ = static_cast<int>(leggi_numero(sinistra(anno.testo(), 4)));
    somma_documenti();
    aggiungi_righe();
    avviso.caption(
        unisci("Pagamenti dal 01/01/", con_zeri(quale_anno_, 4), " al 31/12/", con_zeri(quale_anno_, 4),
               "; certificate: ritenute versate dal 01/02/", con_zeri(quale_anno_, 4), " al 31/01/",
               con_zeri(quale_anno_ + 1, 4), ".",
               senza_data_ == 0
                   ? ""
                   : unisci(" Pagamenti senza data, non compresi: ", std::to_string(senza_data_), ".")));
}

// ---- the sums ----

void Mrvcau::somma_documenti() {
    somme_.clear();
    senza_data_ = 0;
    const std::string dal = con_zeri(quale_anno_, 4) + "0201", al = con_zeri(quale_anno_ + 1, 4) + "0131";
    Passata<RecFattura> passata(prog.arc.ftr);
    for (int n = 1, quante = quante_fatture(prog.arc); n <= quante; ++n) {
        const RecFattura* f = passata.vista(n);
        const Centesimi ritenuta = f ? centesimi(somma(f->rac)) : 0;
        if (ritenuta == 0) continue;
        somma_pagamenti(*f);
        const std::string versata = da_ggmmaaaa_a_aaaammgg(f->dverrit.testo());
        if (dal <= versata && versata <= al)
            somme_[{f->numfor, famiglia(*f)}].certificata += ritenuta * segno(*f);
    }
}

void Mrvcau::somma_pagamenti(const RecFattura& f) {
    const PagamentiDocumento p = pagamenti(f);
    Centesimi imponibile = 0;
    for (std::size_t k = 0; k < std::size(f.rac); ++k)
        if (f.rac[k] != 0) imponibile += centesimi(f.impon[k]);
    const auto lordi = quote(p, centesimi(somma(f.impon) + somma(f.esent)));
    const auto imponibili = quote(p, imponibile);
    const auto ritenute = quote(p, centesimi(somma(f.rac)));
    for (std::size_t k = 0; k < p.quanti; ++k) {
        if (!p.rata[k].data) {
            senza_data_ += leggi_numero(sinistra(f.datadoc.testo(), 4)) == quale_anno_ ? 1 : 0;
        } else if (p.rata[k].data->anno == quale_anno_) {
            Somme& s = somme_[{f.numfor, famiglia(f)}];
            s.lordo += lordi[k] * segno(f);
            s.imponibile += imponibili[k] * segno(f);
            s.ritenuta += ritenute[k] * segno(f);
        }
    }
}

// ---- the list ----

void Mrvcau::aggiungi_righe() {
    struct Riga {
        std::string nome, codfis;
        Percettore percettore;
        Chiave chiave;
    };
    std::vector<Riga> righe;
    Schedario<RecFornitore> schede(prog.arc.fornitori);
    for (const auto& [chiave, s] : somme_)
        if (const RecFornitore* f = schede.vista(chiave.first))
            righe.push_back({nome_fornitore(*f), f->codfis.rifilato(), percettore(*f), chiave});
        else
            righe.push_back({"", "", {}, chiave});
    std::ranges::sort(righe, {}, [](const Riga& r) {
        return std::tuple(maiuscolo(r.nome), r.chiave.first, r.chiave.second);
    });
    Somme totale;
    chiave_di_.clear();
    for (const Riga& r : righe) {
        const Somme& s = somme_[r.chiave];
        const auto scelta = causali_.find(r.chiave);
        const CodiceTributo codice = codice_tributo(r.chiave.second, r.percettore);
        aggiungi_riga(r.nome, r.codfis,
                      scelta == causali_.end() ? causale_di(r.chiave.second) : scelta->second,
                      std::to_string(static_cast<int>(codice)), s);
        elenco.colora(elenco.righe() - 1, kCausale, colore::giallo);
        chiave_di_.push_back(r.chiave);
        totale.lordo += s.lordo;
        totale.imponibile += s.imponibile;
        totale.ritenuta += s.ritenuta;
        totale.certificata += s.certificata;
    }
    if (!righe.empty()) aggiungi_riga("Totale", "", "", "", totale);
}

void Mrvcau::aggiungi_riga(const std::string& nome, const std::string& codfis, const std::string& causale,
                           const std::string& codice, const Somme& s) {
    const auto importo = [this](Centesimi c) { return prog.fmtimporto(static_cast<double>(c) / 100); };
    elenco.aggiungi({nome, codfis, causale, importo(s.lordo), importo(s.lordo - s.imponibile),
                     importo(s.imponibile), importo(s.ritenuta), codice, importo(s.certificata),
                     importo(s.ritenuta - s.certificata)});
}

void Mrvcau::cambia_causale(int riga) {
    if (riga < 1 || riga > static_cast<int>(chiave_di_.size())) return;
    const auto ora = std::ranges::find(kCausali, elenco.vista(riga, kCausale));
    const std::string dopo(ora == kCausali.end() || ora + 1 == kCausali.end() ? kCausali[0] : ora[1]);
    causali_[chiave_di_[static_cast<std::size_t>(riga - 1)]] = dopo;
    elenco.scrivi(riga, kCausale, dopo);
}

void Mrvcau::stampa() {
    stampa_elenco(prog, elenco, elenco.righe(),
                  {.titolo_domanda = "Stampa riepilogo per il consulente",
                   .titolo = unisci("Compensi e ritenute dell'anno ", con_zeri(quale_anno_, 4)),
                   // So that a tax code and a hundred thousand euro are whole on an upright sheet.
                   .colonne = {{{"Fornitore", 88, 0}, kFornitore},
                               {{"Codice fiscale", 98, 0}, kCodiceFiscale},
                               {{"Caus.", 29, 0}, kCausale},
                               {{"Lordo", 59, 1}, kLordo},
                               {{"Non sogg.", 52, 1}, kNonSoggetto},
                               {{"Imponibile", 58, 1}, kImponibile},
                               {{"Ritenuta", 52, 1}, kRitenuta},
                               {{"Trib.", 30, 0}, kCodice},
                               {{"Certif.", 50, 1}, kCertificata},
                               {{"Differ.", 50, 1}, kDifferenza}}});
}

}  // namespace ambra
