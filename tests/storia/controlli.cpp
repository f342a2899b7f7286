#include "tests/storia/controlli.h"

#include <algorithm>
#include <sstream>

#include "core/testo.h"
#include "tests/storia/campi_record.h"

namespace fs = std::filesystem;

namespace ambra::storia {

namespace {

// What the file held before the last run; "" if it was not there.
std::string di_prima(const Dischetto& d, const std::string& nome) {
    const auto it = d.prima().find(fs::relative(d.percorso(nome), d.radice()).string());
    return it == d.prima().end() ? "" : it->second;
}

}  // namespace

void verifica(const Dischetto& d, const std::string& resto) {
    const std::string nome = parola(resto, 0);
    const FormatoRecord& form = Dischetto::formato(nome);
    const auto quali = intervallo(parola(resto, 1));
    const std::string dati = leggi_file(d.percorso(nome));
    for (long n = quali.da; n <= quali.a; ++n) {
        const std::size_t inizio = static_cast<std::size_t>(n - 1) * form.lunghezza;
        if (dati.size() < inizio + form.lunghezza) male("no record " + std::to_string(n) + " in " + nome);
        for (const auto& x : assegnazioni(dopo(resto, 2), n))
            pretendi(form, dati.data() + inizio, x, nome + " " + std::to_string(n));
    }
}

void intero(const Dischetto& d, const std::string& resto) {
    const std::string nome = parola(resto, 0);
    const FormatoRecord& form = Dischetto::formato(nome);
    const long n = std::stol(parola(resto, 1));
    std::string voluto(form.lunghezza, '\0');
    svuota(form, voluto.data());
    for (const auto& x : assegnazioni(dopo(resto, 2), n)) assegna(form, voluto.data(), x);
    const std::string dati = leggi_file(d.percorso(nome));
    const std::size_t inizio = static_cast<std::size_t>(n - 1) * form.lunghezza;
    for (std::size_t i = 0; i < voluto.size(); ++i)
        if (inizio + i >= dati.size() || dati[inizio + i] != voluto[i])
            male(nome + " " + std::to_string(n) + " is not as told at byte " + std::to_string(i) + ": " +
                 in_hex(dati.substr(std::min(dati.size(), inizio + i), 8)));
}

void uguale(const Dischetto& d, const std::string& resto) {
    const std::string k = fs::relative(d.percorso(resto), d.radice()).string();
    const bool cera = d.prima().contains(k), ce = fs::exists(d.radice() / k);
    if (cera != ce) male(resto + (ce ? " was made" : " is gone"));
    if (ce && d.prima().at(k) != leggi_file(d.radice() / k)) male(resto + " has changed");
}

void cambia(const Dischetto& d, const std::string& resto) {
    const std::string nome = parola(resto, 0);
    const FormatoRecord& form = Dischetto::formato(nome);
    std::string ora = leggi_file(d.percorso(nome));
    std::string prima = di_prima(d, nome);
    std::istringstream in(dopo(resto, 1));
    for (std::string p; in >> p;) {
        const auto punto = p.find('.');
        std::size_t da = static_cast<std::size_t>(std::stol(p) - 1) * form.lunghezza, n = form.lunghezza;
        if (punto != std::string::npos) {
            Assegnazione x;
            x.campo = p.substr(punto + 1, p.find('(') - punto - 1);
            if (const auto k = p.find('('); k != std::string::npos) x.indice = std::atoi(p.c_str() + k + 1);
            const CampoRecord& c = campo(form, x);
            da += posto(c, x.indice);
            n = c.lungo * static_cast<std::size_t>(x.indice < 0 ? c.quanti : 1);
        }
        for (std::string* s : {&ora, &prima}) {
            if (s->size() < da + n) s->resize(da + n, '\0');
            s->replace(da, n, n, '*');
        }
    }
    for (std::size_t i = 0; i < ora.size() || i < prima.size(); ++i)
        if (i >= ora.size() || i >= prima.size() || ora[i] != prima[i])
            male(nome + " has changed in record " + std::to_string(i / form.lunghezza + 1) + ", byte " +
                 std::to_string(i % form.lunghezza));
}

void uguali(const Dischetto& d) {
    for (const auto& [k, v] : d.prima())
        if (!fs::exists(d.radice() / k) || leggi_file(d.radice() / k) != v) male(k + " has changed");
    for (const auto& e : fs::recursive_directory_iterator(d.radice()))
        if (e.is_regular_file() && !d.prima().contains(fs::relative(e.path(), d.radice()).string()))
            male(e.path().filename().string() + " was made");
}

void lungo(const Dischetto& d, const std::string& resto) {
    const auto n = leggi_file(d.percorso(parola(resto, 0))).size();
    if (n != std::stoul(parola(resto, 1)))
        male(parola(resto, 0) + " is " + std::to_string(n) + " bytes long");
}

void testo(const Dischetto& d, const std::string& nome, const std::string& voluto) {
    const std::string ora = leggi_file(d.percorso(nome));
    if (ora != voluto) male(nome + " holds:\n" + a_utf8(ora));
}

void riga_di(const Dischetto& d, const std::string& resto) {
    std::istringstream in(leggi_file(d.percorso(parola(resto, 0))));
    std::string r;
    for (int i = std::stoi(parola(resto, 1)); i > 0; --i)
        if (!std::getline(in, r)) male(parola(resto, 0) + " has no line " + parola(resto, 1));
    if (!r.empty() && r.back() == '\r') r.pop_back();
    if (a_utf8(r) != dopo(resto, 2)) male("line " + parola(resto, 1) + " is \"" + a_utf8(r) + "\"");
}

void byte(const Dischetto& d, const std::string& resto) {
    const std::string nome = parola(resto, 0), voluto = da_hex(dopo(resto, 2));
    const std::string ora = leggi_file(d.percorso(nome)).substr(std::stoul(parola(resto, 1)), voluto.size());
    if (ora != voluto) male(nome + " holds " + in_hex(ora) + " at " + parola(resto, 1));
}

void manca(const Dischetto& d, const std::string& resto) {
    // A name in another case is another name, also where the file system takes it for the same.
    const fs::path p = d.percorso(resto);
    if (!fs::exists(p.parent_path())) return;
    for (const auto& e : fs::directory_iterator(p.parent_path()))
        if (e.path().filename() == p.filename()) male("should not exist: " + resto);
}

}  // namespace ambra::storia
