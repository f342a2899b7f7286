#include "ambra/fatture_json.h"

#include "ambra/stato_json.h"
#include "core/testo.h"
#include "fatturapa/testo_xml.h"

namespace ambra {

namespace {

// "Via Garibaldi, 12".
std::string indirizzo(const SoggettoLetto& s) {
    return s.indirizzo + (s.indirizzo.empty() || s.civico.empty() ? "" : ", ") + s.civico;
}

Json fornitore(const SoggettoLetto& s) {
    const bool italiano = s.paese_iva.empty() || s.paese_iva == "IT";
    return {{"nome", s.chiamato()},
            {"partita_iva", italiano ? s.codice_iva : ""},
            {"estero", italiano ? "" : s.paese_iva + s.codice_iva},
            {"codice_fiscale", s.codice_fiscale},
            {"regime", s.regime},
            {"persona_fisica", s.denominazione.empty() && !s.chiamato().empty()},
            {"indirizzo", indirizzo(s)},
            {"cap", s.cap},
            {"citta", s.comune},
            {"provincia", s.provincia}};
}

Json forse(const std::optional<Decimale>& x) {
    return x ? Json(x->testo()) : Json();
}

Json iva(const Analisi& a) {
    Json j = Json::object();
    for (const SommaAliquota& s : a.iva)
        j[s.aliquota.testo_breve()] = {{"imponibile", s.imponibile.testo()}, {"imposta", s.imposta.testo()}};
    return j;
}

Json esenti(const Analisi& a) {
    Json j = Json::object();
    for (const SommaNatura& s : a.esenti) j[s.natura] = s.importo.testo();
    return j;
}

Json rate(const std::vector<Rata>& tutte) {
    Json j = Json::array();
    for (const Rata& r : tutte)
        j.push_back(Json::array({r.data.empty() ? Json() : Json(r.data), r.importo.testo()}));
    return j;
}

Json allegati(const FatturaLetta& f, bool solo_pdf) {
    Json j = Json::array();
    for (const AllegatoLetto& x : f.allegati)
        if (!solo_pdf || x.pdf) j.push_back(x.nome);
    return j;
}

}  // namespace

std::string riga_json(const FatturaLetta& f, const Analisi& a) {
    return Json{
        {"file", f.file},
        {"fornitore", fornitore(f.fornitore)},
        {"cliente", f.cliente.codice_fiscale.empty() ? f.cliente.codice_iva : f.cliente.codice_fiscale},
        {"numero", a.numero},
        {"numero_registrato", a.numero_registrato},
        {"data", a.data},
        {"tipo_documento", f.tipo},
        {"registra_come", a.nota_credito ? "nota credito" : "fattura"},
        {"iva", iva(a)},
        {"esenti", esenti(a)},
        {"arrotondamento", a.arrotondamento.testo()},
        {"totale", a.totale.testo()},
        {"totale_dichiarato", forse(a.totale_dichiarato)},
        {"ritenuta", a.ritenuta.testo()},
        {"base_ritenuta", forse(a.base_ritenuta)},
        {"contributi", a.contributi.testo()},
        {"netto", a.netto.testo()},
        {"rate", rate(a.rate)},
        {"rate_nel_file", rate(a.nel_file)},
        {"rate_da", nome(a.rate_da)},
        {"allegati", allegati(f, false)},
        {"pdf", allegati(f, true)},
        {"avvisi", a.avvisi},
        {"voce", f.voce},
        {"corpo", std::to_string(f.corpo) + "/" + std::to_string(f.corpi)}}
        .dump();
}

std::string riga_json(const FatturaRifiutata& r) {
    return Json{{"file", r.file}, {"rifiutata", (r.voce.empty() ? "" : r.voce + ": ") + r.motivo}}.dump();
}

}  // namespace ambra
