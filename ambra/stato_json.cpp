#include "ambra/stato_json.h"

#include "core/testo.h"

namespace ambra {

namespace {

Json json_griglia(const Griglia& g, Json j) {
    // Every key is a new one: looking for it among those before would make a long list wait.
    const auto colora = [](Json& colori, int r, int c, long rgb) {
        colori.get_ref<Json::object_t&>().emplace_back(std::to_string(r) + "," + std::to_string(c), rgb);
    };
    static constexpr const char* kVersi[] = {"left", "right", "centre"};
    Json colonne = Json::array(), righe = Json::array(), colori = Json::object();
    for (int c = 0; c < g.quante_colonne(); ++c) {
        const Colonna& col = g.colonna(c);
        colonne.push_back({{"heading", a_utf8(col.titolo)},
                           {"width", col.larghezza},
                           {"align", kVersi[static_cast<int>(col.verso)]}});
    }
    for (int r = 1; r < g.righe(); ++r) {
        Json riga = Json::array();
        for (int c = 0; c < g.quante_colonne(); ++c) {
            riga.push_back(a_utf8(g.vista(r, c)));
            if (const long rgb = g.colore(r, c); rgb >= 0) colora(colori, r, c, rgb);
        }
        righe.push_back(std::move(riga));
    }
    j["columns"] = std::move(colonne);
    j["rows"] = std::move(righe);
    j["colours"] = std::move(colori);
    j["top"] = g.prima_visibile();
    return j;
}

Json json_operazione(const OperazioneStampa& o) {
    using T = OperazioneStampa::Tipo;
    const char* unita = o.unita == Scala::twip ? "twip" : "mm";
    switch (o.tipo) {
        case T::testo:
            return {{"op", "text"},
                    {"x", o.x1},
                    {"y", o.y1},
                    {"text", a_utf8(o.testo)},
                    {"font", a_utf8(o.font.nome)},
                    {"size", o.font.punti},
                    {"bold", o.font.grassetto},
                    {"italic", o.font.corsivo},
                    {"colour", o.colore},
                    {"unit", unita}};
        case T::linea:
            return {{"op", "line"}, {"x1", o.x1},         {"y1", o.y1},       {"x2", o.x2},
                    {"y2", o.y2},   {"colour", o.colore}, {"style", o.stile}, {"unit", unita}};
        case T::riquadro:
        case T::pieno:
            return {{"op", o.tipo == T::pieno ? "fill" : "box"},
                    {"x1", o.x1},
                    {"y1", o.y1},
                    {"x2", o.x2},
                    {"y2", o.y2},
                    {"colour", o.colore},
                    {"unit", unita}};
        case T::testo_ricco:
            return {{"op", "richtext"}, {"text", a_utf8(o.testo)}, {"unit", unita}};
    }
    return {};
}

}  // namespace

Json json_controllo(const Controllo& c) {
    Json j = {{"kind", nome_genere(c.genere())}, {"visible", c.visible()}, {"enabled", c.enabled()}};
    switch (c.genere()) {
        case Genere::text:
        case Genere::date:
            j["text"] = a_utf8(static_cast<const CampoTesto&>(c).testo());
            break;
        case Genere::label:
        case Genere::button:
            j["caption"] = a_utf8(c.caption());
            break;
        case Genere::check:
            j["caption"] = a_utf8(c.caption());
            j["checked"] = static_cast<const Casella&>(c).spuntata();
            break;
        case Genere::option:
            j["caption"] = a_utf8(c.caption());
            j["checked"] = static_cast<const Opzione&>(c).scelta();
            break;
        case Genere::list: {
            const auto& l = static_cast<const Lista&>(c);
            j["items"] = Json::array();
            for (const auto& v : l.voci()) j["items"].push_back(a_utf8(v));
            j["selected"] = l.scelta();
            break;
        }
        case Genere::scroll: {
            const auto& s = static_cast<const Scorrimento&>(c);
            j["min"] = s.minimo();
            j["max"] = s.massimo();
            j["value"] = s.valore();
            break;
        }
        case Genere::progress: {
            const auto& p = static_cast<const Progresso&>(c);
            j["min"] = p.minimo();
            j["max"] = p.massimo();
            j["value"] = p.valore();
            break;
        }
        case Genere::grid:
            return json_griglia(static_cast<const Griglia&>(c), std::move(j));
    }
    return j;
}

Json json_schermo(const Schermo& s) {
    Json j = {{"event", "show"},
              {"screen", s.nome()},
              {"caption", a_utf8(s.caption())},
              {"visible", s.visible()},
              {"focus", s.fuoco() ? s.fuoco()->nome() : ""}};
    Json controlli = Json::object();
    for (const Controllo* c : s.controlli()) controlli[c->nome()] = json_controllo(*c);
    j["controls"] = std::move(controlli);
    return j;
}

Json json_pagina(const PaginaStampa& p) {
    Json ops = Json::array();
    for (const auto& o : p.operazioni) ops.push_back(json_operazione(o));
    return {{"width", p.larghezza}, {"height", p.altezza}, {"ops", std::move(ops)}};
}

}  // namespace ambra
