// The global files of the demo: studio data, currency, print table, tables, layouts, prospects.
#include "ambra/demo.h"
#include "core/filetesto.h"
#include "core/testo.h"
#include "records/prospetto.h"
#include "records/stabile.h"

namespace ambra::demo {

namespace {

bool righe(Disco& disco, const std::string& nome, std::vector<std::string> tutte) {
    Errore err;
    for (auto& r : tutte) r = da_utf8(r);
    return scrivi_righe(disco, err, kCartella + nome, tutte);
}

bool studio(Disco& disco) {
    return righe(disco, "lumora.int",
                 {"STUDIO AMMINISTRAZIONI GALLI", "Corso Buenos Aires, 42", "20124 Milano",
                  "Corso Buenos Aires, 42 - Scala B", "20124 Milano", "02 5550 1234", "02 5550 1235",
                  "studio@galli.example", "GLLMRA65C41F205X", "04567890153", "MI 1234567", "Milano",
                  "Riceve il martedì e il giovedì", "dalle 15.00 alle 18.30", "", ""});
}

bool tabella_stampa(Disco& disco) {
    std::vector<std::string> r = {"30", "950", "30", "950", "2"};
    const char* punti[6] = {"9", "14", "8", "9", "9", "9"};
    const char* grassetto[6] = {"0", "1", "0", "1", "0", "0"};
    const char* colore[6] = {"0", "8388608", "4210752", "0", "0", "8421504"};
    for (int i = 0; i < 6; ++i) r.insert(r.end(), {"4", "Arial", punti[i], grassetto[i], "0", colore[i]});
    r.insert(r.end(), {"0", "0", "0", "0", "0", "15987699"});
    return righe(disco, "lumeria.tbl", r);
}

void tabella_iva(TabellaIva& t) {
    const char* codici[8][3] = {{"22", "100", "0"},  {"10", "100", "0"}, {"4", "100", "0"},
                                {"22", "100", "20"}, {"22", "100", "4"}, {"10", "100", "4"},
                                {"5", "100", "0"},   {"0", "0", "20"}};
    const char* esenti[8] = {"Art. 15 anticipazioni", "Art. 10 esenti",         "Art. 8 non imponibili",
                             "Art. 17 inversione",    "Art. 1 c. 58 forfetari", "Art. 2 fuori campo",
                             "Art. 74 editoria",      "Contributo cassa"};
    for (std::size_t i = 0; i < 8; ++i) {
        t.codice[i + 1] = {codici[i][0], codici[i][1], codici[i][2]};
        t.esenzione[i + 1] = esenti[i];
    }
}

void tabella_pagamenti(TabellaPagamenti& t) {
    const std::pair<const char*, const char*> termini[] = {
        {"Rimessa diretta", "000000000000N000"},
        {"Bonifico 30 giorni data fattura", "001000000000N000"},
        {"Bonifico 30 giorni fine mese", "001000000000F000"},
        {"Bonifico 60 giorni data fattura", "002000000000N000"},
        {"Bonifico 60 giorni fine mese", "002000000000F000"},
        {"Ricevuta bancaria 30/60", "001002000000N000"},
        {"Ricevuta bancaria 30/60 fine mese", "001002000000F000"},
        {"Ricevuta bancaria 30/60/90 fine mese", "001002003000F000"},
        {"Rate 30/60/90/120", "001002003004N000"},
        {"60 giorni fine mese + 10", "002000000000F010"},
        {"Addebito in conto alla scadenza", "001000000000N000"},
        {"Contanti alla consegna", "000000000000N000"},
        {"Assegno a ricevimento fattura", "000000000000N000"},
        {"90 giorni fine mese", "003000000000F000"},
    };
    for (std::size_t i = 0; i < std::size(termini); ++i)
        t.termine[i + 1] = {termini[i].first, termini[i].second};
    for (std::size_t i = std::size(termini) + 1; i <= kTermini; ++i) t.termine[i] = {"", "000000000000N000"};
}

bool modello_ministeriale(Disco& disco) {
    const char* posti[26] = {"041014", "041019", "041024", "120019", "085023", "090055", "120066",
                             "041066", "041055", "000000", "090000", "041013", "115025", "041025",
                             "104025", "041001", "088013", "096013", "124013", "181013", "195001",
                             "150036", "181025", "120036", "075036", "158040"};
    std::vector<std::string> r;
    for (int i = 1; i <= 100; ++i) {
        std::string posto = i <= 26 ? posti[i - 1] : "000000";
        if (i == 11) posto = "090001";
        if (i == 97) posto = "078000";
        if (i == 98) posto = "024000";
        if (i == 99) posto = "042000";
        r.insert(r.end(), {posto, "4", "Arial", "0", "0", "0"});
    }
    return righe(disco, "lummmi.lay", r) && righe(disco, "lummmi.dxy", {"0", "0"});
}

bool etichette(Disco& disco, const char* nome,
               const std::vector<std::pair<const char*, const char*>>& posti) {
    std::vector<std::string> r;
    for (std::size_t i = 1; i <= 30; ++i) {
        if (i == 28) {
            r.insert(r.end(), {"Spett.le", "", "", "", "", "", ""});
        } else if (i == 29) {
            r.insert(r.end(), {"3", "8", "", "", "", "", ""});
        } else if (i == 30) {
            r.insert(r.end(), {"210", "297", "0", "0", "0", "0", ""});
        } else {
            const bool c = i <= posti.size();
            r.insert(r.end(), {c ? posti[i - 1].first : "", c ? posti[i - 1].second : "", "Arial", "9",
                               i == 1 ? "1" : "0", "0", "&h000000"});
        }
    }
    return righe(disco, nome, r);
}

bool prospetti(Disco& disco) {
    std::vector<RecProspetto> tutti(3);
    const char* nomi[3] = {"Certificazione compensi", "", "Certificazione compensi (lettera)"};
    const char* numeri[3] = {"001", "000", "003"};
    for (std::size_t i = 0; i < 3; ++i) {
        tutti[i].nomeprosp = nomi[i];
        tutti[i].testo2 = tutti[i].testo3 = "";
        tutti[i].numprosp = numeri[i];
    }
    const std::string rtf = modello_certificazione();
    return disco.scrivi_tutto(kCartella + "lumoral.tot", byte_di(tutti)) == 0 &&
           disco.scrivi_tutto(kCartella + "vexoral.001", rtf) == 0 &&
           disco.scrivi_tutto(kCartella + "vexoral.003", rtf) == 0;
}

template <class... T>
void in_bianco(T&... campi) {
    ((campi = ""), ...);
}

bool stabili_di(Disco& disco, const std::vector<Stabile>& stabili) {
    std::vector<RecStabile> uno;
    std::vector<RecStabile2> due;
    for (const Stabile& s : stabili) {
        RecStabile r{};
        in_bianco(r.testo4, r.testo5, r.testo6, r.testo7, r.testo8, r.testo9, r.testo10, r.testo11, r.testo12,
                  r.testo13, r.testo14, r.testo15, r.testo16, r.testo17, r.testo18, r.testo19, r.testo20);
        r.nome = da_utf8(s.nome);
        r.indirizzo = da_utf8(s.indirizzo);
        r.cittastab = da_utf8(s.citta);
        uno.push_back(r);
        RecStabile2 q{};
        in_bianco(q.testo2, q.testo3, q.testo4, q.testo5, q.testo6, q.testo7, q.testo8, q.testo9, q.testo10,
                  q.testo24);
        for (auto& t : q.dodici) t = "";
        q.codfisc = s.codfisc;
        due.push_back(q);
    }
    return disco.scrivi_tutto(kCartella + "lumora.tot", byte_di(uno)) == 0 &&
           disco.scrivi_tutto(kCartella + "lumora.tt2", byte_di(due)) == 0;
}

}  // namespace

bool scrivi_globali(Disco& disco, const std::vector<Stabile>& stabili, Cantiere& c) {
    Errore err;
    tabella_iva(c.iva);
    tabella_pagamenti(c.pagamenti);
    bool bene = studio(disco);
    bene = righe(disco, "lumeria.eur", {"1", "1936.27", "", "", "", "", "", "", "", ""}) && bene;
    bene = tabella_stampa(disco) && bene;
    bene = salva_iva(disco, err, c.iva) && salva_pagamenti(disco, err, c.pagamenti) && bene;
    bene = modello_ministeriale(disco) && bene;
    bene = etichette(disco, "lumeria.etf",
                     {{"5", "10"}, {"5", "14"}, {"5", "18"}, {"5", "24"}, {"18", "24"}, {"5", "5"}}) &&
           bene;
    bene =
        etichette(disco, "lumeria.eti", {{"5", "10"}, {"5", "15"}, {"5", "20"}, {"5", "25"}, {"15", "25"}}) &&
        bene;
    bene = etichette(disco, "lumeria.eta", {{"5", "10"}, {"5", "15"}, {"5", "20"}}) && bene;
    bene = prospetti(disco) && stabili_di(disco, stabili) && bene;
    // lumeria.gnr as the program itself makes it
    Impostazioni imp;
    caricatabelle(disco, err, imp);
    return bene;
}

std::string modello_certificazione() {
    return R"({\rtf1\ansi\ansicpg1252\deff0\deflang1040{\fonttbl{\f0\fswiss\fcharset0 Arial;}{\f1\froman\fcharset0 Times New Roman;}})"
           R"({\colortbl ;\red0\green0\blue128;})"
           "\r\n"
           R"(\paperw11906\paperh16838\margl1134\margr1134\margt1134\margb1134\viewkind4\uc1\pard\f0\fs20)"
           "\r\n"
           R"(\b $$$265$$$\b0\par $$$266$$$\par $$$267$$$\par Codice fiscale $$$268$$$\par\par)"
           "\r\n"
           R"(\pard\li5103 Spett.le\par \b $$$251$$$\b0\par $$$252$$$\par $$$253$$$\par $$$254$$$ $$$255$$$\par\pard\par)"
           "\r\n"
           R"(\pard\qc\cf1\b\fs28 CERTIFICAZIONE DEI COMPENSI N. $$$260$$$\cf0\b0\fs20\par\pard\par)"
           "\r\n"
           R"(\pard\qj Si certifica che, nel periodo d'imposta, sono stati corrisposti i compensi sotto indicati, assoggettati a ritenuta d'acconto ai sensi di legge; la ritenuta \'e8 stata regolarmente versata all'Erario.\par\par)"
           "\r\n"
           R"(\pard Partita iva: $$$256$$$\par Codice fiscale: $$$257$$$\par Nato a: $$$258$$$ il $$$259$$$\par\par)"
           "\r\n"
           R"(\trowd\trgaph70\clbrdrt\brdrs\brdrw10\clbrdrl\brdrs\brdrw10\clbrdrb\brdrs\brdrw10\clbrdrr\brdrs\brdrw10\cellx6000\clbrdrt\brdrs\brdrw10\clbrdrl\brdrs\brdrw10\clbrdrb\brdrs\brdrw10\clbrdrr\brdrs\brdrw10\cellx9600)"
           "\r\n"
           R"(\pard\intbl Totale dei documenti\cell\pard\intbl\qr $$$261$$$\cell\row)"
           "\r\n"
           R"(\pard\intbl\ql Imponibile\cell\pard\intbl\qr $$$262$$$\cell\row)"
           "\r\n"
           R"(\pard\intbl\ql Importi esenti\cell\pard\intbl\qr $$$263$$$\cell\row)"
           "\r\n"
           R"(\pard\intbl\ql\b Ritenuta d'acconto\b0\cell\pard\intbl\qr\b $$$264$$$\b0\cell\row)"
           "\r\n"
           R"(\pard\par\pard\par L'amministratore\par})"
           "\r\n";
}

}  // namespace ambra::demo
