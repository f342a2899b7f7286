#include "core/impostazioni.h"

#include <cmath>

#include "core/filerecord.h"
#include "core/filetesto.h"
#include "core/testo.h"

namespace ambra {

namespace {

constexpr int kFileTesti = 19;
const std::string kCartellaPdf = "\\LUMDIR\\PDF";

void carica_intestazione(Disco& disco, Errore& err, Impostazioni& imp) {
    err.azzera();
    LettoreTesto f(err);
    f.apri(disco, kCartella + "lumora.int");
    for (std::size_t i = 1; i <= 16; ++i) f.riga(imp.intestazione[i]);
}

void carica_cambio(Disco& disco, Errore& err, Impostazioni& imp) {
    err.azzera();
    LettoreTesto f(err);
    f.apri(disco, kCartella + "lumeria.eur");
    for (std::size_t i = 1; i <= 10; ++i) f.riga(imp.cambio[i]);
    imp.cambio[1] = "1";  // the file keeps its flag, this system works in euro only
    if (err) {
        for (std::size_t i = 1; i <= 10; ++i) imp.cambio[i].clear();
        imp.cambio[1] = "1";
        imp.cambio[2] = "1936.27";
    }
}

// The six lines of one font block; the first is a row-spacing value.
void leggi_blocco(LettoreTesto& f, Errore& err, RecStampa& voce, std::string& spaziatura) {
    std::string s;
    f.riga(spaziatura);
    if (f.riga(s)) voce.fontnome = riempi(s, 30);
    if (f.riga(s)) voce.fontsize = leggi_intero(s, err, voce.fontsize);
    if (f.riga(s)) voce.fontbold = leggi_intero(s, err, voce.fontbold);
    if (f.riga(s)) voce.fontital = leggi_intero(s, err, voce.fontital);
    if (f.riga(s)) voce.fontcolore = leggi_numero(s);
}

void caratteri_predefiniti(Impostazioni& imp) {
    for (std::size_t i = 1; i <= 5; ++i) {
        RecStampa& v = imp.tabstampa[i];
        v.fontnome = riempi("Arial", 30);
        v.fontsize = 9;
        v.fontbold = v.fontital = 0;
        v.fontcolore = 0;
    }
    imp.tabstampa[1].fontsize = 14;
}

void carica_tabstampa(Disco& disco, Errore& err, Impostazioni& imp) {
    err.azzera();
    LettoreTesto f(err);
    RecStampa& lavoro = imp.tabstampa[0];
    f.apri(disco, kCartella + "lumeria.tbl");
    f.campo_intero(lavoro.paginasx);
    f.campo_intero(lavoro.paginadx);
    f.campo_intero(lavoro.paginasu);
    f.campo_intero(lavoro.paginagiu);
    f.campo_intero(lavoro.testata);
    if (err) {
        lavoro.paginasx = lavoro.paginasu = 30;
        lavoro.paginadx = lavoro.paginagiu = 950;
        lavoro.testata = 2;
    }

    err.azzera();
    std::string spaziatura, buttata;
    for (std::size_t i = 0; i <= 5; ++i)
        leggi_blocco(f, err, imp.tabstampa[i], i == 0 ? spaziatura : buttata);
    double h = leggi_numero(spaziatura);
    if (err) {
        caratteri_predefiniti(imp);
        h = 4;
    }

    std::string ultima;
    for (int i = 0; i < 6; ++i) f.riga(ultima);
    lavoro.fascia = err ? kNessunaFascia : leggi_numero(ultima);
    // A spacing that an Integer row height cannot hold is no spacing at all.
    const double alta = std::nearbyint(25 * h + 140);
    lavoro.rigaalt = alta >= -32768 && alta <= 32767 ? static_cast<int>(alta) : 240;
}

void generale_di_nascita(RecGenerale& g) {
    constexpr double kColori[14] = {0, 8454143,  16777215, 0,        65535, 0,       65535,
                                    0, 16711680, 255,      16711680, 255,   8421376, 16711680};
    g = RecGenerale{};
    for (int i = 0; i < 14; ++i) g.col[i] = kColori[i];
    g.pdfdir = kCartellaPdf;
    g.riservato = "";
}

void carica_generale(Disco& disco, Errore& err, Impostazioni& imp) {
    const std::string nome = kCartella + "lumeria.gnr";
    err.azzera();
    if (!prova_lettura(disco, err, nome)) {
        disco.crea_cartella(kCartellaPdf);
        generale_di_nascita(imp.generale);
        salvagnr(disco, err, imp);
        return;
    }
    FileDi<RecGenerale> f(err, kFileTesti);
    f.apri(disco, nome);
    leggi(f, 1, imp.generale);
    f.chiudi();
    if (!imp.generale.pdfdir.rifilato().empty()) return;
    disco.crea_cartella(kCartellaPdf);
    imp.generale.pdfdir = kCartellaPdf;
    salvagnr(disco, err, imp);
}

}  // namespace

void salvagnr(Disco& disco, Errore& err, const Impostazioni& imp) {
    FileDi<RecGenerale> f(err, kFileTesti);
    f.apri(disco, kCartella + "lumeria.gnr");
    scrivi(f, 1, imp.generale);
}

void caricatabelle(Disco& disco, Errore& err, Impostazioni& imp) {
    carica_intestazione(disco, err, imp);
    carica_cambio(disco, err, imp);
    carica_tabstampa(disco, err, imp);
    carica_generale(disco, err, imp);
}

}  // namespace ambra
