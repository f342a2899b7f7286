#include "tests/storia/dischetto.h"

#include <sstream>
#include <vector>

#include "core/testo.h"
#include "tests/storia/campi_record.h"

namespace fs = std::filesystem;

namespace ambra::storia {

Dischetto::Dischetto(fs::path radice) : radice_(std::move(radice)) {
    fs::create_directories(radice_ / "lumdir" / "lumora");
}

fs::path Dischetto::percorso(const std::string& nome) const {
    const fs::path cartella = radice_ / "lumdir" / "lumora";
    if (nome.starts_with("/")) return radice_ / nome.substr(1);
    if (maiuscolo(nome).starts_with("LUM") || nome.starts_with("vex")) return cartella / nome;
    if (nome.size() > 4 && nome[3] == '.') return cartella / ("lum" + nome);
    return cartella / unisci("lum", destra("000" + stabile, 3), ".", nome);
}

const FormatoRecord& Dischetto::formato(const std::string& nome) {
    const FormatoRecord* f = formato_di_file(nome);
    if (!f && nome.size() > 4 && nome[3] == '.') f = formato_di_file(nome.substr(4));
    if (!f) male("no record format for " + nome);
    return *f;
}

void Dischetto::record(const std::string& resto) const {
    const std::string nome = parola(resto, 0);
    const FormatoRecord& form = formato(nome);
    const auto quali = intervallo(parola(resto, 1));
    const fs::path p = percorso(nome);
    std::string dati = fs::exists(p) ? leggi_file(p) : "";
    for (long n = quali.da; n <= quali.a; ++n) {
        const std::size_t fine = static_cast<std::size_t>(n) * form.lunghezza;
        if (dati.size() < fine) {
            dati.resize(fine, '\0');
            svuota(form, dati.data() + fine - form.lunghezza);
        }
        for (const auto& x : assegnazioni(dopo(resto, 2), n))
            assegna(form, dati.data() + fine - form.lunghezza, x);
    }
    scrivi_file(p, dati);
}

void Dischetto::layout(const std::string& resto) const {
    std::string tutto;
    for (int campo = 1; campo <= 100; ++campo) {
        std::string posizione = "000000";
        for (const auto& x : assegnazioni(dopo(resto, 1), campo))
            if (std::stoi(x.campo) == campo) posizione = x.valore;
        tutto += posizione + "\r\n9\r\nArial\r\n0\r\n0\r\n0\r\n";
    }
    scrivi_file(percorso(parola(resto, 0)), tutto);
}

void Dischetto::etichette(const std::string& resto) const {
    std::vector<std::string> righe;
    for (int campo = 1; campo <= 27; ++campo)
        for (const char* s : {"", "", "Arial", "9", "0", "0", "&h000000"}) righe.emplace_back(s);
    for (const char* s : {"", "", "", "", "", "", ""}) righe.emplace_back(s);
    for (const char* s : {"3", "8", "", "", "", "", "", "210", "297", "0", "0", "0", "0", ""})
        righe.emplace_back(s);
    for (const auto& x : assegnazioni(dopo(resto, 1), 0)) {
        const auto riga = std::stoul(x.campo), valore = std::stoul(x.campo.substr(x.campo.find('.') + 1));
        righe.at((riga - 1) * 7 + valore - 1) = x.valore;
    }
    std::string tutto;
    for (const auto& r : righe) tutto += r + "\r\n";
    scrivi_file(percorso(parola(resto, 0)), tutto);
}

void Dischetto::hex(const std::string& resto) const {
    const fs::path p = percorso(parola(resto, 0));
    const std::size_t dove = std::stoul(parola(resto, 1));
    std::string dati = fs::exists(p) ? leggi_file(p) : "";
    const std::string b = da_hex(dopo(resto, 2));
    if (dati.size() < dove + b.size()) dati.resize(dove + b.size(), '\0');
    dati.replace(dove, b.size(), b);
    scrivi_file(p, dati);
}

void Dischetto::voci_contabili(const std::string& righe) const {
    std::vector<std::string> tutte(654);
    std::istringstream in(da_utf8(righe));
    for (std::string r; std::getline(in, r);) {
        const auto voce = static_cast<std::size_t>(std::stoi(parola(r, 0)) - 1);
        tutte.at(voce * 15) = dopo(r, 2);
        tutte.at(voce * 15 + 2) = parola(r, 1) == "-" ? "" : parola(r, 1);
    }
    std::string crlf;
    for (const auto& r : tutte) crlf += r + "\r\n";
    scrivi_file(percorso("tab"), crlf);
}

void Dischetto::fotografa() {
    prima_.clear();
    for (const auto& e : fs::recursive_directory_iterator(radice_))
        if (e.is_regular_file()) prima_[fs::relative(e.path(), radice_).string()] = leggi_file(e.path());
}

}  // namespace ambra::storia
