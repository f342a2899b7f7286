#include "forms/moduli.h"

#include <span>

#include "archivio/archivio.h"
#include "core/filetesto.h"
#include "core/testo.h"

namespace ambra {

namespace {

using Nomi = std::vector<std::string>;

void accoda(Nomi& nomi, const Nomi& altri) {
    nomi.insert(nomi.end(), altri.begin(), altri.end());
}

// "Note stabile riga 1", "... riga 2", ...
void numerati(Nomi& nomi, std::string_view base, int quanti) {
    for (int i = 1; i <= quanti; ++i) nomi.push_back(unisci(base, std::to_string(i)));
}

// Rows 1 to 29 of kinds 1, 2 and 4: the studio, the building, the condomino.
Nomi nomi_comuni() {
    Nomi n;
    accoda(n, {"intestazione", "indirizzo sede legale", "città sede legale"_it,
               "indirizzo sede amministrativa", "città sede amministrativa"_it, "telefono", "fax",
               "indirizzo e-mail", "codice fiscale", "partita iva", "CCIAA", "tribunale ", "note riga 1",
               "note riga 2", "note riga 3", "note riga 4"});
    for (std::string& s : n) s.insert(0, "Studio: ");
    accoda(n, {"Nome stabile", "Indirizzo stabile", "Città stabile"_it, "Codice fiscale stabile"});
    numerati(n, "Note stabile riga ", 4);
    accoda(n, {"Nome condomino", "Indirizzo condomino", "Città condomino"_it, "Scala condomino",
               "Sub. condomino"});
    return n;
}

void collegati(Nomi& nomi, std::string_view base) {
    for (const char* i : {"1", "2", "3"}) nomi.push_back(unisci(base, " (condomino collegato ", i, ")"));
}

// Rows 30 to 70 of the payment notice and of the reminder, which differ in four names.
void nomi_avviso(Nomi& n, bool sollecito) {
    for (const char* dopo : {"", " - ripetizione"})
        for (const char* i : {"(1)", "(2)", "(3)"}) n.push_back(unisci("Nome condomino collegato ", i, dopo));
    accoda(n, {"Banca di appoggio", "Agenzia", "Nome del beneficiario", "Numero del c/c bancario", "IBAN",
               "Non utilizzato", "Non utilizzato", "Note associate al condominio principale"});
    accoda(n, {sollecito ? "Data del sollecito" : "Data dell'avviso", "Data della scadenza",
               "Descrizione della rata", "Importo complessivo della rata",
               "Importo della rata (condomino principale)"});
    collegati(n, "Importo della rata");
    accoda(n, {"Descrizione del conguaglio", "Importo complessivo del conguaglio",
               "Importo del conguaglio (condomino principale) "});
    collegati(n, "Importo del conguaglio");
    accoda(n, {"Somma da bonificare ", "Commissioni bancarie", "Importo complessivo"});
    numerati(n, sollecito ? "Note da riportare sul sollecito riga " : "Note da riportare sull'avviso riga ",
             5);
    accoda(n, {"Primo codice a barre ", "Secondo codice a barre ", "Dimensioni in mm del foglio utilizzato"});
    accoda(n, sollecito ? Nomi{"Numero di solleciti per foglio", "Distanza tra un sollecito e l'altro"}
                        : Nomi{"Numero di avvisi per foglio", "Distanza tra un avviso e l'altro"});
}

void nomi_ricevuta(Nomi& n) {
    accoda(n, {"Data del versamento", "Importo versato", "Causale del versamento", "Modalità di pagamento"_it,
               "Note associate al condominio principale"});
    numerati(n, "Note da riportare sulla ricevuta riga ", 5);
}

Nomi nomi_ministeriale() {
    return {"Intestazione amministratore",
            "Indirizzo amministratore",
            "Città amministratore"_it,
            "Telefono amministratore",
            "Codice fiscale amministratore",
            "Denominazione condominio",
            "Indirizzo condominio",
            "Comune condominio",
            "Provincia condominio",
            "Codice fiscale condominio",
            "Cognome fornitore",
            "Nome fornitore (2' riga)",
            "Indirizzo fornitore",
            "Comune fornitore",
            "Provincia fornitore",
            "Codice fiscale fornitore",
            "Sesso fornitore (solo persone fisiche)",
            "Data di nascita (solo persone fisiche)",
            "Luogo di nascita (solo persone fisiche)",
            "Provincia di nascita (solo persone fisiche)",
            "Soggetto non residente",
            "Stato estero (solo soggetto non res.)",
            "Sigla stato estero (solo soggetto non res.)",
            "Codice fiscale estero (solo soggetto non res.)",
            "Importo complessivo acquisti",
            "Numero foglio"};
}

// ---- the automatic positions ----

struct Posto {
    std::size_t riga;
    const char* posizione;
};
constexpr Posto kComuni[] = {{1, "006007"},  {2, "006012"},  {3, "006017"},  {6, "006022"}, {7, "031022"},
                             {25, "086026"}, {26, "086031"}, {27, "086036"}, {17, "006051"}};
constexpr Posto kAvvisi[] = {{30, "016075"}, {31, "016079"}, {32, "016083"}, {33, "016091"}, {34, "016094"},
                             {35, "016099"}, {38, "006061"}, {44, "171007"}, {45, "006125"}, {46, "006071"},
                             {47, "191071"}, {48, "141071"}, {49, "141075"}, {50, "141079"}, {51, "141083"},
                             {52, "006087"}, {53, "191087"}, {54, "141087"}, {55, "141091"}, {56, "141095"},
                             {57, "141099"}, {59, "191104"}, {60, "191114"}, {69, "002002"}, {70, "145145"}};
constexpr Posto kRicevute[] = {{30, "171007"}, {31, "186081"}, {32, "006061"}, {33, "006071"}, {35, "006096"},
                               {36, "006101"}, {37, "006106"}, {38, "006111"}, {39, "006116"}};
constexpr std::size_t kUltimaAutomatica = 95;

std::string file_del_tipo(int tipo, std::string_view nnn, const std::array<const char*, 3>& estensioni) {
    if (tipo == kMinisteriale) return "";
    return nome_file(nnn, estensioni[tipo == kAvviso ? 0 : tipo == kRicevuta ? 1 : 2]);
}

std::string tra_virgolette(std::string_view s) {
    return unisci("\"", s, "\"");
}

}  // namespace

TabellaModulo tabella_modulo(int tipo) {
    Nomi nomi;
    if (tipo == kMinisteriale) {
        nomi = nomi_ministeriale();
    } else {
        nomi = nomi_comuni();
        if (tipo == kRicevuta)
            nomi_ricevuta(nomi);
        else
            nomi_avviso(nomi, tipo == kSollecito);
    }
    TabellaModulo t;
    for (std::size_t i = 0; i < nomi.size(); ++i) t.riga[i + 1].descrizione = nomi[i];
    t.quanti = static_cast<int>(nomi.size());
    t.secondo = tipo == kAvviso || tipo == kSollecito ? 2 : 0;
    return t;
}

std::string titolo_finestra(int tipo) {
    switch (tipo) {
        case kAvviso:
            return "Impostazione modulo avviso di pagamento";
        case kRicevuta:
            return "Impostazione modulo ricevuta di pagamento";
        case kSollecito:
            return "Impostazione modulo sollecito di pagamento";
        default:
            return "Impostazione modello ministeriale - quadro AC";
    }
}

std::string titolo_coordinate(int tipo) {
    switch (tipo) {
        case kAvviso:
            return "Elenco coordinate avviso di pagamento";
        case kRicevuta:
            return "Elenco coordinate ricevuta versamento";
        case kSollecito:
            return "Elenco coordinare sollecito pagamento";
        default:
            return "Elenco coordinate modello ministeriale";
    }
}

std::string file_coordinate(int tipo, std::string_view nnn) {
    return tipo == kMinisteriale ? file_ministeriale() : file_del_tipo(tipo, nnn, {"lay", "lyr", "lys"});
}
std::string file_intestazione(int tipo, std::string_view nnn) {
    return file_del_tipo(tipo, nnn, {"lxa", "lxr", "lxs"});
}
std::string file_testi(int tipo, std::string_view nnn) {
    return file_del_tipo(tipo, nnn, {"lka", "lkr", "lks"});
}

bool carica_intestazione(Disco& disco, Errore& err, std::string_view percorso, TestoPosta& t) {
    t = {};
    LettoreTesto f(err);
    const bool aperto = f.apri(disco, percorso);
    return f.campo_testo(t.oggetto) && f.campo_testo(t.corpo) && aperto;
}

bool salva_intestazione(Disco& disco, Errore& err, std::string_view percorso, const TestoPosta& t) {
    const std::array<std::string, 2> righe = {tra_virgolette(t.oggetto), tra_virgolette(t.corpo)};
    return scrivi_righe(disco, err, percorso, righe);
}

constexpr std::size_t kRigheTesti = 500;

bool carica_testi(Disco& disco, Errore& err, std::string_view percorso, TestiLiberi& t) {
    t = {};
    LettoreTesto f(err);
    bool bene = f.apri(disco, percorso) && f.campo_testo(t.primo);
    t.riga.resize(kRigheTesti);
    for (auto& r : t.riga) {
        for (auto& s : r.linea) bene = bene && f.riga(s);
        for (auto& s : r.valore) bene = bene && f.campo_testo(s);
    }
    if (!bene) t = {};
    return bene;
}

bool salva_testi(Disco& disco, Errore& err, std::string_view percorso, const TestiLiberi& t) {
    std::vector<std::string> righe = {tra_virgolette(t.primo)};
    for (const auto& r : t.riga) {
        righe.insert(righe.end(), r.linea.begin(), r.linea.end());
        std::string valori;
        for (const auto& v : r.valore) valori.append(valori.empty() ? "" : ",").append(tra_virgolette(v));
        righe.push_back(valori);
    }
    return scrivi_righe(disco, err, percorso, righe);
}

void azzera_coordinate(int tipo, Layout& layout) {
    const bool ministeriale = tipo == kMinisteriale;
    for (std::size_t i = 1; i <= kCampiLayout; ++i)
        if (!ministeriale || i < 97 || i > 99) layout.campo[i] = {};
    if (!ministeriale) layout.campo[98].posizione = layout.campo[99].posizione = "000";
}

void coordinate_automatiche(int tipo, Layout& layout) {
    if (tipo == kMinisteriale) return;
    for (std::size_t i = 1; i <= kUltimaAutomatica; ++i) {
        CampoLayout c;
        c.colore = layout.campo[i].colore;
        layout.campo[i] = c;
    }
    const auto metti = [&layout](std::span<const Posto> posti) {
        for (const Posto& p : posti) layout.campo[p.riga].posizione = p.posizione;
    };
    metti(kComuni);
    if (tipo == kRicevuta)
        metti(kRicevute);
    else
        metti(kAvvisi);
}

}  // namespace ambra
