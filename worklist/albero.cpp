// The command tree of the main screen: going down a level is the writing of seven captions, and the
// caption of a button at the moment of the click decides what it does.
#include <algorithm>
#include <functional>
#include <iterator>

#include "worklist/vexoraf.h"

namespace ambra {

namespace {

// command3d2(3) to (0), command3d1, stampante, Label2.
using Livello = std::array<const char*, 7>;
constexpr Livello kRadice = {"Fornitori", "Nuova fattura", "Stampe",        "Rit.Acconto",
                             "Tabelle",   "Archivi",       "Aggiorna lista"};
constexpr Livello kTabelle = {
    "Tabella iva", "Tab.pagamenti", "Mod.ministerial", "Forma etichetta", "", "", ""};
constexpr Livello kArchivi = {"Riordino", "Azzeramento", "Indici", "", "", "", ""};
constexpr Livello kRitenute = {
    "Versam.ritenute", "Elenco ritenute", "Certificazioni", "Dett.ritenute", "", "", ""};
constexpr Livello kStampe = {"Elenco fornitori", "Etichette",      "Schede",      "Elenco fatture",
                             "Riep.analitico",   "Riep.sintetico", "Scadenziario"};

// The captions that do nothing but open a screen.
struct Foglia {
    const char* caption;
    const char* schermo;
};
constexpr Foglia kFoglie[] = {
    {"Fornitori", "lumfor"},         {"Nuova fattura", "lumftem"},  {"Tabella iva", "mrvtiva"},
    {"Tab.pagamenti", "mrvtpag"},    {"Mod.ministerial", "mrvlay"}, {"Forma etichetta", "mrvteti"},
    {"Azzeramento", "mrvaazz"},      {"Indici", "mrvaind"},         {"Versam.ritenute", "lumpgr"},
    {"Elenco ritenute", "lumstca"},  {"Certificazioni", "lumcer"},  {"Dett.ritenute", "lumstcr"},
    {"Elenco fornitori", "lumstct"}, {"Etichette", "lumstce"},      {"Schede", "lumstcs"},
    {"Elenco fatture", "lumstcf"},   {"Riep.analitico", "lumstcy"}, {"Riep.sintetico", "lumstcx"},
    {"Scadenziario", "lumstcd"},
};

const Foglia* foglia(std::string_view caption) {
    const auto* f = std::find_if(std::begin(kFoglie), std::end(kFoglie),
                                 [&](const Foglia& x) { return caption == x.caption; });
    return f == std::end(kFoglie) ? nullptr : f;
}

}  // namespace

void Vexoraf::livello(const std::array<const char*, 7>& captions) {
    Bottone* bottoni[7] = {&command3d2[3], &command3d2[2], &command3d2[1], &command3d2[0],
                           &command3d1,    &stampante,     &Label2};
    for (std::size_t i = 0; i < 7; ++i) {
        bottoni[i]->caption(captions[i]);
        // A leaf without its screen is visibly out of use.
        const Foglia* f = foglia(captions[i]);
        bottoni[i]->enabled(!f || prog.schermi.conosce(f->schermo));
    }
}

void Vexoraf::radice() {
    livello(kRadice);
}

void Vexoraf::comando(const std::string& caption) {
    if (caption == "Stampe") return livello(kStampe);
    if (caption == "Rit.Acconto") return livello(kRitenute);
    if (caption == "Tabelle") return livello(kTabelle);
    if (caption == "Archivi") return livello(kArchivi);
    if (caption == "Aggiorna lista") return aggiornalista();
    if (caption == "Riordino") return riordino();

    const Foglia* f = foglia(caption);
    if (!f) return;
    prog.schermi.apri_foglia(f->schermo);
}

void Vexoraf::fine() {
    if (command3d2[3].caption() == kRadice[0]) prog.piattaforma.end();
    radice();
}

}  // namespace ambra
