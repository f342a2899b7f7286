#include "desktop/custodia.h"

#include <algorithm>
#include <string>

#include "screen/programma.h"
#include "screen/schermo.h"
#include "suppliers/lumftem.h"

namespace ambra {

namespace {

// A click that opens another document in a window that may be open already.
struct Riapertura {
    const char* schermo;
    const char* controllo;  // "" where the caption decides
    const char* caption;    // "" for any
    int colonna;            // of a grid; -1 for none
    const char* bersaglio;
};
constexpr Riapertura kRiaperture[] = {
    {"vexoraf", "elenco", "", 7, "lumftea"},          {"vexoraf", "elenco", "", 9, "luminca"},
    {"vexoraf", "", "Versam.ritenute", -1, "lumpgr"}, {"lumftem", "b_ins", "", -1, "lumftea"},
    {"mrvxml", "registra", "", -1, "lumftea"},        {"mrvcal", "segna", "", -1, "lumpgr"},
};

// The array to which a control belongs, or its own name.
std::string_view base_di(std::string_view nome) {
    return nome.substr(0, nome.find('('));
}

bool nominato(const std::vector<std::string_view>& nomi, const Controllo& c) {
    return std::any_of(nomi.begin(), nomi.end(),
                       [&](std::string_view n) { return n == c.nome() || n == base_di(c.nome()); });
}

bool vuota(const Controllo& c, int riga, int colonna) {
    const auto* g = dynamic_cast<const Griglia*>(&c);
    return g && (riga < 1 || g->vista(riga, colonna).empty());
}

}  // namespace

bool fa_parte(const Custodia& custodia, const Controllo& c) {
    switch (c.genere()) {
        case Genere::text:
        case Genere::date:
        case Genere::check:
        case Genere::option:
        case Genere::list:
            return true;
        case Genere::label:
        case Genere::button:
        case Genere::grid:
            return nominato(custodia.scelte, c);
        case Genere::scroll:
        case Genere::progress:
            return false;
    }
    return false;
}

bool fa_uscire(const Custodia& custodia, const Controllo& c) {
    return nominato(custodia.uscite, c) && c.caption() != "Indietro";
}

Schermo* riaperto_da(const Schermo& s, const Controllo& c, int riga, int colonna) {
    for (const Riapertura& r : kRiaperture) {
        if (s.nome() != r.schermo || colonna != r.colonna) continue;
        if (*r.controllo ? c.nome() != r.controllo : c.caption() != r.caption) continue;
        // From its own "Fornitore" the invoice gets a supplier, not another document.
        if (const auto* scelta = dynamic_cast<const Lumftem*>(&s); scelta && scelta->per_modifica())
            return nullptr;
        return vuota(c, riga, colonna) ? nullptr : s.prog.schermi.caricato(r.bersaglio);
    }
    return nullptr;
}

bool alla_radice(const Schermo& s) {
    const Controllo* primo = s.trova("command3d2(3)");
    return primo && primo->caption() == "Fornitori";
}

bool fine_del_programma(const Schermo& s, const Controllo& c) {
    return s.nome() == "vexoraf" && c.nome() == "indice" && alla_radice(s);
}

bool abbandonare(Programma& prog) {
    return prog.chiedi_prudente("Abbandonare i dati inseriti?", "Attenzione");
}

}  // namespace ambra
