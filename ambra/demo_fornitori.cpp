// The suppliers of the demo: firms, artisans, professionals, a few from abroad, some deleted.
#include <algorithm>
#include <cctype>

#include "ambra/demo.h"
#include "archivio/archivio.h"
#include "core/testo.h"
#include "records/nome.h"
#include "records/totali.h"

namespace ambra::demo {

namespace {

constexpr const char* kCognomi[] = {
    "Rossi",    "Russo",   "Ferrari",  "Esposito", "Bianchi", "Romano",  "Colombo",  "Ricci",    "Marino",
    "Greco",    "Bruno",   "Gallo",    "Conti",    "De Luca", "Mancini", "Costa",    "Giordano", "Rizzo",
    "Lombardi", "Moretti", "Barbieri", "Fontana",  "Santoro", "Mariani", "Rinaldi",  "Caruso",   "Ferrara",
    "Galli",    "Martini", "Leone",    "Longo",    "Gentile", "Vitale",  "Lombardo", "Coppola",  "Parisi",
    "Cattaneo", "D'Amico", "Però",     "Bellomì",  "Nicolò",  "Pagnì"};
constexpr const char* kNomi[] = {"Mario",  "Luigi",  "Anna",   "Giulia",  "Niccolò", "Paolo",
                                 "Chiara", "Davide", "Teresa", "Roberto", "Sofia",   "Enrico"};
constexpr const char* kMestieri[] = {"Idraulica %s Srl",
                                     "Elettroimpianti %s Snc",
                                     "Ascensori %s S.p.A.",
                                     "Impresa di pulizie %s",
                                     "Giardinaggio %s",
                                     "Serramenti %s & Figli",
                                     "Spurghi %s Srl",
                                     "Assicurazioni %s",
                                     "Edilizia %s S.a.s.",
                                     "Caldaie e clima %s",
                                     "Vetreria %s",
                                     "Antenne %s",
                                     "Tinteggiature %s",
                                     "Ferramenta %s",
                                     "Disinfestazioni %s Srl",
                                     "Fabbro %s",
                                     "Cooperativa %s Servizi",
                                     "Manutenzioni %s",
                                     "Autospurgo %s",
                                     "Lattoneria %s"};
constexpr const char* kStudi[] = {"Avv. %s %s", "Ing. %s %s", "Geom. %s %s", "Arch. %s %s", "Dott. %s %s"};
constexpr const char* kVie[] = {"Via Garibaldi",  "Via Roma",          "Corso Italia", "Viale Libertà",
                                "Via Monte Nero", "Piazza della Pace", "Via Verdi",    "Via Cà Bianca",
                                "Largo Europa",   "Via San Nicolò",    "Via Torino",   "Via dei Mille"};
struct Luogo {
    const char *citta, *cap, *prov;
};
constexpr Luogo kLuoghi[] = {
    {"Milano", "20121", "MI"}, {"Monza", "20900", "MB"},  {"Bergamo", "24121", "BG"},
    {"Rho", "20017", "MI"},    {"Como", "22100", "CO"},   {"Lodi", "26900", "LO"},
    {"Forlì", "47121", "FC"},  {"Roma", "00184", "RM"},   {"Cantù", "22063", "CO"},
    {"Rovigo", "45100", "RO"}, {"Torino", "10121", "TO"}, {"Sesto San Giovanni", "20099", "MI"}};
// Large suppliers of water, gas and energy, left out of the yearly lists.
constexpr const char* kUtenze[] = {"ACQUEDOTTO CIVICO", "ENERGIA PADANA S.P.A.", "GAS DEL NAVIGLIO SRL",
                                   "TELERISCALDAMENTO NORD"};

std::string con(const char* modello, const std::string& a, const std::string& b = "") {
    std::string r = modello;
    for (const std::string* s : {&a, &b})
        if (const auto p = r.find("%s"); p != std::string::npos) r.replace(p, 2, *s);
    return r;
}

std::string partita_iva(Caso& caso) {
    std::string s = con_zeri(caso.fra(100000, 9999999), 7) + con_zeri(caso.fra(1, 109), 3);
    int somma = 0;
    for (std::size_t i = 0; i < 10; ++i) {
        const int c = s[i] - '0';
        somma += i % 2 == 0 ? c : (c * 2 > 9 ? c * 2 - 9 : c * 2);
    }
    return s + static_cast<char>('0' + (10 - somma % 10) % 10);
}

// Three letters of a name: consonants first, then vowels, then X.
std::string tre_lettere(const std::string& nome) {
    std::string consonanti, vocali;
    for (char c : nome) {
        if (!std::isalpha(static_cast<unsigned char>(c)) || static_cast<unsigned char>(c) > 127) continue;
        const char g = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        (std::string("AEIOU").find(g) == std::string::npos ? consonanti : vocali) += g;
    }
    return (consonanti + vocali + "XXX").substr(0, 3);
}

char carattere_controllo(const std::string& s) {
    static constexpr int kDispari[36] = {1,  0, 5, 7,  9,  13, 15, 17, 19, 21, 1,  0,
                                         5,  7, 9, 13, 15, 17, 19, 21, 2,  4,  18, 20,
                                         11, 3, 6, 8,  12, 14, 16, 10, 22, 25, 24, 23};
    int somma = 0;
    for (std::size_t i = 0; i < 15; ++i) {
        const int v = s[i] <= '9' ? s[i] - '0' : s[i] - 'A' + 10;
        somma += i % 2 == 0 ? kDispari[v] : (v >= 10 ? v - 10 : v);
    }
    return static_cast<char>('A' + somma % 26);
}

std::string codice_fiscale(Caso& caso, const std::string& cognome, const std::string& nome,
                           const Data& nascita, bool donna) {
    std::string s = tre_lettere(cognome) + tre_lettere(nome) + con_zeri(nascita.anno % 100, 2);
    s += "ABCDEHLMPRST"[nascita.mese - 1];
    s += con_zeri(nascita.giorno + (donna ? 40 : 0), 2);
    s += "F" + con_zeri(caso.fra(100, 999), 3);
    return s + carattere_controllo(s);
}

void indirizzo(RecFornitore& f, Caso& caso) {
    const Luogo& l = caso.uno(kLuoghi);
    f.indir = da_utf8(std::string(caso.uno(kVie)) + ", " + std::to_string(caso.fra(1, 180)));
    f.citta = da_utf8(l.citta);
    f.cap = l.cap;
    f.prov = l.prov;
}

void persona(RecFornitore& f, Caso& caso) {
    const std::string cognome = caso.uno(kCognomi), nome = caso.uno(kNomi);
    const bool donna = nome.back() == 'a';
    const Data nascita = {caso.fra(1, 28), caso.fra(1, 12), caso.fra(1950, 1990)};
    f.inte1 = da_utf8(con(caso.uno(kStudi), cognome, nome));
    f.fisica = 1;
    f.sesso = donna ? "F" : "M";
    f.luogonas = da_utf8(caso.uno(kLuoghi).citta);
    f.provnas = "MI";
    f.datanas = testo_data(nascita);
    f.codfis = codice_fiscale(caso, cognome, nome, nascita, donna);
    f.piva = partita_iva(caso);
}

void straniero(RecFornitore& f, Caso& caso) {
    f.inte1 = da_utf8(con("%s Aufzüge GmbH", caso.uno(kCognomi)));
    f.nonres = 1;
    f.statoest = "Germania";
    f.sigla = "DE";
    f.codest = "DE" + std::to_string(caso.fra(100000000, 999999999));
    f.codfis = f.codest.rifilato();
}

RecFornitore bianco() {
    RecFornitore f{};
    for (auto* t : {&f.inte1, &f.inte2, &f.indir, &f.citta, &f.ainte1, &f.ainte2, &f.aindir, &f.acitta,
                    &f.luogonas, &f.statoest})
        *t = "";
    f.cap = f.acap = f.sigla = "";
    for (auto& t : f.tel) t = "";
    f.prov = f.provnas = f.aprov = "";
    f.piva = "";
    f.codfis = "";
    f.email1 = "";
    f.email2 = "";
    f.datanas = "";
    f.codest = "";
    f.sesso = "M";
    return f;
}

void contatti(RecFornitore& f, Caso& caso, std::size_t n) {
    f.tel[0] = "02 " + std::to_string(caso.fra(1000000, 9999999));
    if (caso.su(40)) f.tel[1] = "33" + std::to_string(caso.fra(10000000, 99999999));
    if (caso.su(60)) {
        std::string mail = "amministrazione" + std::to_string(n + 1) + "@fornitore.example";
        if (caso.su(15)) mail = "fatturazione.elettronica.clienti" + mail;
        f.email1 = sinistra(mail, 38);
        f.email2 = medio(mail, 39, 12);
    }
    if (caso.su(20)) {
        f.ainte1 = f.inte1.testo();
        f.aindir = da_utf8(std::string(caso.uno(kVie)) + ", " + std::to_string(caso.fra(1, 90)));
        f.acitta = "Milano";
        f.acap = "20154";
        f.aprov = "MI";
    }
}

}  // namespace

void fai_fornitori(Cantiere& c, Caso& caso) {
    for (int n = 0; n < c.stabile.fornitori; ++n) {
        RecFornitore f = bianco();
        if (n < static_cast<int>(std::size(kUtenze))) {
            f.inte1 = kUtenze[n];
            f.nofelenco = 1;
        } else if (n % 17 == 5) {
            straniero(f, caso);
        } else if (caso.su(30)) {
            persona(f, caso);
        } else {
            f.inte1 = da_utf8(con(caso.uno(kMestieri), caso.uno(kCognomi)));
            if (caso.su(25)) f.inte2 = da_utf8(con("di %s %s e C.", caso.uno(kCognomi), caso.uno(kNomi)));
        }
        if (f.piva.rifilato().empty() && f.nonres == 0) f.piva = partita_iva(caso);
        if (f.codfis.rifilato().empty()) f.codfis = f.piva.rifilato();
        indirizzo(f, caso);
        contatti(f, caso, static_cast<std::size_t>(n));
        f.formapag = caso.fra(0, 13);
        f.conto = caso.su(85)
                      ? c.conti[static_cast<std::size_t>(caso.fra(0, static_cast<int>(c.conti.size()) - 1))]
                      : 0;
        c.fornitori.push_back(f);
    }
    // Some were deleted since; the mark 255 goes in front of the name.
    for (std::size_t n = 11; n < c.fornitori.size(); n += 13) {
        RecFornitore& f = c.fornitori[n];
        f.cancellata = 1;
        f.inte1 = "\xFF" + f.inte1.testo();
    }
}

bool scrivi_fornitori(const Cantiere& c) {
    std::vector<RecNome> indice;
    for (std::size_t n = 0; n < c.fornitori.size(); ++n) {
        RecNome r{};
        r.nome = maiuscolo(c.fornitori[n].inte1.testo());
        r.numero = static_cast<int>(n) + 1;
        indice.push_back(r);
    }
    std::stable_sort(indice.begin(), indice.end(),
                     [](const RecNome& a, const RecNome& b) { return a.nome.grezzo() < b.nome.grezzo(); });
    std::vector<RecTotali> totali(5);
    totali[0].parola[0] = static_cast<int>(c.fornitori.size());
    totali[1].parola[0] = static_cast<int>(c.fatture.size());
    const std::string nnn = con_zeri(c.stabile.numero, 3);
    return c.disco.scrivi_tutto(nome_file(nnn, "for"), byte_di(c.fornitori)) == 0 &&
           c.disco.scrivi_tutto(nome_file(nnn, "srf"), byte_di(indice)) == 0 &&
           c.disco.scrivi_tutto(nome_file(nnn, "tfr"), byte_di(totali)) == 0;
}

}  // namespace ambra::demo
