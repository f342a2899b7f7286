// Runs one story: a drive is laid out, `ambra batch` runs a script on it, events and file bytes are
// compared. See docs/dev/storie.md for the language.
//
// usage: storia AMBRA STORY      (with STORIA_MOSTRA set, all events are shown)
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "core/campi.h"
#include "core/testo.h"
#include "records/descrizione.h"

namespace fs = std::filesystem;
using namespace ambra;
using Json = nlohmann::json;

namespace {

[[noreturn]] void male(const std::string& testo) {
    throw std::runtime_error(testo);
}

std::string leggi_file(const fs::path& p) {
    std::ifstream f(p, std::ios::binary);
    if (!f) male("no such file: " + p.filename().string());
    return {std::istreambuf_iterator<char>(f), {}};
}

void scrivi_file(const fs::path& p, const std::string& s) {
    fs::create_directories(p.parent_path());
    std::ofstream f(p, std::ios::binary);
    f << s;
    if (!f) male("cannot write " + p.string());
}

std::string da_hex(const std::string& h) {
    std::string r;
    std::string pulito;
    for (char c : h)
        if (!std::isspace(static_cast<unsigned char>(c))) pulito += c;
    for (std::size_t i = 0; i + 1 < pulito.size(); i += 2)
        r += static_cast<char>(std::stoi(pulito.substr(i, 2), nullptr, 16));
    return r;
}

std::string in_hex(std::string_view s) {
    std::string r;
    char b[3];
    for (char c : s) {
        std::snprintf(b, sizeof b, "%02x", static_cast<unsigned char>(c));
        r += b;
    }
    return r;
}

// One `field(k)="value"` or `field=number` of a record line.
struct Assegnazione {
    std::string campo;
    int indice = -1;  // -1: not given
    bool e_testo = false;
    std::string valore;
};

std::vector<Assegnazione> assegnazioni(const std::string& s, long n) {
    std::vector<Assegnazione> r;
    for (std::size_t i = 0; i < s.size();) {
        if (s[i] == ' ') {
            ++i;
            continue;
        }
        Assegnazione a;
        while (i < s.size() && s[i] != '=' && s[i] != '(') a.campo += s[i++];
        if (i < s.size() && s[i] == '(') {
            a.indice = std::atoi(s.c_str() + i + 1);
            i = s.find(')', i) + 1;
        }
        if (i >= s.size() || s[i] != '=') male("expected '=' after " + a.campo);
        ++i;
        if (i < s.size() && s[i] == '"') {
            a.e_testo = true;
            for (++i; i < s.size() && s[i] != '"'; ++i) {
                if (s[i] == '\\' && i + 1 < s.size()) {
                    if (s[i + 1] == 'x' && i + 3 < s.size()) {
                        // a raw byte, written as its Unicode twin so that the conversion gives it back
                        a.valore += a_utf8(
                            std::string(1, static_cast<char>(std::stoi(s.substr(i + 2, 2), nullptr, 16))));
                        i += 3;
                        continue;
                    }
                    ++i;
                }
                a.valore += s[i];
            }
            ++i;
        } else {
            while (i < s.size() && s[i] != ' ') a.valore += s[i++];
        }
        if (const auto p = a.valore.find("$n"); p != std::string::npos)
            a.valore.replace(p, 2, std::to_string(n));
        r.push_back(a);
    }
    return r;
}

class Storia {
  public:
    Storia(std::string ambra, fs::path drive) : ambra_(std::move(ambra)), drive_(std::move(drive)) {
        fs::create_directories(cartella());
    }

    void esegui(const fs::path& storia) {
        std::ifstream f(storia);
        if (!f) male("no such story");
        for (std::string r; std::getline(f, r);) {
            ++riga_;
            if (r.empty() || r[0] == '#') continue;
            std::istringstream in(r);
            std::string verbo, resto;
            in >> verbo;
            resto.clear();
            std::getline(in >> std::ws, resto);
            passo(verbo, resto, f);
        }
        if (corse_ == 0) male("the story runs nothing");
    }
    int riga() const { return riga_; }

