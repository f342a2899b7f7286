#include "forms/etichette.h"

#include <algorithm>
#include <charconv>

#include "core/filetesto.h"
#include "core/impostazioni.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "records/layout.h"

namespace ambra {

namespace {

struct Posto {
    int riga;
    const char* x;
    const char* y;
};

void colloca(Etic& e, std::initializer_list<Posto> posti) {
    for (const Posto& p : posti) {
        e(p.riga, Etic::kX) = p.x;
        e(p.riga, Etic::kY) = p.y;
    }
}

std::vector<std::string> con_campi_liberi(std::vector<std::string> v) {
    for (const char* n : {"1", "2", "3", "4", "5"}) v.push_back(unisci("Campo libero riga ", n));
    return v;
}

std::vector<std::string> campi_condomini() {
    return con_campi_liberi({"Nome condomino", "Indirizzo condomino", "Città condomino"_it, "Scala condomino",
                             "Piano condomino", "Sub. condomino", "Note varie condomino",
                             "Dicitura Egr.Sig / Spett.", "Nome stabile", "Indirizzo stabile",
                             "Città stabile"_it, "Nome amministratore"});
}
std::vector<std::string> campi_studio() {
    return con_campi_liberi({"Intestazione studio", "Indirizzo sede legale", "Città sede legale"_it,
                             "Indirizzo sede amministrativa", "Città sede amministrativa"_it, "Telefono",
                             "Fax", "E-Mail", "Note riga 1", "Note riga 2", "Note riga 3", "Note riga 4"});
}
std::vector<std::string> campi_fornitori() {
    return con_campi_liberi(
        {"Ragione sociale riga 1", "Ragione sociale riga 2", "Indirizzo", "CAP", "Città"_it});
}

}  // namespace

double Etic::numero(int riga, int valore) const {
    return leggi_numero((*this)(riga, valore));
}

Carattere Etic::carattere(int riga) const {
    const Etic& e = *this;
    return {e(riga, kNome), std::max(numero(riga, kPunti), 0.0), numero(riga, kGrassetto) != 0,
            numero(riga, kCorsivo) != 0};
}

void Etic::carattere(int riga, const Carattere& c) {
    Etic& e = *this;
    e(riga, kNome) = c.nome;
    e(riga, kPunti) = testo_numero(c.punti);
    e(riga, kGrassetto) = c.grassetto ? "1" : "0";
    e(riga, kCorsivo) = c.corsivo ? "1" : "0";
}

long Etic::colore(int riga) const {
    return leggi_colore((*this)(riga, kColore));
}

void Etic::colore(int riga, long rgb) {
    (*this)(riga, kColore) = testo_colore(rgb);
}

std::string testo_colore(long rgb) {
    constexpr char kCifre[] = "0123456789ABCDEF";
    std::string r = "&h";
    for (int i = 20; i >= 0; i -= 4) r += kCifre[(rgb >> i) & 15];
    return r;
}

long leggi_colore(std::string_view s) {
    s = rifila(s);
    long v = 0;
    if (s.size() > 2 && s[0] == '&' && (s[1] == 'h' || s[1] == 'H')) {
        std::from_chars(s.data() + 2, s.data() + s.size(), v, 16);
    } else {
        v = leggi_rgb(s);
    }
    return v & 0xFFFFFF;
}

std::string file_etichette(int tipo) {
    static constexpr const char* kFile[] = {"lumeria.eti", "lumeria.eta", "lumeria.etf"};
    return tipo < 1 || tipo > 3 ? "" : kCartella + kFile[tipo - 1];
}

const std::vector<std::string>& campi_etichetta(int tipo) {
    static const std::vector<std::string> kCampi[] = {
        {}, campi_condomini(), campi_studio(), campi_fornitori()};
    return kCampi[tipo >= 1 && tipo <= 3 ? tipo : 0];
}

bool leggi_etichette(Disco& disco, Errore& err, int tipo, Etic& e) {
    err.azzera();
    LettoreTesto f(err);
    f.apri(disco, file_etichette(tipo));
    for (int riga = 1; riga <= Etic::kRighe; ++riga)
        for (int valore = 1; valore <= Etic::kValori; ++valore) f.riga(e(riga, valore));
    return !err;
}

bool salva_etichette(Disco& disco, Errore& err, int tipo, const Etic& e) {
    std::vector<std::string> righe;
    for (int riga = 1; riga <= Etic::kRighe; ++riga)
        for (int valore = 1; valore <= Etic::kValori; ++valore) righe.push_back(e(riga, valore));
    return scrivi_righe(disco, err, file_etichette(tipo), righe);
}

Etic etichette_in_bianco() {
    Etic e;
    for (int riga = 1; riga <= Etic::kCampi; ++riga) {
        e.carattere(riga, {"Arial", 9, false, false});
        e(riga, Etic::kColore) = "&h000000";
    }
    e(Etic::kDisposizione, 1) = "3";
    e(Etic::kDisposizione, 2) = "8";
    e(Etic::kFoglio, 1) = "210";
    e(Etic::kFoglio, 2) = "297";
    for (int bordo = 3; bordo <= 6; ++bordo) e(Etic::kFoglio, bordo) = "0";
    return e;
}

Etic etichette_predefinite(int tipo) {
    Etic e = etichette_in_bianco();
    if (tipo == 1 || tipo == 2)
        colloca(e, {{1, "5", "10"}, {2, "5", "15"}, {3, "5", "20"}, {4, "5", "25"}, {5, "15", "25"}});
    // Rows 6 and 13 fall on a free field and past the list; a first opening has always shown them so.
    if (tipo == 3) colloca(e, {{1, "5", "10"}, {2, "5", "15"}, {6, "15", "20"}, {13, "5", "20"}});
    if (tipo == 4) {
        colloca(e, {{1, "5", "5"}, {2, "5", "9"}, {4, "5", "24"}, {7, "15", "13"}, {14, "5", "13"}});
        e(4, Etic::kPunti) = "8";
    }
    if (tipo == 3 || tipo == 4) e(Etic::kTestiFissi, 1) = "Euro";
    return e;
}

}  // namespace ambra
