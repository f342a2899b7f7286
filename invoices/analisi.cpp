#include "invoices/analisi.h"

#include <algorithm>
#include <array>

#include "core/date.h"
#include "invoices/analisi_parti.h"

namespace ambra {

namespace passi {

Decimale importo(const std::string& testo) {
    return Decimale::leggi(testo).value_or(Decimale());
}

}  // namespace passi

namespace {

using passi::c_e;
using passi::importo;

constexpr std::size_t kNumero = 10;  // characters of a document's number in the archive

template <std::size_t N>
bool tra(const std::string& tipo, const std::array<const char*, N>& tipi) {
    return std::find(tipi.begin(), tipi.end(), tipo) != tipi.end();
}

constexpr std::array kDelCliente = {"TD16", "TD17", "TD18", "TD19", "TD20", "TD21",
                                    "TD22", "TD23", "TD27", "TD28", "TD29"};
constexpr std::array kDelFornitore = {"TD01", "TD02", "TD03", "TD04", "TD05", "TD06",
                                      "TD07", "TD08", "TD09", "TD24", "TD25", "TD26"};
constexpr std::array kNoteCredito = {"TD04", "TD08"};

// Without blanks at the ends, one between words.
std::string riordinato(const std::string& s) {
    std::string r;
    for (const char c : s) {
        const bool bianco = c == ' ' || c == '\t' || c == '\r' || c == '\n';
        if (!bianco)
            r += c;
        else if (!r.empty() && r.back() != ' ')
            r += ' ';
    }
    if (r.ends_with(' ')) r.pop_back();
    return r;
}

// The last `n` characters, not bytes, of a UTF-8 text.
std::string ultimi(const std::string& s, std::size_t n) {
    std::size_t i = s.size();
    while (i > 0 && n > 0) {
        --i;
        if ((s[i] & 0xC0) != 0x80) --n;
    }
    return s.substr(i);
}

void testata(const FatturaLetta& f, Analisi& a) {
    const auto se = [&a](bool vero, const char* codice) {
        if (vero) a.avvisi.push_back(codice);
    };
    a.numero = riordinato(f.numero);
    a.numero_registrato = ultimi(a.numero, kNumero);
    a.data = f.data;
    se(a.numero.empty(), "numero-assente");
    se(!data_iso(a.data), "data-assente-o-errata");
    se(f.fornitore.assente(), "fornitore-assente");
    se(f.tipo.empty(), "tipo-assente");
    if (!f.divisa.empty() && f.divisa != "EUR") a.avvisi.push_back("divisa-" + f.divisa);
    const bool suo = tra(f.tipo, kDelCliente);
    se(suo, "integrazione-o-autofattura");
    se(!f.tipo.empty() && !suo && !tra(f.tipo, kDelFornitore), "tipo-sconosciuto");
}

bool arrotonda(const FatturaLetta& f) {
    return c_e(importo(f.arrotondamento)) ||
           std::any_of(f.riepiloghi.begin(), f.riepiloghi.end(),
                       [](const auto& r) { return c_e(importo(r.arrotondamento)); });
}

// The total, with what was declared as rounding.
void totale(const FatturaLetta& f, Analisi& a) {
    for (const SommaAliquota& s : a.iva) a.totale += s.imponibile + s.imposta;
    for (const SommaNatura& s : a.esenti) a.totale += s.importo;
    if (const auto t = Decimale::leggi(f.totale)) {
        a.totale_dichiarato = t->al_centesimo();
        const Decimale scarto = *a.totale_dichiarato - a.totale;
        if (arrotonda(f) && assoluto(scarto) <= Decimale::di_centesimi(100)) {
            a.arrotondamento = scarto;
            a.totale = *a.totale_dichiarato;
        }
    }
}

// Below zero: what is stored is positive, and a credit note. True if it was.
bool sotto_zero(const FatturaLetta& f, Analisi& a) {
    a.nota_credito = tra(f.tipo, kNoteCredito);
    if (!a.totale.in_misura() || a.totale >= Decimale()) return false;
    a.avvisi.push_back(a.nota_credito ? "nota di credito con importi negativi"
                                      : "importi-negativi: diventa nota di credito");
    a.nota_credito = true;
    passi::volta(a);
    return true;
}

void confronta_il_totale(Analisi& a) {
    if (!a.totale_dichiarato || *a.totale_dichiarato == a.totale) return;
    a.avvisi.push_back(*a.totale_dichiarato == a.netto ? "totale-dichiarato-e-il-netto"
                                                       : "totale-dichiarato-diverso");
}

void giudica(Analisi& a) {
    const auto se = [&a](bool vero, const char* codice) {
        if (vero) a.avvisi.push_back(codice);
    };
    if (!a.totale.in_misura() || !a.netto.in_misura()) {
        a.avvisi.push_back("importi-fuori-misura");
        return;
    }
    Decimale documento;
    for (const SommaAliquota& s : a.iva) documento += s.imponibile;
    for (const SommaNatura& s : a.esenti) documento += s.importo;
    se(a.netto < Decimale(), "netto-negativo");
    se(a.ritenuta > a.totale, "ritenuta-maggiore-del-totale");
    se(a.base_ritenuta && *a.base_ritenuta > documento, "base-ritenuta-maggiore-del-documento");
}

}  // namespace

bool Analisi::avvisa(std::string_view codice) const {
    return std::find(avvisi.begin(), avvisi.end(), codice) != avvisi.end();
}

Analisi analizza(const FatturaLetta& f) {
    Analisi a;
    testata(f, a);
    passi::somme(f, a);
    totale(f, a);
    const bool voltata = sotto_zero(f, a);
    passi::ritenute(f, voltata, a);
    a.netto = a.totale - a.ritenuta - a.contributi - a.iva_scissa;
    confronta_il_totale(a);
    passi::rate(f, a);
    giudica(a);
    std::sort(a.avvisi.begin(), a.avvisi.end());
    a.avvisi.erase(std::unique(a.avvisi.begin(), a.avvisi.end()), a.avvisi.end());
    return a;
}

std::string_view nome(RateDa da) {
    switch (da) {
        case RateDa::assenti:
            return "assenti";
        case RateDa::file:
            return "dal file";
        case RateDa::lordo_a_netto:
            return "lordo->netto";
        case RateDa::non_quadrano:
            return "non quadrano";
    }
    return "";
}

}  // namespace ambra