  private:
    fs::path cartella() const { return drive_ / "lumdir" / "lumora"; }
    std::string nnn() const { return std::string(destra("000" + stabile_, 3)); }

    // "ftr", "012.ftr", "lumora.tot", "../PDF/x": a file of the drive.
    fs::path percorso(const std::string& nome) const {
        if (nome.starts_with("/")) return drive_ / nome.substr(1);
        if (maiuscolo(nome).starts_with("LUM") || nome.starts_with("vex")) return cartella() / nome;
        if (nome.size() > 4 && nome[3] == '.') return cartella() / ("lum" + nome);
        return cartella() / ("lum" + nnn() + "." + nome);
    }
    const FormatoRecord& formato(const std::string& nome) const {
        const FormatoRecord* f = formato_di_file(nome);
        if (!f && nome.size() > 4 && nome[3] == '.') f = formato_di_file(nome.substr(4));
        if (!f) male("no record format for " + nome);
        return *f;
    }

    std::string blocco(std::istream& f) {
        std::string tutto;
        for (std::string r; std::getline(f, r);) {
            ++riga_;
            if (r == ".") return tutto;
            tutto += r + "\n";
        }
        male("a block without its closing point");
    }
    std::string blocco_testo(std::istream& f) {
        std::string crlf;
        for (char c : da_utf8(blocco(f))) crlf += c == '\n' ? std::string("\r\n") : std::string(1, c);
        return crlf;
    }

    void passo(const std::string& verbo, const std::string& resto, std::istream& f) {
        if (verbo == "stabile")
            stabile_ = resto;
        else if (verbo == "oggi")
            oggi_ = resto;
        else if (verbo == "opzioni")
            opzioni_ = resto;
        else if (verbo == "dati")
            dati_demo(resto);
        else if (verbo == "record")
            record(resto);
        else if (verbo == "file")
            scrivi_file(percorso(resto), blocco_testo(f));
        else if (verbo == "layout")
            layout(resto);
        else if (verbo == "hex")
            hex(resto);
        else if (verbo == "tab")
            voci_contabili(blocco(f));
        else if (verbo == "tronca")
            fs::resize_file(percorso(parola(resto, 0)), std::stoul(parola(resto, 1)));
        else if (verbo == "cancella")
            fs::remove_all(percorso(resto));
        else if (verbo == "cartella")
            fs::create_directories(percorso(resto));
        else if (verbo == "rinomina")
            fs::rename(percorso(parola(resto, 0)), percorso(parola(resto, 1)));
        else if (verbo == "sola_lettura")
            sola_lettura(resto);
        else if (verbo == "esegui")
            corri(blocco(f));
        else if (verbo == "esito")
            esito(resto);
        else if (verbo == "attesi")
            attesi(blocco(f));
        else if (verbo == "mai")
            mai(blocco(f));
        else if (verbo == "verifica")
            verifica(resto);
        else if (verbo == "uguale")
            uguale(resto);
        else if (verbo == "cambia")
            cambia(resto);
        else if (verbo == "uguali")
            uguali();
        else if (verbo == "lungo")
            lungo(resto);
        else if (verbo == "manca") {
            if (fs::exists(percorso(resto))) male("should not exist: " + resto);
        } else if (verbo == "testo")
            testo(resto, blocco_testo(f));
        else if (verbo == "riga")
            riga_di(resto);
        else if (verbo == "byte")
            byte(resto);
        else
            male("unknown step: " + verbo);
    }

    static std::string parola(const std::string& s, int quale) {
        std::istringstream in(s);
        std::string p;
        for (int i = 0; i <= quale; ++i) in >> p;
        return p;
    }
    static std::string dopo(const std::string& s, int parole) {
        std::istringstream in(s);
        std::string p;
        for (int i = 0; i < parole; ++i) in >> p;
        p.clear();
        std::getline(in >> std::ws, p);
        return p;
    }

