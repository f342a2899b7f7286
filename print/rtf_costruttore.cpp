#include "print/rtf_costruttore.h"

#include <algorithm>
#include <utility>

namespace ambra::rtf {

namespace {

constexpr int kCellaLarga = 1440;  // of a cell that no definition covers
constexpr std::size_t kCelleMassime = 128, kFormatiVicini = 32;

// Borders of the whole table for the cells that name none.
void bordi_di_tabella(Riga& riga, const StatoRiga& def) {
    for (std::size_t i = 0; i < riga.celle.size(); ++i) {
        if (i < def.con_bordi.size() && def.con_bordi[i]) continue;
        Cella& c = riga.celle[i];
        c.sopra = def.bordi[0];
        c.sinistra = i == 0 ? def.bordi[1] : def.bordi[5];
        c.sotto = def.bordi[2];
        c.bordo_destro = i + 1 == riga.celle.size() ? def.bordi[3] : def.bordi[5];
    }
}

// Cells without a right edge of their own: every row needs as many as it has texts.
void completa(Riga& riga, int celle) {
    while (static_cast<int>(riga.celle.size()) < celle && riga.celle.size() < kCelleMassime) {
        Cella c;
        c.destra = (riga.celle.empty() ? riga.sinistra : riga.celle.back().destra) + kCellaLarga;
        riga.celle.push_back(c);
    }
}

// Joins the cells that belong to the one before; `nuovo` tells each old cell its new number.
void fondi(Riga& riga, const std::vector<bool>& fuse, std::vector<int>& nuovo) {
    std::vector<Cella> celle;
    for (std::size_t i = 0; i < riga.celle.size(); ++i) {
        if (i < fuse.size() && fuse[i] && !celle.empty()) {
            celle.back().destra = riga.celle[i].destra;
            celle.back().bordo_destro = riga.celle[i].bordo_destro;
        } else {
            celle.push_back(riga.celle[i]);
        }
        nuovo.push_back(static_cast<int>(celle.size()) - 1);
    }
    riga.celle = std::move(celle);
}

}  // namespace

std::uint32_t Costruttore::formato(const StatoCarattere& f) {
    if (f == ultimo_) return ultimo_numero_;
    auto [it, nuovo] = formati_.try_emplace(f, static_cast<std::uint32_t>(doc_.formati.size()));
    if (nuovo) {
        FormatoCarattere c;
        if (const auto nome = facce.find(f.font); nome != facce.end() && !nome->second.empty())
            c.carattere = nome->second;
        c.punti = f.mezzi_punti / 2.0;
        c.grassetto = f.grassetto;
        c.corsivo = f.corsivo;
        c.sottolineato = f.sottolineato;
        c.barrato = f.barrato;
        c.maiuscole = f.maiuscole;
        c.maiuscoletto = f.maiuscoletto;
        c.rialzo = f.rialzo;
        c.immagine = f.immagine;
        c.campo = f.campo;
        const auto colore = [this](int n) {
            return n > 0 && n < static_cast<int>(colori.size()) ? colori[static_cast<std::size_t>(n)]
                                                                : kColoreAutomatico;
        };
        c.colore = colore(f.colore);
        c.sfondo = colore(f.sfondo);
        doc_.formati.push_back(std::move(c));
    }
    ultimo_ = f;
    ultimo_numero_ = it->second;
    return ultimo_numero_;
}

std::uint32_t Costruttore::formato(const FormatoParagrafo& p) {
    auto& tutti = doc_.formati_paragrafo;
    const std::size_t da = tutti.size() > kFormatiVicini ? tutti.size() - kFormatiVicini : 0;
    for (std::size_t i = tutti.size(); i-- > da;)
        if (tutti[i] == p) return static_cast<std::uint32_t>(i);
    tutti.push_back(p);
    return static_cast<std::uint32_t>(tutti.size() - 1);
}

void Costruttore::carattere(char c, const StatoCarattere& f) {
    Pezzo& p = pezzo();
    const std::uint32_t n = formato(f);
    if (p.tratti.empty() || p.tratti.back().formato != n) p.tratti.push_back({0, n});
    ++p.tratti.back().n;
    p.testo.push_back(c);
    p.salto_nudo = p.salto_di_sezione = false;
}

void Costruttore::immagine(Immagine im, StatoCarattere f) {
    f.immagine = static_cast<int>(doc_.immagini.size());
    doc_.immagini.push_back(std::make_shared<const Immagine>(std::move(im)));
    carattere(' ', f);
}

void Costruttore::chiudi(char c, const FormatoParagrafo& p, const StatoCarattere& f, bool in_riga) {
    carattere(c, f);
    Pezzo& z = pezzo();
    FormatoParagrafo q = p;
    q.salto_prima = q.salto_prima || z.salto;
    z.salto = false;
    Paragrafo par;
    par.n = z.testo.size() - z.inizio;
    par.formato = formato(q);
    par.cella = in_riga ? z.cella : 0;
    z.paragrafi.push_back(par);
    z.inizio = z.testo.size();
    z.in_riga = in_riga ? z.in_riga + 1 : 0;
}

void Costruttore::fine_paragrafo(const FormatoParagrafo& p, const StatoCarattere& f, bool in_tabella) {
    if (!in_tabella && celle_aperte()) fine_riga();
    if (!in_tabella && std::exchange(pezzo().salto_nudo, false)) return;
    chiudi(kFineParagrafo, p, f, in_tabella);
}

void Costruttore::fine_cella(const FormatoParagrafo& p, const StatoCarattere& f) {
    chiudi(kFineCella, p, f, true);
    ++pezzo().cella;
}

void Costruttore::fine_riga() {
    Pezzo& z = pezzo();
    if (z.in_riga == 0) return;
    Riga fatta = riga.riga;
    completa(fatta, std::max(z.cella, 1));
    bordi_di_tabella(fatta, riga);
    for (Cella& c : fatta.celle)
        for (std::size_t i = 0; i < c.spazio.size(); ++i)
            if (c.spazio[i] < 0)
                c.spazio[i] = riga.spazio[i] >= 0 ? riga.spazio[i] : i % 2 == 1 ? fatta.spazio : 0;
    std::vector<int> nuovo;
    fondi(fatta, riga.fuse, nuovo);
    const auto numero = static_cast<std::int32_t>(doc_.righe.size());
    for (std::size_t i = z.paragrafi.size() - z.in_riga; i < z.paragrafi.size(); ++i) {
        Paragrafo& p = z.paragrafi[i];
        const auto cella = std::min(static_cast<std::size_t>(p.cella), nuovo.size() - 1);
        p.riga = numero;
        p.assorbito = cella > 0 && nuovo[cella] == nuovo[cella - 1];
        p.cella = nuovo[cella];
    }
    if (!z.testo.empty() && z.testo.back() == kFineCella) z.testo.back() = kFineParagrafo;
    doc_.righe.push_back(std::move(fatta));
    z.in_riga = 0;
    z.cella = 0;
}

void Costruttore::salto_pagina(const FormatoParagrafo& p, const StatoCarattere& f) {
    Pezzo& z = pezzo();
    const bool nudo = z.testo.size() == z.inizio;
    // Two breaks in a row leave a blank page between them.
    if (!nudo || (z.salto && !z.salto_di_sezione)) chiudi(kFineParagrafo, p, f, false);
    z.salto = true;
    z.salto_nudo = nudo;
}

void Costruttore::nuova_sezione(const FormatoParagrafo& p, const StatoCarattere& f) {
    Pezzo& z = pezzo();
    if (z.testo.size() > z.inizio) chiudi(kFineParagrafo, p, f, false);
    z.salto_di_sezione = !z.salto;
    z.salto = true;
    z.salto_nudo = false;
}

void Costruttore::di_seguito() {
    Pezzo& z = pezzo();
    if (std::exchange(z.salto_di_sezione, false)) z.salto = false;
}

void Costruttore::fine_parte(const FormatoParagrafo& p, const StatoCarattere& f) {
    if (pezzo().testo.size() > pezzo().inizio && !celle_aperte()) fine_paragrafo(p, f, false);
}

void Costruttore::chiudi_aperti() {
    for (std::size_t i = 0; i < kParti; ++i) {
        corrente_ = i;
        Pezzo& z = pezzo();
        if (z.testo.size() > z.inizio) {
            // The file ends inside a paragraph: it stands, without a line end.
            Paragrafo par;
            par.n = z.testo.size() - z.inizio;
            par.formato = formato(ultimo_paragrafo);
            par.cella = z.in_riga > 0 ? z.cella : 0;
            if (z.in_riga > 0) ++z.in_riga;
            z.paragrafi.push_back(par);
            z.inizio = z.testo.size();
        }
        if (z.in_riga > 0) {
            ++z.cella;
            fine_riga();
        }
    }
}

Documento Costruttore::termina(const Foglio& foglio, int passo_tabulazione) {
    chiudi_aperti();
    for (std::size_t i = 0; i < kParti; ++i) {
        Pezzo& z = parti_[i];
        if (i > 0 && z.testo.empty()) continue;
        // A part that follows begins on a line of its own in the plain text.
        if (i > 0 && !doc_.testo.empty() && doc_.testo.back() != kFineParagrafo && !doc_.paragrafi.empty()) {
            doc_.testo.push_back(kFineParagrafo);
            ++doc_.tratti.back().n;
            ++doc_.paragrafi.back().n;
        }
        doc_.testo += z.testo;
        doc_.tratti.insert(doc_.tratti.end(), z.tratti.begin(), z.tratti.end());
        doc_.paragrafi.insert(doc_.paragrafi.end(), z.paragrafi.begin(), z.paragrafi.end());
        doc_.parti.push_back({static_cast<TipoParte>(i), z.paragrafi.size()});
        z = {};
    }
    doc_.foglio = foglio;
    doc_.passo_tabulazione = passo_tabulazione;
    return std::move(doc_);
}

}  // namespace ambra::rtf
