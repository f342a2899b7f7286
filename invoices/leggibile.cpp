#include "invoices/leggibile.h"

#include <algorithm>

#include "core/date.h"
#include "core/decimale.h"
#include "core/latino.h"
#include "core/testo.h"
#include "screen/programma.h"
#include "screen/stampa.h"

namespace ambra {

namespace {

constexpr std::size_t kCelle = 5;

std::string data(const std::string& iso) {
    const auto d = data_iso(iso);
    return d ? testo_data(*d) : vicino(iso);
}

std::string importo(const std::string& testo) {
    const auto x = Decimale::leggi(testo);
    return x ? x->testo_italiano() : vicino(testo);
}

std::string percento(const std::string& testo, const std::string& natura = "") {
    const auto x = Decimale::leggi(testo);
    const std::string r = x ? x->testo_breve() + "%" : vicino(testo);
    return natura.empty() ? r : r + " " + vicino(natura);
}

// Caption and value, where there is a value.
void voce(ParteLeggibile& p, std::string caption, std::string valore) {
    if (!valore.empty()) p.righe.push_back({std::move(caption), std::move(valore)});
}

ParteLeggibile soggetto(const std::string& titolo, const SoggettoLetto& s) {
    ParteLeggibile p{titolo, {}, {}};
    voce(p, "Nome", vicino(s.chiamato()));
    voce(p, "Partita iva", vicino(s.codice_iva.empty() ? "" : s.paese_iva + " " + s.codice_iva));
    voce(p, "Codice fiscale", vicino(s.codice_fiscale));
    voce(p, "Indirizzo", vicino(s.indirizzo + (s.civico.empty() ? "" : ", " + s.civico)));
    voce(p, "Comune", std::string(rifila(vicino(s.cap + " " + s.comune + " " + s.provincia))));
    voce(p, "Telefono", vicino(s.telefono));
    voce(p, "E mail", vicino(s.email));
    voce(p, "Regime fiscale", vicino(s.regime));
    return p;
}

ParteLeggibile testata(const FatturaLetta& f) {
    ParteLeggibile p{"Documento", {}, {}};
    voce(p, "Tipo", vicino(f.tipo));
    voce(p, "Numero", vicino(f.numero));
    voce(p, "Data", data(f.data));
    voce(p, "Divisa", vicino(f.divisa));
    voce(p, "Totale", importo(f.totale));
    voce(p, "Arrotondamento", importo(f.arrotondamento));
    voce(p, "Bollo", f.bollo ? "assolto " + importo(f.importo_bollo) : "");
    for (const RitenutaLetta& r : f.ritenute)
        voce(p, "Ritenuta " + vicino(r.tipo), importo(r.importo) + " (" + percento(r.aliquota) + ")");
    for (const CassaLetta& c : f.casse)
        voce(p, "Cassa " + vicino(c.tipo), importo(c.importo) + (c.ritenuta ? " soggetta a ritenuta" : ""));
    for (const std::string& c : f.causali) voce(p, "Causale", vicino(c));
    voce(p, "Firma", f.firma_non_verificata ? "firma non verificata" : "");
    return p;
}

ParteLeggibile righe(const FatturaLetta& f) {
    ParteLeggibile p{"Righe", {"Descrizione", "Quantità"_it, "Prezzo", "Iva", "Totale"}, {}};
    for (const RigaLetta& r : f.righe)
        p.righe.push_back({vicino(r.descrizione) + (r.ritenuta ? " (ritenuta)" : ""),
                           vicino(r.quantita + (r.unita_misura.empty() ? "" : " " + r.unita_misura)),
                           importo(r.prezzo), percento(r.aliquota, r.natura), importo(r.totale)});
    return p;
}

ParteLeggibile riepilogo(const FatturaLetta& f) {
    ParteLeggibile p{"Riepilogo", {"Iva", "Imponibile", "Imposta", "Esigibilità"_it, "Norma"}, {}};
    for (const RiepilogoLetto& r : f.riepiloghi)
        p.righe.push_back({percento(r.aliquota, r.natura), importo(r.imponibile), importo(r.imposta),
                           vicino(r.esigibilita), vicino(r.norma)});
    return p;
}

ParteLeggibile pagamenti(const FatturaLetta& f) {
    ParteLeggibile p{"Pagamenti", {"Scadenza", "Importo", "Modalità"_it, "Iban", "Istituto"}, {}};
    for (const PagamentoLetto& r : f.pagamenti)
        p.righe.push_back(
            {data(r.scadenza), importo(r.importo), vicino(r.modalita), vicino(r.iban), vicino(r.istituto)});
    return p;
}

ParteLeggibile allegati(const FatturaLetta& f) {
    ParteLeggibile p{"Allegati", {}, {}};
    for (const AllegatoLetto& a : f.allegati) voce(p, a.pdf ? "PDF" : "File", vicino(a.nome));
    return p;
}

}  // namespace

std::vector<ParteLeggibile> leggibile(const FatturaLetta& f) {
    std::vector<ParteLeggibile> tutte = {testata(f),
                                         soggetto("Fornitore", f.fornitore),
                                         soggetto("Cliente", f.cliente),
                                         righe(f),
                                         riepilogo(f),
                                         pagamenti(f),
                                         allegati(f)};
    std::erase_if(tutte, [](const ParteLeggibile& p) { return p.righe.empty(); });
    return tutte;
}

void stampa_leggibile(Programma& prog, const FatturaLetta& f) {
    if (!prog.chiedi("Iniziare la stampa?", "Stampa fattura elettronica")) return;
    Stampa lavoro(prog, "Fattura " + vicino(f.numero) + " di " + vicino(f.fornitore.chiamato()), kCelle,
                  {{"", 40, 0}, {"", 22, 0}, {"", 14, 0}, {"", 14, 0}, {"", 14, 0}});
    const auto stampa = [&lavoro](const std::vector<std::string>& celle) {
        for (std::size_t i = 0; i < kCelle; ++i)
            lavoro.cella(static_cast<int>(i) + 1) = i < celle.size() ? celle[i] : "";
        lavoro.riga();
    };
    for (const ParteLeggibile& p : leggibile(f)) {
        stampa({maiuscolo(p.titolo)});
        if (!p.colonne.empty()) stampa(p.colonne);
        for (const auto& r : p.righe) stampa(r);
        stampa({});
    }
    lavoro.fine();
}

}  // namespace ambra