    void dati_demo(const std::string& che) {
        if (che == "vuoto") return;
        fs::remove_all(drive_);
        const std::string c =
            "'" + ambra_ + "' demo --today " + oggi_ + " '" + drive_.string() + "' > /dev/null";
        if (std::system(c.c_str()) != 0) male("no demo data");
    }

    // The headings of the building's accounts, 654 lines, from lines "VOCE TOTAL NAME".
    void voci_contabili(const std::string& righe) {
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

    // A superuser is refused nothing: the program then runs as nobody, who owns the drive.
    void sola_lettura(const std::string& resto) {
        const fs::path p = percorso(resto);
        const bool cartella_intera = fs::is_directory(p);
        fs::permissions(p, cartella_intera ? fs::perms(0555) : fs::perms(0444), fs::perm_options::replace);
        if (::geteuid() == 0) come_nessuno_ = true;
    }

    // Gives the drive to nobody, and the words that run a command as nobody.
    std::string da_nessuno() {
        if (!come_nessuno_) return "";
        const fs::path casa = drive_.parent_path();
        const std::string prova = "chown -R 65534:65534 '" + casa.string() +
                                  "' && setpriv --reuid=65534 --regid=65534 --clear-groups '" + ambra_ +
                                  "' --help > /dev/null 2>&1";
        if (std::system(prova.c_str()) != 0) {
            std::cout << "skipped: the program cannot be run as nobody here\n";
            std::exit(77);
        }
        return "setpriv --reuid=65534 --regid=65534 --clear-groups ";
    }

    // record FILE N|A..B field=value ...
    void record(const std::string& resto) {
        const std::string nome = parola(resto, 0), quali = parola(resto, 1);
        const FormatoRecord& form = formato(nome);
        const auto punti = quali.find("..");
        const long da = std::stol(quali),
                   a = punti == std::string::npos ? da : std::stol(quali.substr(punti + 2));
        const fs::path p = percorso(nome);
        std::string dati = fs::exists(p) ? leggi_file(p) : "";
        for (long n = da; n <= a; ++n) {
            const std::size_t fine = static_cast<std::size_t>(n) * form.lunghezza;
            if (dati.size() < fine) {
                dati.resize(fine, '\0');
                vuoto(form, dati.data() + fine - form.lunghezza);
            }
            for (const auto& x : assegnazioni(dopo(resto, 2), n))
                assegna(form, dati.data() + fine - form.lunghezza, x);
        }
        scrivi_file(p, dati);
    }

    // A new record has blank texts and zero numbers.
    static void vuoto(const FormatoRecord& form, char* r) {
        for (const auto& c : form.campi)
            if (c.tipo == CampoRecord::Tipo::testo)
                std::memset(r + c.posto, ' ', c.lungo * static_cast<std::size_t>(c.quanti));
    }

    static const CampoRecord& campo(const FormatoRecord& form, const Assegnazione& x) {
        for (const auto& c : form.campi)
            if (c.nome == x.campo) return c;
        male("no field " + x.campo + " in " + std::string(form.nome));
    }

    static std::size_t posto(const CampoRecord& c, int indice) {
        const int i = indice < 0 ? 0 : indice - c.primo;
        if (i < 0 || i >= c.quanti)
            male("no element " + std::to_string(indice) + " of " + std::string(c.nome));
        return c.posto + static_cast<std::size_t>(i) * c.lungo;
    }

    static void assegna(const FormatoRecord& form, char* r, const Assegnazione& x) {
        const CampoRecord& c = campo(form, x);
        char* p = r + posto(c, x.indice);
        switch (c.tipo) {
            case CampoRecord::Tipo::testo: {
                const std::string t = riempi(da_utf8(x.valore), c.lungo);
                std::memcpy(p, t.data(), c.lungo);
                break;
            }
            case CampoRecord::Tipo::intero: {
                Intero v;
                v = std::stoi(x.valore);
                std::memcpy(p, &v, sizeof v);
                break;
            }
            case CampoRecord::Tipo::doppio: {
                Doppio v;
                v = std::stod(x.valore);
                std::memcpy(p, &v, sizeof v);
                break;
            }
            case CampoRecord::Tipo::lungo: {
                Lungo v;
                v = std::stoi(x.valore);
                std::memcpy(p, &v, sizeof v);
                break;
            }
            case CampoRecord::Tipo::grezzo: {
                const std::string b = da_hex(x.valore);
                std::memcpy(p, b.data(), std::min(b.size(), c.lungo));
                break;
            }
        }
    }

    static std::string mostra(const CampoRecord& c, const char* p) {
        switch (c.tipo) {
            case CampoRecord::Tipo::testo: {
                std::string_view t(p, c.lungo);
                return a_utf8(rifila_destra(t));
            }
            case CampoRecord::Tipo::intero: {
                Intero v;
                std::memcpy(&v, p, sizeof v);
                return std::to_string(int(v));
            }
            case CampoRecord::Tipo::doppio: {
                Doppio v;
                std::memcpy(&v, p, sizeof v);
                char b[40];
                std::snprintf(b, sizeof b, "%.17g", double(v));
                return b;
            }
            case CampoRecord::Tipo::lungo: {
                Lungo v;
                std::memcpy(&v, p, sizeof v);
                return std::to_string(std::int32_t(v));
            }
            case CampoRecord::Tipo::grezzo:
                return in_hex({p, c.lungo});
        }
        return "";
    }

    // verifica FILE N|A..B field=value ...
    void verifica(const std::string& resto) {
        const std::string nome = parola(resto, 0), quali = parola(resto, 1);
        const FormatoRecord& form = formato(nome);
        const auto punti = quali.find("..");
        const long da = std::stol(quali),
                   a = punti == std::string::npos ? da : std::stol(quali.substr(punti + 2));
        const std::string dati = leggi_file(percorso(nome));
        for (long n = da; n <= a; ++n) {
            const std::size_t inizio = static_cast<std::size_t>(n - 1) * form.lunghezza;
            if (dati.size() < inizio + form.lunghezza) male("no record " + std::to_string(n) + " in " + nome);
            for (const auto& x : assegnazioni(dopo(resto, 2), n)) {
                const CampoRecord& c = campo(form, x);
                const std::string ora = mostra(c, dati.data() + inizio + posto(c, x.indice));
                bool bene = c.tipo == CampoRecord::Tipo::doppio ? std::stod(ora) == std::stod(x.valore)
                                                                : ora == std::string(rifila_destra(x.valore));
                if (!bene)
                    male(nome + " " + std::to_string(n) + ": " + x.campo + " is \"" + ora +
                         "\", expected \"" + x.valore + "\"");
            }
        }
    }

    // layout FILE 11=021045 97=030 ...: the 600 lines of a form layout, with these positions
    void layout(const std::string& resto) {
        std::string tutto;
        for (int campo = 1; campo <= 100; ++campo) {
            std::string posizione = "000000";
            for (const auto& x : assegnazioni(dopo(resto, 1), campo))
                if (std::stoi(x.campo) == campo) posizione = x.valore;
            tutto += posizione + "\r\n9\r\nArial\r\n0\r\n0\r\n0\r\n";
        }
        scrivi_file(percorso(parola(resto, 0)), tutto);
    }

    void hex(const std::string& resto) {
        const fs::path p = percorso(parola(resto, 0));
        const std::size_t dove = std::stoul(parola(resto, 1));
        std::string dati = fs::exists(p) ? leggi_file(p) : "";
        const std::string b = da_hex(dopo(resto, 2));
        if (dati.size() < dove + b.size()) dati.resize(dove + b.size(), '\0');
        dati.replace(dove, b.size(), b);
        scrivi_file(p, dati);
    }

    void corri(const std::string& script) {
        ++corse_;
        prima_.clear();
        for (const auto& e : fs::recursive_directory_iterator(drive_))
            if (e.is_regular_file()) prima_[fs::relative(e.path(), drive_).string()] = leggi_file(e.path());
        const fs::path base = drive_.string() + ".corsa";
        scrivi_file(base.string() + ".txt", script);
        const std::string c = da_nessuno() + "'" + ambra_ + "' batch --drive '" + drive_.string() +
                              "' --today " + oggi_ + " " + opzioni_ + " '" + stabile_ + "' '" +
                              base.string() + ".txt' > '" + base.string() + ".out'";
        const int stato = std::system(c.c_str());
        stato_ = WIFEXITED(stato) ? WEXITSTATUS(stato) : 128 + WTERMSIG(stato);
        eventi_.clear();
        std::istringstream out(leggi_file(base.string() + ".out"));
        for (std::string r; std::getline(out, r);) eventi_.push_back(Json::parse(r));
        if (std::getenv("STORIA_MOSTRA")) std::cout << leggi_file(base.string() + ".out");
        esito_visto_ = false;
        if (stato_ != 0 && stato_ != 2) male("the program ended with status " + std::to_string(stato_));
        if (stato_ == 2 && !eventi_.empty()) ultimo_errore_ = eventi_.back().dump();
    }

    void pretendi_esito() {
        if (stato_ != 0 && !esito_visto_) male("status " + std::to_string(stato_) + ": " + ultimo_errore_);
    }

    void esito(const std::string& resto) {
        esito_visto_ = true;
        if (stato_ != std::stoi(resto)) male("status " + std::to_string(stato_) + ": " + ultimo_errore_);
    }

    // Every key of `voluto` is in `ora`; a list that begins with "..." wants its items in this order
    // somewhere.
    static bool combacia(const Json& voluto, const Json& ora) {
        if (voluto.is_object()) {
            if (!ora.is_object()) return false;
            for (const auto& [k, v] : voluto.items())
                if (!ora.contains(k) || !combacia(v, ora[k])) return false;
            return true;
        }
        if (voluto.is_array()) {
            if (!ora.is_array()) return false;
            if (!voluto.empty() && voluto[0] == "...") {
                std::size_t i = 1;
                for (const auto& x : ora)
                    if (i < voluto.size() && combacia(voluto[i], x)) ++i;
                return i == voluto.size();
            }
            if (voluto.size() != ora.size()) return false;
            for (std::size_t i = 0; i < voluto.size(); ++i)
                if (!combacia(voluto[i], ora[i])) return false;
            return true;
        }
        if (voluto.is_number() && ora.is_number())
            return std::fabs(voluto.get<double>() - ora.get<double>()) < 1e-6;
        return voluto == ora;
    }

    void attesi(const std::string& righe) {
        pretendi_esito();
        std::istringstream in(righe);
        std::size_t i = 0;
        for (std::string r; std::getline(in, r);) {
            if (r.empty()) continue;
            const Json voluto = Json::parse(r);
            const std::size_t da = i;
            while (i < eventi_.size() && !combacia(voluto, eventi_[i])) ++i;
            if (i == eventi_.size()) {
                std::string resto;
                for (std::size_t k = da; k < eventi_.size() && resto.size() < 4000; ++k)
                    resto += "\n  " + eventi_[k].dump().substr(0, 1500);
                male("expected event not seen: " + r + "\nevents from there on:" + resto);
            }
            ++i;
        }
    }

    void mai(const std::string& righe) {
        pretendi_esito();
        std::istringstream in(righe);
        for (std::string r; std::getline(in, r);)
            for (const auto& e : eventi_)
                if (combacia(Json::parse(r), e)) male("event should not be: " + e.dump().substr(0, 500));
    }

    void uguale(const std::string& resto) {
        const std::string k = fs::relative(percorso(resto), drive_).string();
        const bool cera = prima_.contains(k), ce = fs::exists(drive_ / k);
        if (cera != ce) male(resto + (ce ? " was made" : " is gone"));
        if (ce && prima_[k] != leggi_file(drive_ / k)) male(resto + " has changed");
    }

    // cambia FILE N.field N.field(k) ...: outside these fields the file is byte for byte what it was;
    // N alone is a whole record.
    void cambia(const std::string& resto) {
        const std::string nome = parola(resto, 0);
        const FormatoRecord& form = formato(nome);
        std::string ora = leggi_file(percorso(nome));
        std::string prima = prima_[fs::relative(percorso(nome), drive_).string()];
        std::istringstream in(dopo(resto, 1));
        for (std::string p; in >> p;) {
            const auto punto = p.find('.');
            std::size_t da = static_cast<std::size_t>(std::stol(p) - 1) * form.lunghezza, n = form.lunghezza;
            if (punto != std::string::npos) {
                Assegnazione x;
                x.campo = p.substr(punto + 1, p.find('(') - punto - 1);
                if (const auto k = p.find('('); k != std::string::npos)
                    x.indice = std::atoi(p.c_str() + k + 1);
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

    // No file of the drive has changed, come or gone.
    void uguali() {
        for (const auto& [k, v] : prima_)
            if (!fs::exists(drive_ / k) || leggi_file(drive_ / k) != v) male(k + " has changed");
        for (const auto& e : fs::recursive_directory_iterator(drive_))
            if (e.is_regular_file() && !prima_.contains(fs::relative(e.path(), drive_).string()))
                male(e.path().filename().string() + " was made");
    }

    void lungo(const std::string& resto) {
        const auto n = leggi_file(percorso(parola(resto, 0))).size();
        if (n != std::stoul(parola(resto, 1)))
            male(parola(resto, 0) + " is " + std::to_string(n) + " bytes long");
    }

    void testo(const std::string& nome, const std::string& voluto) {
        const std::string ora = leggi_file(percorso(nome));
        if (ora != voluto) male(nome + " holds:\n" + a_utf8(ora));
    }

    // riga FILE N TEXT: line N of a text file, from 1
    void riga_di(const std::string& resto) {
        std::istringstream in(leggi_file(percorso(parola(resto, 0))));
        std::string r;
        for (int i = std::stoi(parola(resto, 1)); i > 0; --i)
            if (!std::getline(in, r)) male(parola(resto, 0) + " has no line " + parola(resto, 1));
        if (!r.empty() && r.back() == '\r') r.pop_back();
        if (a_utf8(r) != dopo(resto, 2)) male("line " + parola(resto, 1) + " is \"" + a_utf8(r) + "\"");
    }

    void byte(const std::string& resto) {
        const std::string nome = parola(resto, 0), voluto = da_hex(dopo(resto, 2));
        const std::string ora =
            leggi_file(percorso(nome)).substr(std::stoul(parola(resto, 1)), voluto.size());
        if (ora != voluto) male(nome + " holds " + in_hex(ora) + " at " + parola(resto, 1));
    }

    std::string ambra_, stabile_ = "1", oggi_ = "15/03/2024", opzioni_, ultimo_errore_;
    fs::path drive_;
    int riga_ = 0, corse_ = 0, stato_ = 0;
    bool esito_visto_ = false;
    bool come_nessuno_ = false;
    std::vector<Json> eventi_;
    std::map<std::string, std::string> prima_;
};

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) return 64;
    char modello[] = "/tmp/storia-XXXXXX";
    const char* d = ::mkdtemp(modello);
    if (!d) return 70;
    const fs::path casa = d;
    Storia storia(argv[1], casa / "drive");
    int stato = 0;
    try {
        storia.esegui(argv[2]);
    } catch (const std::exception& e) {
        std::cerr << argv[2] << ":" << storia.riga() << ": " << e.what() << '\n';
        stato = 1;
    }
    std::error_code ec;
    fs::remove_all(casa, ec);
    return stato;
}
