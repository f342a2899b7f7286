#include "ambra/azioni.h"

#include <cmath>
#include <map>
#include <optional>
#include <sstream>
#include <string_view>

#include "core/disco.h"
#include "core/errori.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "screen/foglio.h"

namespace ambra {

namespace {

[[noreturn]] void sbaglio(const std::string& testo) {
    throw RigaSbagliata{testo};
}

// Cuts the first word off; what follows one blank is left in `s`.
std::string prima_parola(std::string& s) {
    const auto fine = s.find(' ');
    std::string parola = s.substr(0, fine);
    s = fine == std::string::npos ? "" : s.substr(fine + 1);
    return parola;
}

// Far beyond any number that a script means, and still an int.
constexpr double kIntero = 1e9;

std::optional<int> intero_di(const std::string& s) {
    double v;
    std::size_t fine;
    if (!inizia_numero(s, v, fine) || fine != s.size() || std::abs(v) > kIntero) return {};
    return static_cast<int>(v);
}

// The first number of a text that may go on; cut off.
int numero_detto(std::istringstream& numeri) {
    int n = 0;
    if (!(numeri >> n)) sbaglio("not a number: " + numeri.str());
    return n;
}

// ---- screens ----

Schermo& schermo_visibile(const Scena& s, const std::string& nome) {
    Schermo* x = s.prog.schermi.caricato(nome);
    if (!x) sbaglio("unknown screen: " + nome);
    if (!x->visible()) sbaglio("hidden screen: " + nome);
    return *x;
}

void activate(const Scena& s, std::string resto) {
    s.prog.schermi.davanti(schermo_visibile(s, resto));
}

void close_screen(const Scena& s, std::string resto) {
    s.prog.schermi.chiudi_dal_bordo(schermo_visibile(s, resto));
}

void open_screen(const Scena& s, std::string resto) {
    if (!s.prog.schermi.apri_foglia(resto)) sbaglio("cannot be opened: " + resto);
}

void screens(const Scena& s, std::string) {
    s.eventi.schermi(s.prog.schermi);
}

// ---- controls ----

// A control and the screen it stands on.
struct Posto {
    Schermo* schermo;
    Controllo* controllo;
};

Posto controllo_detto(const Scena& s, const std::string& dove) {
    const auto punto = dove.find('.');
    Schermo* x = s.prog.schermi.caricato(dove.substr(0, punto));
    if (!x || punto == std::string::npos) sbaglio("unknown screen: " + dove);
    Controllo* c = x->trova(dove.substr(punto + 1));
    if (!c) sbaglio("unknown control: " + dove);
    return {x, c};
}

// What a hand does to a control: it can only click what it sees, and what it touches has the focus.
Controllo& in_mano(const Scena& s, const std::string& dove, bool clic = false) {
    const auto [schermo, c] = controllo_detto(s, dove);
    if (clic && (!schermo->visible() || !c->visible())) sbaglio("hidden control: " + dove);
    if (clic && !c->enabled()) sbaglio("disabled control: " + dove);
    if (schermo->visible()) s.prog.schermi.davanti(*schermo);
    // A label takes the focus only where it hands it on.
    if ((c->genere() != Genere::label || c->ricevuto) && schermo->fuoco() != c) schermo->fuoco(*c);
    return *c;
}

template <class C>
C& come(Controllo& c, const std::string& dove, const char* che = "not that kind of control: ") {
    auto* giusto = dynamic_cast<C*>(&c);
    if (!giusto) sbaglio(che + dove);
    return *giusto;
}

void click(const Scena& s, std::string resto) {
    Controllo& c = in_mano(s, prima_parola(resto), true);
    if (auto* casella = dynamic_cast<Casella*>(&c)) {
        casella->clicca();
    } else if (auto* opzione = dynamic_cast<Opzione*>(&c)) {
        opzione->clicca();
    } else {
        c.premi();
    }
}

void type(const Scena& s, std::string resto) {
    const std::string dove = prima_parola(resto);
    come<CampoTesto>(in_mano(s, dove), dove, "not a text field: ").digita(da_utf8(resto));
}

void leave(const Scena& s, std::string resto) {
    const auto [schermo, c] = controllo_detto(s, prima_parola(resto));
    if (!c->lascia()) {
        schermo->fuoco(*c);
    } else if (schermo->fuoco() == c) {
        schermo->senza_fuoco();
    }
}

void enter(const Scena& s, std::string resto) {
    in_mano(s, prima_parola(resto)).premi_invio();
}

void select(const Scena& s, std::string resto) {
    const std::string dove = prima_parola(resto);
    Controllo& c = in_mano(s, dove);
    std::istringstream numeri(resto);
    const int n = numero_detto(numeri);
    auto& lista = come<Lista>(c, dove);
    if (n < 0 || n >= static_cast<int>(lista.voci().size())) sbaglio("no such item: " + resto);
    lista.scegli(n);
}

void scroll(const Scena& s, std::string resto) {
    const std::string dove = prima_parola(resto);
    Controllo& c = in_mano(s, dove);
    std::istringstream numeri(resto);
    const int n = numero_detto(numeri);
    come<Scorrimento>(c, dove).scorri(n);
}

void pick(const Scena& s, std::string resto) {
    const std::string dove = prima_parola(resto);
    Controllo& c = in_mano(s, dove, true);
    std::istringstream numeri(resto);
    const int riga = numero_detto(numeri), colonna = numero_detto(numeri);
    auto& griglia = come<Griglia>(c, dove);
    if (riga < 0 || riga >= griglia.righe() || colonna < 0 || colonna >= griglia.quante_colonne())
        sbaglio("no such cell: " + resto);
    griglia.scegli(riga, colonna);
}

// ---- what comes out ----

void show(const Scena& s, std::string resto) {
    const auto punto = resto.find('.');
    const std::string nome = resto.substr(0, punto);
    const Schermo* x = s.prog.schermi.caricato(nome);
    if (!x) sbaglio("unknown screen: " + nome);
    if (punto == std::string::npos) return s.eventi.mostra(*x);
    s.eventi.mostra(*x, *controllo_detto(s, resto).controllo);
}

void csv(const Scena& s, std::string resto) {
    const std::string dove = prima_parola(resto);
    const auto& griglia = come<Griglia>(*controllo_detto(s, dove).controllo, dove);
    if (const int e = scrivi_fuori(resto, csv_di(foglio_di(griglia))))
        sbaglio("cannot be written: " + resto + ": " + a_utf8(in_parole(e)));
}

void note(const Scena& s, std::string resto) {
    s.eventi.nota(da_utf8(resto));
}

// ---- answers laid ready ----

void answer(const Scena& s, std::string resto) {
    std::istringstream parole(resto);
    for (std::string p; parole >> p;) {
        if (p != "yes" && p != "no" && p != "ok" && p != "cancel") sbaglio("unknown answer: " + p);
        s.pronte.risposte.push_back(p);
    }
}

void file(const Scena& s, std::string resto) {
    s.pronte.file.push_back(resto);
}

void font(const Scena& s, std::string resto) {
    s.pronte.caratteri.push_back(resto);
}

void colour(const Scena& s, std::string resto) {
    s.pronte.colori.push_back(resto);
}

void printer(const Scena& s, std::string resto) {
    if (resto != "portrait" && resto != "landscape" && resto != "-") sbaglio("unknown printer: " + resto);
    s.pronte.stampanti.push_back(resto);
}

void shell(const Scena& s, std::string resto) {
    const auto n = intero_di(resto);
    if (!n) sbaglio("not a number: " + resto);
    s.pronte.aperture.push_back(*n);
}

void today(const Scena& s, std::string resto) {
    const auto d = data_valida(resto);
    if (!d) sbaglio("not a date: " + resto);
    s.oggi = *d;
}

using Azione = void (*)(const Scena&, std::string resto);

const std::map<std::string_view, Azione> kVerbi = {
    {"activate", activate}, {"answer", answer},   {"click", click},     {"close", close_screen},
    {"colour", colour},     {"csv", csv},         {"enter", enter},     {"file", file},
    {"font", font},         {"leave", leave},     {"note", note},       {"open", open_screen},
    {"pick", pick},         {"printer", printer}, {"screens", screens}, {"scroll", scroll},
    {"select", select},     {"shell", shell},     {"show", show},       {"today", today},
    {"type", type}};

}  // namespace

void esegui_riga(const Scena& s, const std::string& riga) {
    std::string resto = riga;
    const std::string verbo = prima_parola(resto);
    const auto azione = kVerbi.find(verbo);
    if (azione == kVerbi.end()) sbaglio("unknown action: " + verbo);
    azione->second(s, resto);
}

}  // namespace ambra
