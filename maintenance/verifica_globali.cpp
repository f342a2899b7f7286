// The files that all buildings share: master records and text tables.
#include <algorithm>

#include "core/filetesto.h"
#include "core/numeri.h"
#include "core/recgenerale.h"
#include "core/testo.h"
#include "maintenance/verifica_cartella.h"
#include "records/prospetto.h"
#include "records/stabile.h"

namespace ambra {

namespace {

using Righe = std::vector<std::string>;

// A file that every studio has and without which the program works on defaults.
void deve_esserci(Cartella& c, const char* file) {
    if (c.manca(file)) c.avviso(file, 0, "", "manca", "il file");
}

template <class R>
void verifica_file(Cartella& c, const char* file) {
    FileDi<R> f(c.err, 0);
    if (!c.apri(f, file, false)) return;
    static const FormatoRecord& kForma = *formato_di_file(file);
    per_record<R>(c, f, file, f.quanti(),
                  [&](long n, const R& r) { c.generali(file, n, std::as_bytes(std::span(&r, 1)), kForma); });
}

// The lines of a text file; a missing one is no finding, one with fewer than `minimo` lines is.
bool righe_di(Cartella& c, const char* file, std::size_t minimo, Righe& righe) {
    c.err.azzera();
    LettoreTesto f(c.err);
    if (!f.apri(c.disco(), c.percorso(file))) {
        if (c.err.numero != errore::file_mancante && c.err.numero != errore::percorso_mancante)
            c.illeggibile(file, 0);
        return false;
    }
    righe.clear();
    for (std::string r; !f.fine() && f.riga(r);) righe.push_back(r);
    for (std::size_t i = 0; i < righe.size(); ++i)
        if (puliscitesto(righe[i]).size() != righe[i].size())
            c.avviso(file, static_cast<long>(i) + 1, "", leggibile(righe[i]),
                     "nessun carattere di controllo");
    if (righe.size() >= minimo) return true;
    c.errore(file, 0, "", unisci(std::to_string(righe.size()), righe.size() == 1 ? " riga" : " righe"),
             unisci(std::to_string(minimo), " righe"));
    return false;
}

bool numero_o_vuoto(std::string_view s) {
    double v;
    std::size_t fine;
    s = rifila(s);
    return s.empty() || (inizia_numero(s, v, fine) && fine == s.size());
}

bool cifre(std::string_view s) {
    return std::all_of(s.begin(), s.end(), cifra);
}

void numeri(Cartella& c, const char* file, const Righe& r, std::size_t da, std::size_t a) {
    for (std::size_t i = da; i <= a && i <= r.size(); ++i)
        if (!numero_o_vuoto(r[i - 1]))
            c.avviso(file, static_cast<long>(i), "", leggibile(r[i - 1]), "un numero");
}

void iva(Cartella& c) {
    Righe r;
    if (!righe_di(c, "lumora.iva", 32, r)) return;
    for (std::size_t i = 1; i <= 24; ++i) {
        const double v = leggi_numero(r[i - 1]);
        if (!numero_o_vuoto(r[i - 1]) || v < 0 || v > 100)
            c.avviso("lumora.iva", static_cast<long>(i), "", leggibile(r[i - 1]), "una percentuale");
    }
}

void pagamenti(Cartella& c) {
    Righe r;
    if (!righe_di(c, "lumora.pag", 80, r)) return;
    for (std::size_t i = 2; i <= 80; i += 2) {
        const std::string& s = r[i - 1];
        if (rifila(s).empty()) continue;
        const bool bene = s.size() == 16 && cifre(std::string_view(s).substr(0, 12)) &&
                          (s[12] == 'F' || s[12] == 'N') && cifre(std::string_view(s).substr(13));
        if (!bene)
            c.avviso("lumora.pag", static_cast<long>(i), "", leggibile(s),
                     "quattro gruppi di tre cifre, F oppure N, tre cifre");
    }
}

void moduli(Cartella& c) {
    Righe r;
    if (!righe_di(c, "lummmi.lay", 600, r)) return;
    for (std::size_t campo = 0; campo < 100; ++campo) {
        const std::size_t i = campo * 6;
        if (campo < 96 && (r[i].size() != 6 || !cifre(r[i])))
            c.avviso("lummmi.lay", static_cast<long>(i) + 1, "", leggibile(r[i]), "sei cifre");
        numeri(c, "lummmi.lay", r, i + 2, i + 2);
        numeri(c, "lummmi.lay", r, i + 4, i + 6);
    }
}

void etichette(Cartella& c, const char* file) {
    Righe r;
    if (!righe_di(c, file, 210, r)) return;
    for (std::size_t riga = 0; riga < 27; ++riga) {
        numeri(c, file, r, riga * 7 + 1, riga * 7 + 2);
        numeri(c, file, r, riga * 7 + 4, riga * 7 + 6);
    }
    numeri(c, file, r, 28 * 7 + 1, 28 * 7 + 2);
    numeri(c, file, r, 29 * 7 + 1, 29 * 7 + 6);
}

// Five numbers, six blocks of six lines, six lines.
void tabella_stampa(Cartella& c) {
    c.err.azzera();
    LettoreTesto f(c.err);
    if (!f.apri(c.disco(), c.percorso("lumeria.tbl"))) return;
    for (int i = 0, v = 0; i < 5; ++i) f.campo_intero(v);
    std::string s;
    for (int i = 0; i < 42; ++i) f.riga(s);
    if (c.err)
        c.errore("lumeria.tbl", 0, "", "un file corto o con numeri impossibili", "5 numeri e 42 righe");
}

void testo_del_prospetto(Cartella& c, long n, int numero) {
    const std::string file = unisci("vexoral.", con_zeri(numero, 3));
    std::string testo;
    const int e = c.disco().leggi_tutto(c.percorso(file), testo);
    if (e != 0)
        c.avviso(file, 0, "", in_parole(e), unisci("il testo del prospetto: ", std::to_string(n)));
    else if (!testo.starts_with("{\\rtf"))
        c.avviso(file, 0, "", leggibile(sinistra(testo, 20)), "un testo in formato RTF");
}

void prospetti(Cartella& c) {
    FileDi<RecProspetto> f(c.err, 18);
    if (!c.apri(f, "lumoral.tot", false)) return;
    static const FormatoRecord& kForma = *formato_di_file("lumoral.tot");
    per_record<RecProspetto>(c, f, "lumoral.tot", f.quanti(), [&](long n, const RecProspetto& r) {
        c.generali("lumoral.tot", n, std::as_bytes(std::span(&r, 1)), kForma);
        const std::string numero = r.numprosp.testo();
        if (!numero_o_vuoto(numero))
            return c.avviso("lumoral.tot", n, "numprosp", leggibile(numero), "un numero");
        const int quale = static_cast<int>(leggi_numero(numero));
        if (quale < 1) return;
        if (r.nomeprosp.rifilato().empty()) c.avviso("lumoral.tot", n, "nomeprosp", "", "un nome");
        testo_del_prospetto(c, n, quale);
    });
}

}  // namespace

void verifica_globali(Cartella& c) {
    for (const char* file :
         {"lumora.tot", "lumora.tt2", "lumora.int", "lumora.iva", "lumora.pag", "lumeria.gnr"})
        deve_esserci(c, file);
    verifica_file<RecStabile>(c, "lumora.tot");
    verifica_file<RecStabile2>(c, "lumora.tt2");
    verifica_file<RecGenerale>(c, "lumeria.gnr");
    prospetti(c);
    Righe r;
    righe_di(c, "lumora.int", 16, r);
    righe_di(c, "lumeria.eur", 10, r);
    iva(c);
    pagamenti(c);
    moduli(c);
    tabella_stampa(c);
    for (const char* file : {"lumeria.eti", "lumeria.eta", "lumeria.etf"}) etichette(c, file);
}

}  // namespace ambra
