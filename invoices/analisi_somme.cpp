// The summary of a document by rate and by Natura; of a simplified one it is made from the lines.
#include <algorithm>

#include "invoices/analisi_parti.h"

namespace ambra::passi {

namespace {

const Decimale kCento = Decimale::di_centesimi(10'000);

SommaAliquota& somma_di(Analisi& a, Decimale aliquota) {
    const auto e = std::find_if(a.iva.begin(), a.iva.end(),
                                [&](const SommaAliquota& s) { return s.aliquota == aliquota; });
    return e == a.iva.end() ? a.iva.emplace_back(SommaAliquota{aliquota, {}, {}}) : *e;
}

SommaNatura& esente_di(Analisi& a, const std::string& natura) {
    const auto e = std::find_if(a.esenti.begin(), a.esenti.end(),
                                [&](const SommaNatura& s) { return s.natura == natura; });
    return e == a.esenti.end() ? a.esenti.emplace_back(SommaNatura{natura, {}}) : *e;
}

// The rate that a taxable amount and its VAT make, in whole per cents.
Decimale aliquota_di(Decimale imponibile, Decimale imposta) {
    const std::int64_t centesimi = per_su(imposta, kCento, imponibile).centesimi();
    return Decimale::di_centesimi((centesimi + 50) / 100 * 100);
}

void aggiungi(Analisi& a, Decimale aliquota, const std::string& natura, Decimale imponibile,
              Decimale imposta) {
    if (!c_e(aliquota)) {
        esente_di(a, natura).importo += imponibile + imposta;
        return;
    }
    SommaAliquota& s = somma_di(a, aliquota);
    s.imponibile += imponibile;
    s.imposta += imposta;
}

void somma_riepilogo(const FatturaLetta& f, Analisi& a) {
    for (const RiepilogoLetto& r : f.riepiloghi) {
        const Decimale imponibile = importo(r.imponibile).al_centesimo();
        const Decimale imposta = importo(r.imposta).al_centesimo();
        Decimale aliquota = importo(r.aliquota);
        if (r.aliquota.empty()) {
            a.avvisi.push_back("aliquota-assente");
            if (c_e(imposta)) aliquota = aliquota_di(imponibile, imposta);
        }
        aggiungi(a, aliquota, r.natura, imponibile, imposta);
        if (r.esigibilita == "S") {
            a.iva_scissa += imposta;
            a.avvisi.push_back("scissione-pagamenti");
        }
    }
    if (f.riepiloghi.empty()) a.avvisi.push_back("riepilogo-assente");
}

// The amounts of a simplified document include the VAT: that of the file, or what the rate makes of the sum.
void somma_semplificata(const FatturaLetta& f, Analisi& a) {
    std::vector<SommaAliquota> lordi;  // by rate, `imponibile` still with its VAT
    for (const RigaLetta& r : f.righe) {
        const Decimale lordo = importo(r.totale).al_centesimo(), imposta = importo(r.imposta).al_centesimo();
        const Decimale aliquota =
            r.aliquota.empty() && c_e(imposta) ? aliquota_di(lordo - imposta, imposta) : importo(r.aliquota);
        if (c_e(imposta) || !c_e(aliquota)) {
            aggiungi(a, aliquota, r.natura, lordo - imposta, imposta);
            if (r.aliquota.empty() && r.natura.empty() && !c_e(imposta))
                a.avvisi.push_back("aliquota-assente");
            continue;
        }
        lordi.push_back({aliquota, lordo, {}});
        somma_di(a, aliquota);  // keeps the order of the file
    }
    for (SommaAliquota& s : a.iva) {
        Decimale lordo;
        for (const SommaAliquota& l : lordi)
            if (l.aliquota == s.aliquota) lordo += l.imponibile;
        const Decimale netto = per_su(lordo, kCento, kCento + s.aliquota);
        s.imponibile += netto;
        s.imposta += lordo - netto;
    }
    if (f.righe.empty()) a.avvisi.push_back("riepilogo-assente");
}

}  // namespace

void somme(const FatturaLetta& f, Analisi& a) {
    f.semplificata ? somma_semplificata(f, a) : somma_riepilogo(f, a);
    for (const SommaNatura& s : a.esenti)
        if (s.natura.starts_with("N6")) a.avvisi.push_back("inversione-contabile");
}

void volta(Analisi& a) {
    for (SommaAliquota& s : a.iva) {
        s.imponibile = -s.imponibile;
        s.imposta = -s.imposta;
    }
    for (SommaNatura& s : a.esenti) s.importo = -s.importo;
    a.iva_scissa = -a.iva_scissa;
    a.arrotondamento = -a.arrotondamento;
    a.totale = -a.totale;
    if (a.totale_dichiarato) a.totale_dichiarato = -*a.totale_dichiarato;
}

}  // namespace ambra::passi
