#include "ambra/eventi.h"

#include <ostream>
#include <utility>

#include "ambra/stato_json.h"
#include "core/errori.h"
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

}  // namespace

void Eventi::inizio() {
    dove_ << Json{{"event", "start"}, {"screen", "vexoraf"}}.dump() << '\n';
}

void Eventi::fine() {
    dove_ << Json{{"event", "end"}}.dump() << '\n';
}

void Eventi::schermo(Registro::Evento e, const Schermo& s) {
    if (e == Registro::Evento::davanti) return;
    dove_ << Json{{"event", nome_evento(e)}, {"screen", s.nome()}}.dump() << '\n';
}

void Eventi::schermi(const Registro& tutti) {
    Json lista = Json::array();
    for (const Schermo* s : tutti.caricati())
        lista.push_back({{"screen", s->nome()}, {"visible", s->visible()}});
    dove_ << Json{{"event", "screens"}, {"screens", lista}}.dump() << '\n';
}

void Eventi::mostra(const Schermo& s) {
    dove_ << json_schermo(s).dump() << '\n';
}

void Eventi::mostra(const Schermo& s, const Controllo& c) {
    dove_ << Json{{"event", "show"},
                  {"screen", s.nome()},
                  {"control", c.nome()},
                  {"state", json_controllo(c)}}
                 .dump()
          << '\n';
}

void Eventi::messaggio(const std::string& titolo, const std::string& testo, Icona icona, Bottoni bottoni,
                       const std::string& risposta) {
    dove_ << Json{{"event", "message"},        {"title", a_utf8(titolo)},          {"text", a_utf8(testo)},
                  {"icon", nome_icona(icona)}, {"buttons", nome_bottoni(bottoni)}, {"answer", risposta}}
                 .dump()
          << '\n';
}

void Eventi::dialogo(const char* genere, const std::string& risposta) {
    dove_ << Json{{"event", "dialog"}, {"kind", genere}, {"answer", a_utf8(da_utf8(risposta))}}.dump()
          << '\n';
}

void Eventi::documento(const std::string& percorso, int esito) {
    dove_ << Json{{"event", "document"}, {"path", a_utf8(percorso)}, {"result", esito}}.dump() << '\n';
}

void Eventi::stampa(const LavoroStampa& lavoro, int numero) {
    // A page at a time: the whole of a long list at once takes ten times the memory of its pages.
    const bool in_piedi = lavoro.orientamento == Orientamento::verticale;
    dove_ << R"({"event":"print","job":)" << std::to_string(numero) << R"(,"orientation":")"
          << (in_piedi ? "portrait" : "landscape") << R"(","pages":[)";
    const char* prima = "";
    for (const PaginaStampa& p : lavoro.pagine) dove_ << std::exchange(prima, ",") << json_pagina(p).dump();
    dove_ << "]}\n";
}

void Eventi::nota(const std::string& testo) {
    dove_ << Json{{"event", "note"}, {"text", a_utf8(testo)}}.dump() << '\n';
}

void Eventi::guasto(const Guasto& g) {
    const std::string file = g.percorso.substr(g.percorso.find_last_of("\\/") + 1);
    dove_ << Json{{"event", "fault"},
                  {"file", a_utf8(file)},
                  {"error", g.errore},
                  {"text", a_utf8(in_parole(g.errore))}}
                 .dump()
          << '\n';
}

void Eventi::sbaglio(int riga, const std::string& testo) {
    // What stands in the script may be no UTF-8: it must not keep the error from being told.
    dove_ << Json{{"event", "error"}, {"line", riga}, {"text", testo}}.dump(-1, ' ', false,
                                                                            Json::error_handler_t::replace)
          << '\n';
}

void Eventi::svuota() {
    dove_.flush();
}

}  // namespace ambra
