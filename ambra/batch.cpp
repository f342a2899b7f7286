#include "ambra/batch.h"

#include <cassert>
#include <istream>
#include <ostream>
#include <sstream>

#include "ambra/eventi.h"
#include "core/errori.h"
#include "core/numeri.h"
#include "core/testo.h"

namespace ambra {

namespace {

const char* nome_icona(Icona i) {
    switch (i) {
        case Icona::stop:
            return "stop";
        case Icona::domanda:
            return "question";
        case Icona::esclamazione:
            return "exclamation";
        case Icona::informazione:
            return "information";
        case Icona::nessuna:
            return "none";
    }
    return "none";
}

const char* nome_bottoni(Bottoni b) {
    switch (b) {
        case Bottoni::ok:
            return "ok";
        case Bottoni::ok_annulla:
            return "okcancel";
        case Bottoni::si_no:
            return "yesno";
    }
    return "ok";
}

Risposta risposta_di(const std::string& s) {
    return s == "yes"  ? Risposta::si
           : s == "no" ? Risposta::no
           : s == "ok" ? Risposta::ok
                       : Risposta::annulla;
}

const char* nome_evento(Registro::Evento e) {
    switch (e) {
        case Registro::Evento::open:
            return "open";
        case Registro::Evento::hide:
            return "hide";
        case Registro::Evento::close:
            return "close";
        case Registro::Evento::activate:
            return "activate";
        case Registro::Evento::davanti:
            return "";
    }
    return "";
}

// Cuts the first word off; what follows one blank is left in `s`.
std::string prima_parola(std::string& s) {
    const auto fine = s.find(' ');
    std::string parola = s.substr(0, fine);
    s = fine == std::string::npos ? "" : s.substr(fine + 1);
    return parola;
}

std::optional<int> intero_di(const std::string& s) {
    double v;
    std::size_t fine;
    if (!inizia_numero(s, v, fine) || fine != s.size()) return {};
    return static_cast<int>(v);
}

}  // namespace

PiattaformaBatch::PiattaformaBatch(std::istream& script, std::ostream& eventi)
    : script_(script), eventi_(eventi) {
    stampante_.finito = [this](LavoroStampa&& l) {
        ++lavori_;
        eventi_ << json_lavoro(l, lavori_).dump() << '\n';
        if (stampato) stampato(l, lavori_);
    };
}

void PiattaformaBatch::esci(int stato) {
    eventi_.flush();
    throw FineBatch{stato == 0 ? esito_minimo : stato};
}

void PiattaformaBatch::sbaglio(const std::string& testo) {
    // What stands in the script may be no UTF-8: it must not keep the error from being told.
    eventi_ << Json{{"event", "error"}, {"line", numero_riga_}, {"text", testo}}.dump(
                   -1, ' ', false, Json::error_handler_t::replace)
            << '\n';
    esci(2);
}

void PiattaformaBatch::end() {
    eventi_ << Json{{"event", "end"}}.dump() << '\n';
    esci(0);
}

void PiattaformaBatch::guasto(const Guasto& g) {
    if (!di_archivio(g.percorso)) return;  // a diskette has its own words
    const std::string file = g.percorso.substr(g.percorso.find_last_of("\\/") + 1);
    eventi_ << Json{{"event", "fault"},
                    {"file", a_utf8(file)},
                    {"error", g.errore},
                    {"text", a_utf8(in_parole(g.errore))}}
                   .dump()
            << '\n';
    if (esito_minimo == 0) esito_minimo = 3;
}

int PiattaformaBatch::esegui(Programma& programma) {
    prog_ = &programma;
    eventi_ << Json{{"event", "start"}, {"screen", "vexoraf"}}.dump() << '\n';
    prog_->schermi.spia = [this](Registro::Evento e, Schermo& s) {
        if (e == Registro::Evento::davanti) return;
        eventi_ << Json{{"event", nome_evento(e)}, {"screen", s.nome()}}.dump() << '\n';
    };
    try {
        std::string r;
        while (prossima_riga(r)) riga(r);
        eventi_.flush();
        return esito_minimo;
    } catch (const FineBatch& fine) {
        return fine.stato;
    }
}

void PiattaformaBatch::wait_event() {
    assert(prog_->arc.sezioni_prese() == 0);
    std::string r;
    if (!prossima_riga(r)) esci(0);
    riga(r);
}

bool PiattaformaBatch::prossima_riga(std::string& riga) {
    // Whoever feeds the script line by line sees what came of a line before he gives the next.
    eventi_.flush();
    while (std::getline(script_, riga)) {
        ++numero_riga_;
        if (!riga.empty() && riga.back() == '\r') riga.pop_back();
        if (numero_riga_ == 1 && riga.starts_with("\xEF\xBB\xBF")) riga.erase(0, 3);
        const auto inizio = riga.find_first_not_of(" \t");
        if (inizio == std::string::npos || riga[inizio] == '#') continue;
        riga.erase(0, inizio);
        return true;
    }
    return false;
}

void PiattaformaBatch::riga(const std::string& r) {
    Registro::Turno turno(prog_->schermi);
    std::string resto = r;
    const std::string verbo = prima_parola(resto);
    azione(verbo, resto);
}

void PiattaformaBatch::azione(const std::string& verbo, const std::string& resto) {
    if (verbo == "click" || verbo == "type" || verbo == "leave" || verbo == "enter" || verbo == "select" ||
        verbo == "scroll" || verbo == "pick") {
        azione_controllo(verbo, resto);
    } else if (verbo == "activate" || verbo == "close") {
        azione_schermo(verbo, resto);
    } else if (verbo == "open") {
        if (!prog_->schermi.apri_foglia(resto)) sbaglio("cannot be opened: " + resto);
    } else if (verbo == "show") {
        mostra(resto);
    } else if (verbo == "screens") {
        Json lista = Json::array();
        for (const Schermo* s : prog_->schermi.caricati())
            lista.push_back({{"screen", s->nome()}, {"visible", s->visible()}});
        eventi_ << Json{{"event", "screens"}, {"screens", lista}}.dump() << '\n';
    } else if (verbo == "note") {
        eventi_ << Json{{"event", "note"}, {"text", a_utf8(da_utf8(resto))}}.dump() << '\n';
    } else {
        prepara_risposta(verbo, resto);
    }
}

void PiattaformaBatch::prepara_risposta(const std::string& verbo, const std::string& resto) {
    if (verbo == "answer") {
        std::istringstream parole(resto);
        for (std::string p; parole >> p;) {
            if (p != "yes" && p != "no" && p != "ok" && p != "cancel") sbaglio("unknown answer: " + p);
            risposte_.push_back(p);
        }
    } else if (verbo == "file") {
        file_.push_back(resto);
    } else if (verbo == "font") {
        caratteri_.push_back(resto);
    } else if (verbo == "colour") {
        colori_.push_back(resto);
    } else if (verbo == "printer") {
        if (resto != "portrait" && resto != "landscape" && resto != "-") sbaglio("unknown printer: " + resto);
        stampanti_.push_back(resto);
    } else if (verbo == "shell") {
        const auto n = intero_di(resto);
        if (!n) sbaglio("not a number: " + resto);
        aperture_.push_back(*n);
    } else if (verbo == "today") {
        const auto d = data_valida(resto);
        if (!d) sbaglio("not a date: " + resto);
        oggi_ = *d;
    } else {
        sbaglio("unknown action: " + verbo);
    }
}

void PiattaformaBatch::azione_schermo(const std::string& verbo, const std::string& resto) {
    Schermo* s = prog_->schermi.caricato(resto);
    if (!s) sbaglio("unknown screen: " + resto);
    if (!s->visible()) sbaglio("hidden screen: " + resto);
    if (verbo == "activate") {
        prog_->schermi.davanti(*s);
    } else {
        prog_->schermi.chiudi_dal_bordo(*s);
    }
}

void PiattaformaBatch::mostra(const std::string& che) {
    const auto punto = che.find('.');
    const std::string nome = che.substr(0, punto);
    const Schermo* s = prog_->schermi.caricato(nome);
    if (!s) sbaglio("unknown screen: " + nome);
    if (punto == std::string::npos) {
        eventi_ << json_schermo(*s).dump() << '\n';
        return;
    }
    const Controllo* c = s->trova(che.substr(punto + 1));
    if (!c) sbaglio("unknown control: " + che);
    eventi_ << Json{{"event", "show"},
                    {"screen", nome},
                    {"control", c->nome()},
                    {"state", json_controllo(*c)}}
                   .dump()
            << '\n';
}

void PiattaformaBatch::azione_controllo(const std::string& verbo, const std::string& riga) {
    std::string resto = riga;
    const std::string dove = prima_parola(resto);
    const auto punto = dove.find('.');
    Schermo* s = prog_->schermi.caricato(dove.substr(0, punto));
    if (!s || punto == std::string::npos) sbaglio("unknown screen: " + dove);
    Controllo* c = s->trova(dove.substr(punto + 1));
    if (!c) sbaglio("unknown control: " + dove);

    if (verbo == "leave") {
        if (!c->lascia()) {
            s->fuoco(*c);
        } else if (s->fuoco() == c) {
            s->senza_fuoco();
        }
        return;
    }
    if (verbo == "click" || verbo == "pick") {
        if (!s->visible() || !c->visible()) sbaglio("hidden control: " + dove);
        if (!c->enabled()) sbaglio("disabled control: " + dove);
    }
    if (s->visible()) prog_->schermi.davanti(*s);
    // A label takes the focus only where it hands it on.
    if ((c->genere() != Genere::label || c->ricevuto) && s->fuoco() != c) s->fuoco(*c);

    if (verbo == "type") {
        auto* campo = dynamic_cast<CampoTesto*>(c);
        if (!campo) sbaglio("not a text field: " + dove);
        campo->digita(da_utf8(resto));
    } else if (verbo == "enter") {
        c->premi_invio();
    } else if (verbo == "click") {
        if (auto* casella = dynamic_cast<Casella*>(c)) {
            casella->clicca();
        } else if (auto* opzione = dynamic_cast<Opzione*>(c)) {
            opzione->clicca();
        } else {
            c->premi();
        }
    } else {
        std::istringstream numeri(resto);
        int n = 0, m = 0;
        if (!(numeri >> n) || (verbo == "pick" && !(numeri >> m))) sbaglio("not a number: " + resto);
        if (auto* lista = dynamic_cast<Lista*>(c); lista && verbo == "select") {
            if (n < 0 || n >= static_cast<int>(lista->voci().size())) sbaglio("no such item: " + resto);
            lista->scegli(n);
        } else if (auto* barra = dynamic_cast<Scorrimento*>(c); barra && verbo == "scroll") {
            barra->scorri(n);
        } else if (auto* griglia = dynamic_cast<Griglia*>(c); griglia && verbo == "pick") {
            if (n < 0 || n >= griglia->righe() || m < 0 || m >= griglia->quante_colonne())
                sbaglio("no such cell: " + resto);
            griglia->scegli(n, m);
        } else {
            sbaglio("not that kind of control: " + dove);
        }
    }
}

Risposta PiattaformaBatch::message_box(const std::string& testo, const std::string& titolo, Icona icona,
                                       Bottoni bottoni, Risposta) {
    assert(!prog_ || prog_->arc.sezioni_prese() == 0);
    if (risposte_.empty()) sbaglio("message box without an answer: " + a_utf8(titolo) + ": " + a_utf8(testo));
    const std::string r = risposte_.front();
    risposte_.pop_front();
    eventi_ << Json{{"event", "message"},        {"title", a_utf8(titolo)},          {"text", a_utf8(testo)},
                    {"icon", nome_icona(icona)}, {"buttons", nome_bottoni(bottoni)}, {"answer", r}}
                   .dump()
            << '\n';
    return risposta_di(r);
}

std::string PiattaformaBatch::risposta_dialogo(std::deque<std::string>& coda, const char* genere) {
    if (coda.empty()) sbaglio(std::string("dialog without an answer: ") + genere);
    std::string r = coda.front();
    coda.pop_front();
    eventi_ << Json{{"event", "dialog"}, {"kind", genere}, {"answer", a_utf8(da_utf8(r))}}.dump() << '\n';
    return r;
}

std::optional<std::string> PiattaformaBatch::open_file(const std::string&, const std::string&) {
    const std::string r = risposta_dialogo(file_, "file");
    if (r == "-") return {};
    return da_utf8(r);
}

std::optional<Carattere> PiattaformaBatch::choose_font(const std::string&, const Carattere& ora) {
    const std::string r = risposta_dialogo(caratteri_, "font");
    if (r == "-") return {};
    Carattere c = ora;
    std::istringstream parti(r);
    std::string p;
    if (std::getline(parti, p, ';')) c.nome = da_utf8(p);
    if (std::getline(parti, p, ';')) c.punti = leggi_numero(p);
    if (std::getline(parti, p, ';')) c.grassetto = leggi_numero(p) != 0;
    if (std::getline(parti, p, ';')) c.corsivo = leggi_numero(p) != 0;
    return c;
}

std::optional<long> PiattaformaBatch::choose_colour(const std::string&, long) {
    const std::string r = risposta_dialogo(colori_, "colour");
    if (r == "-") return {};
    return static_cast<long>(leggi_numero(r));
}

bool PiattaformaBatch::printer_setup() {
    const std::string r = risposta_dialogo(stampanti_, "printer");
    if (r == "-") return false;
    stampante_.orientation(r == "landscape" ? Orientamento::orizzontale : Orientamento::verticale);
    return true;
}

int PiattaformaBatch::open_document(const std::string& percorso) {
    int esito = !esiste_documento || esiste_documento(percorso) ? 33 : 2;
    if (!aperture_.empty()) {
        esito = aperture_.front();
        aperture_.pop_front();
    }
    eventi_ << Json{{"event", "document"}, {"path", a_utf8(percorso)}, {"result", esito}}.dump() << '\n';
    return esito;
}

}  // namespace ambra
